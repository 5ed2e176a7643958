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
    if (m_sortColumn < Telling || m_sortColumn == problemColumn()) {
        arrange(m_sortColumn < 0 ? fileOrder(m_document.count())
                                 : sortedBy(keysFor(m_sortColumn), order));
        return;
    }
    m_sort.emplace(m_document.count(), [this](int index) {
        const Record record(m_document.entry(index).bytes, m_document.catalog());
        return columnTexts(record).value(m_sortColumn - Telling);
    });
    m_sortTimer.start();
    sortOn();
}

void RecordListModel::sortAnew()
{
    sort(m_sortColumn, m_sortOrder);
}

/// What records are sorted by where that is a number: the least come first.
std::vector<int> RecordListModel::keysFor(int column) const
{
    std::vector<int> keys = fileOrder(m_document.count());
    if (column == Number) {
        return keys;
    }
    for (int &key : keys) {
        const int state = int(m_document.stateOf(key));
        const int unchangedLast =
            (state + int(EntryState::Deleted)) % (int(EntryState::Deleted) + 1);
        key = column == State ? unchangedLast : -m_scan.countAt(key);
    }
    return keys;
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
    const auto before = std::find(m_order.begin(), m_order.end(), first - 1);
    std::vector<int> added(static_cast<std::size_t>(count));
    std::iota(added.begin(), added.end(), first);
    const auto place = first == 0 ? m_order.begin() : std::next(before);
    m_order.insert(place, added.begin(), added.end());
    setOrder(std::move(m_order));
    renumberRows();
    if (wasSearching) {
        searchAnew();
    } else {
        update(first, last);
    }
    if (m_sort) {
        sortAnew();
    }
    tellOfData(0, rowCount() - 1); // their numbers
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
