// The order of the list, and what becomes of it when the document changes.

#include "records/document.h"
#include "records/preview.h"
#include "records/problem_scan.h"
#include "records/record_list_model.h"

#include <algorithm>
#include <numeric>

namespace tarvold::records {
namespace {

constexpr qint64 kSortSlice = 10;             // milliseconds until the next event
constexpr std::size_t kMostRemovedSingly = 8; // rows that go one by one
constexpr int kMostSortedSingly = 100;        // records that come to their places one by one

std::vector<int> fileOrder(int count)
{
    std::vector<int> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    return order;
}

} // namespace

void RecordListModel::setOrder(std::vector<int> order)
{
    m_order = std::move(order);
    m_ranks.resize(m_order.size());
    for (std::size_t rank = 0; rank < m_order.size(); ++rank) {
        m_ranks[std::size_t(m_order[rank])] = int(rank);
    }
}

void RecordListModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column > problemColumn() ? -1 : column;
    m_sortOrder = order;
    m_isSortedTooSoon = m_sortColumn == problemColumn() && !m_scan.isFinished();
    m_sort.reset();
    m_sortTimer.stop();
    if (m_sortColumn < 0) {
        arrange(fileOrder(m_document.count()));
        return;
    }
    if (isSortedByNumber()) {
        std::vector<int> keys = fileOrder(m_document.count());
        std::transform(keys.begin(), keys.end(), keys.begin(),
                       [this](int index) { return sortKeyOf(index); });
        arrange(sortedBy(keys, order));
        return;
    }
    m_sort.emplace(m_document.count(), [this](int index) { return sortTextOf(index); });
    m_sortTimer.start();
    sortOn();
}

void RecordListModel::sortAnew()
{
    sort(m_sortColumn, m_sortOrder);
}

/// What a record is sorted by where that is a number: the least comes first.
int RecordListModel::sortKeyOf(int index) const
{
    if (m_sortColumn == State) {
        const int state = int(m_document.stateOf(index));
        return (state + int(EntryState::Deleted)) % (int(EntryState::Deleted) + 1); // changed first
    }
    return m_sortColumn == Number ? index : -m_scan.countAt(index);
}

/// The same where it is a text.
QString RecordListModel::sortTextOf(int index) const
{
    const Record record(m_document.entry(index).bytes, m_document.catalog());
    return columnTexts(record).value(m_sortColumn - Telling);
}

/// Whether a record belongs before another one as it is sorted.
bool RecordListModel::isSortedBefore(int one, int other) const
{
    if (m_sortOrder == Qt::DescendingOrder) {
        std::swap(one, other);
    }
    return isSortedByNumber() ? sortKeyOf(one) < sortKeyOf(other)
                              : sortTextOf(one).toCaseFolded() < sortTextOf(other).toCaseFolded();
}

void RecordListModel::sortOn()
{
    if (m_sort && m_sort->work(kSortSlice)) {
        m_sortTimer.stop();
        std::vector<int> order = m_sort->order(m_sortOrder);
        m_sort.reset();
        arrange(std::move(order));
    }
}

void RecordListModel::arrange(std::vector<int> order)
{
    const bool wasSearching = stopSearch();
    setOrder(std::move(order));
    if (wasSearching) {
        searchAnew();
        return;
    }
    std::vector<int> rows;
    rows.reserve(m_rows.size());
    std::copy_if(m_order.begin(), m_order.end(), std::back_inserter(rows),
                 [this](int index) { return rowOf(index) >= 0; });
    showRows(std::move(rows));
    emit settled();
}

void RecordListModel::noteReset()
{
    beginResetModel();
    const QStringList telling = columnsOf(m_document.kind());
    if (telling != std::exchange(m_telling, telling)) {
        m_sortColumn = -1;
        m_isSortedTooSoon = false;
    }
    m_textsOf = -1;
    m_chosen = -1;
    m_kept = -1;
    m_sort.reset();
    m_sortTimer.stop();
    stopSearch();
    m_search = SearchText(m_search.text(), m_document.kind());
    setOrder(fileOrder(m_document.count()));
    m_rows = isFiltered() ? std::vector<int>() : m_order;
    renumberRows();
    endResetModel();
    if (isFiltered()) {
        searchAnew();
    }
    if (m_sortColumn >= 0) {
        sortAnew();
    }
}

