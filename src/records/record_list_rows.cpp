// Which records the list shows.

#include "records/document.h"
#include "records/problem_scan.h"
#include "records/record_list_model.h"

#include <QElapsedTimer>

#include <algorithm>
#include <numeric>

namespace tarvold::records {
namespace {

constexpr qint64 kSearchSlice = 8;        // milliseconds until the next event
constexpr std::size_t kMostSingly = 8;    // rows that come or go one by one
constexpr std::size_t kBetweenLooks = 16; // records to search before the clock is read

} // namespace

int RecordListModel::indexAt(int row) const
{
    return row >= 0 && row < rowCount() ? m_rows[std::size_t(row)] : -1;
}

int RecordListModel::rowOf(int index) const
{
    return index >= 0 && index < int(m_rowOf.size()) ? m_rowOf[std::size_t(index)] : -1;
}

bool RecordListModel::isWanted(int index)
{
    const Entry &entry = m_document.entry(index);
    if (entry.id == m_kept) {
        return true;
    }
    const bool isFound = (!m_isOnlyProblems || m_scan.countAt(index) > 0 || entry.isDeleted) &&
                         m_search.isIn(entry.bytes);
    m_kept = isFound && entry.id == m_chosen ? m_chosen : m_kept;
    return isFound;
}

void RecordListModel::setSearch(const QString &text)
{
    if (text != m_search.text()) {
        const SearchText wanted(text, m_document.kind());
        m_kept = -1;
        // Problems that are found later may be those of records that were left out before.
        search(wanted, wanted.narrows(m_search) && !m_isOnlyProblems);
    }
}

void RecordListModel::setOnlyProblems(bool isOnly)
{
    if (isOnly != m_isOnlyProblems) {
        m_isOnlyProblems = isOnly;
        m_kept = -1;
        search(m_search, false);
    }
}

/// Ends the search that runs, if any.
/// \return whether one ran, and is to be started again
bool RecordListModel::stopSearch()
{
    m_searchTimer.stop();
    m_candidates = {};
    return std::exchange(m_isSearching, false);
}

/// Searches again for the same, as something changed meanwhile.
void RecordListModel::searchAnew()
{
    search(m_search, false);
}

/// Nothing is left of a search that runs, so it cannot come back.
void RecordListModel::search(const SearchText &text, bool isNarrower)
{
    std::vector<int> candidates = isNarrower ? m_rows : m_order;
    if (isNarrower && m_isSearching) {
        candidates.insert(candidates.end(), m_candidates.begin() + std::ptrdiff_t(m_next),
                          m_candidates.end());
    }
    m_search = text;
    m_candidates = std::move(candidates);
    m_next = 0;
    m_isSearching = true;
    showRows(searchSlice());
    if (m_isSearching) {
        m_searchTimer.start();
    } else {
        m_searchTimer.stop();
        emit settled();
    }
}

void RecordListModel::searchOn()
{
    append(searchSlice());
    if (!m_isSearching) {
        m_searchTimer.stop();
        emit settled();
    }
}

std::vector<int> RecordListModel::searchSlice()
{
    QElapsedTimer timer;
    timer.start();
    std::vector<int> found;
    while (m_next < m_candidates.size() && timer.elapsed() < kSearchSlice) {
        const std::size_t end = std::min(m_next + kBetweenLooks, m_candidates.size());
        for (; m_next < end; ++m_next) {
            const int index = m_candidates[m_next];
            if (isWanted(index)) {
                found.push_back(index);
            }
        }
    }
    m_isSearching = m_next < m_candidates.size();
    if (!m_isSearching) {
        m_candidates = {};
    }
    return found;
}

/// Whether the search that runs has not come to a record.
bool RecordListModel::isAhead(int index) const
{
    return m_isSearching && rankOf(index) >= rankOf(m_candidates[m_next]);
}

void RecordListModel::append(const std::vector<int> &found)
{
    if (!found.empty()) {
        beginInsertRows({}, rowCount(), rowCount() + int(found.size()) - 1);
        m_rows.insert(m_rows.end(), found.begin(), found.end());
        renumberRows();
        endInsertRows();
    }
}

/// Shows or hides records that may have become wanted or unwanted.
void RecordListModel::update(int first, int last)
{
    std::vector<int> indexes(std::size_t(std::max(last - first + 1, 0)));
    std::iota(indexes.begin(), indexes.end(), first);
    update(indexes);
}

void RecordListModel::update(const std::vector<int> &indexes)
{
    std::vector<int> found;
    std::vector<int> lost;
    for (const int index : indexes) {
        const bool isShown = rowOf(index) >= 0;
        if (!isAhead(index) && isShown != isWanted(index)) {
            (isShown ? lost : found).push_back(index);
        }
    }
    if (found.size() + lost.size() <= kMostSingly) {
        std::for_each(lost.begin(), lost.end(), [this](int index) { removeRow(rowOf(index)); });
        std::for_each(found.begin(), found.end(), [this](int index) { insertRow(index); });
        return;
    }
    const auto isBefore = [this](int one, int other) { return rankOf(one) < rankOf(other); };
    std::sort(found.begin(), found.end(), isBefore);
    std::sort(lost.begin(), lost.end(), isBefore);
    if (lost.empty() && (m_rows.empty() || isBefore(m_rows.back(), found.front()))) {
        append(found); // as the scan goes through the file
        return;
    }
    std::vector<int> rows;
    std::set_difference(m_rows.begin(), m_rows.end(), lost.begin(), lost.end(),
                        std::back_inserter(rows), isBefore);
    const auto middle = rows.insert(rows.end(), found.begin(), found.end());
    std::inplace_merge(rows.begin(), middle, rows.end(), isBefore);
    showRows(std::move(rows));
}

void RecordListModel::insertRow(int index)
{
    const auto place =
        std::lower_bound(m_rows.begin(), m_rows.end(), index,
                         [this](int one, int other) { return rankOf(one) < rankOf(other); });
    const int row = int(place - m_rows.begin());
    beginInsertRows({}, row, row);
    m_rows.insert(place, index);
    renumberRows();
    endInsertRows();
}

void RecordListModel::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    renumberRows();
    endRemoveRows();
}