void RecordListModel::noteChange(const std::vector<int> &indexes)
{
    m_textsOf = -1;
    if (stopSearch()) {
        searchAnew();
    } else if (isFiltered()) {
        update(indexes);
    }
    if (m_sort) {
        sortAnew();
    }
    tellOfRecords(indexes.front(), indexes.back());
}

void RecordListModel::noteProblems(int first, int last)
{
    last = std::min(last, m_document.count() - 1);
    if (m_isOnlyProblems) {
        update(first, last);
    }
    tellOfRecords(first, last);
}

/// Tells of the rows of some records that follow each other in the file.
void RecordListModel::tellOfRecords(int first, int last)
{
    int from = rowCount();
    int to = -1;
    for (int index = first; index <= last; ++index) {
        const int row = rowOf(index);
        from = row < 0 ? from : std::min(from, row);
        to = std::max(to, row);
    }
    tellOfData(from, to);
}

void RecordListModel::noteInsertion(int first, int last)
{
    const bool wasSearching = stopSearch();
    const int count = last - first + 1;
    const auto shift = [=](int &index) { index += index >= first ? count : 0; };
    std::for_each(m_order.begin(), m_order.end(), shift);
    std::for_each(m_rows.begin(), m_rows.end(), shift);
    addToOrder(first, last);
    setOrder(std::move(m_order));
    renumberRows();
    if (wasSearching) {
        searchAnew();
    } else {
        update(first, last);
    }
    const bool isMuch = m_sortColumn >= 0 && isGrowth(first, last) && count > kMostSortedSingly;
    if (m_sort || isMuch) {
        sortAnew();
    }
    tellOfData(0, rowCount() - 1); // their numbers
}

/// Whether records are what the file got at its end, and no change.
bool RecordListModel::isGrowth(int first, int last) const
{
    return last == m_document.count() - 1 && m_document.stateOf(first) == EntryState::Unchanged;
}

/// Adds some records that follow each other: beside the one before them, but a few that the file
/// got where they are sorted. The others keep their places, as they may have been changed since.
void RecordListModel::addToOrder(int first, int last)
{
    if (m_sortColumn >= 0 && isGrowth(first, last) && last - first < kMostSortedSingly) {
        for (int index = first; index <= last; ++index) {
            m_order.insert(
                std::upper_bound(m_order.begin(), m_order.end(), index,
                                 [this](int one, int other) { return isSortedBefore(one, other); }),
                index);
        }
        return;
    }
    const auto before = std::find(m_order.begin(), m_order.end(), first - 1);
    std::vector<int> added(std::size_t(last - first + 1));
    std::iota(added.begin(), added.end(), first);
    m_order.insert(first == 0 ? m_order.begin() : std::next(before), added.begin(), added.end());
}

void RecordListModel::noteRemoval(int first, int last)
{
    const bool wasSearching = stopSearch();
    const int count = last - first + 1;
    const auto shift = [=](int &index) {
        index = index > last ? index - count : index >= first ? -1 : index;
    };
    std::for_each(m_order.begin(), m_order.end(), shift);
    std::for_each(m_rows.begin(), m_rows.end(), shift);
    std::erase(m_order, -1);
    setOrder(std::move(m_order));
    m_textsOf = -1;
    renumberRows();
    removeLost();
    if (wasSearching) {
        searchAnew();
    }
    if (m_sort) {
        sortAnew();
    }
    tellOfData(0, rowCount() - 1); // their numbers
}

/// Removes the rows whose records are gone.
void RecordListModel::removeLost()
{
    if (std::size_t(std::count(m_rows.begin(), m_rows.end(), -1)) > kMostRemovedSingly) {
        std::vector<int> rows = m_rows;
        std::erase(rows, -1);
        showRows(std::move(rows));
        return;
    }
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (m_rows[std::size_t(row)] < 0) {
            removeRow(row);
        }
    }
}

} // namespace tarvold::records