/// Replaces all rows. Selections and the current row stay with their records.
void RecordListModel::showRows(std::vector<int> rows)
{
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    const std::vector<int> oldRows = std::exchange(m_rows, std::move(rows));
    renumberRows();
    QModelIndexList after;
    for (const QModelIndex &old : before) {
        const int row = rowOf(oldRows[std::size_t(old.row())]);
        after.append(row < 0 ? QModelIndex() : createIndex(row, old.column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged();
    emit rearranged();
}

void RecordListModel::renumberRows()
{
    m_rowOf.assign(std::size_t(m_document.count()), -1);
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (m_rows[row] >= 0) {
            m_rowOf[std::size_t(m_rows[row])] = int(row);
        }
    }
}

void RecordListModel::setChosen(int index)
{
    const int before = std::exchange(m_chosen, index < 0 ? -1 : m_document.entry(index).id);
    m_kept = m_chosen;
    if (index >= 0 && rowOf(index) < 0) {
        if (stopSearch()) {
            searchAnew();
        } else {
            insertRow(index);
        }
    }
    if (before >= 0 && before != m_chosen && isFiltered()) {
        m_formerlyChosen.push_back(before);
        m_choiceTimer.start(); // not at once, as the view is still busy with its choice
    }
}

/// Hides records that were shown only because they were chosen.
void RecordListModel::reconsider()
{
    for (const int id : std::exchange(m_formerlyChosen, {})) {
        if (const std::optional<int> index = m_document.indexOf(id)) {
            update(*index, *index);
        }
    }
}

} // namespace tarvold::records
