// How a change reaches the entries of a document, and who hears of it.

#include "records/document.h"

#include <algorithm>
#include <utility>

namespace tarvold::records {
namespace {

/// The entries after these changes.
std::vector<Entry> applied(std::vector<Entry> entries, const std::vector<Patch> &patches)
{
    for (const Patch &patch : patches) {
        const auto place = entries.begin() + patch.row;
        if (patch.before.empty()) {
            entries.insert(place, patch.after.begin(), patch.after.end());
        } else {
            std::copy(patch.after.begin(), patch.after.end(), place);
        }
    }
    return entries;
}

} // namespace

/// Ends a record with CR LF that ends with a lone CR, if the changes bring it before one whose
/// first line is empty: the file would have one line in place of two. In a file that was read no
/// two records follow each other so, so only what the changes brought together can.
void Document::keepLinesApart(std::vector<Patch> &patches) const
{
    const std::vector<Entry> after = applied(m_entries.all(), patches);
    const auto isWritten = [&after](int row) {
        const Entry &one = after[std::size_t(row)];
        return !one.isDeleted && !one.bytes.isEmpty();
    };
    int first = int(after.size());
    int last = 0;
    for (const Patch &patch : patches) {
        first = std::min(first, patch.row);
        last = std::max(last, patch.row + int(patch.after.size()) - 1);
    }
    for (--first; first > 0 && !isWritten(first);) {
        --first;
    }
    for (++last; last < int(after.size()) && !isWritten(last);) {
        ++last;
    }
    QByteArray behind;
    for (int row = std::min(last, int(after.size()) - 1); row >= std::max(first, 0); --row) {
        if (!isWritten(row)) {
            continue;
        }
        Entry one = after[std::size_t(row)];
        if (joinsLines(one.bytes, behind)) {
            one.bytes = one.bytes + '\n';
            patches.push_back({row, {after[std::size_t(row)]}, {one}});
        }
        behind = one.bytes;
    }
}

void Document::apply(const std::vector<Patch> &patches, bool isUndo)
{
    constexpr int kMostRuns = 100; // telling of each takes time that grows with the file
    std::vector<Replacement> all;
    all.reserve(patches.size());
    if (isUndo) {
        std::for_each(patches.rbegin(), patches.rend(), [&all](const Patch &patch) {
            all.push_back({patch.row, patch.after, patch.before});
        });
    } else {
        std::for_each(patches.begin(), patches.end(), [&all](const Patch &patch) {
            all.push_back({patch.row, patch.before, patch.after});
        });
    }
    if (countRuns(all) > kMostRuns) {
        emit aboutToReset();
        std::for_each(all.begin(), all.end(), [this](const Replacement &one) { applyAtOnce(one); });
        m_entries.showAll([this](const Entry &entry) { return !isGone(entry); });
        emit reset();
        return;
    }
    std::vector<int> rows; // that change where they are shown
    for (const Replacement &one : all) {
        if (one.from.size() == one.to.size()) {
            applyInPlace(one, rows);
            continue;
        }
        tellOfChanges(std::exchange(rows, {})); // before their rows are others
        const int first = m_entries.shownBefore(one.row);
        if (one.to.empty()) {
            const int last = first + int(one.from.size()) - 1;
            emit aboutToRemove(first, last);
            m_entries.erase(one.row, int(one.from.size()));
            emit removed(first, last);
        } else {
            const int last = first + int(one.to.size()) - 1;
            emit aboutToInsert(first, last);
            m_entries.insert(one.row, one.to);
            emit inserted(first, last);
        }
    }
    tellOfChanges(std::move(rows));
}

/// How many runs of records come, go, are shown or are hidden.
int Document::countRuns(const std::vector<Replacement> &replacements) const
{
    int runs = 0;
    for (const auto &[row, from, to] : replacements) {
        if (from.size() != to.size()) {
            ++runs;
            continue;
        }
        bool wasSame = true;
        for (std::size_t place = 0; place < to.size(); ++place) {
            const bool isSame = isFateSame(from[place], to[place]);
            runs += wasSame && !isSame ? 1 : 0;
            wasSame = isSame;
        }
    }
    return runs;
}

/// Makes a change without a word of it; others may be shown then.
void Document::applyAtOnce(const Replacement &patch)
{
    std::vector<Entry> &all = m_entries.all();
    const auto place = all.begin() + patch.row;
    if (patch.from.size() == patch.to.size()) {
        std::copy(patch.to.begin(), patch.to.end(), place);
    } else if (patch.to.empty()) {
        all.erase(place, place + std::ptrdiff_t(patch.from.size()));
    } else {
        all.insert(place, patch.to.begin(), patch.to.end());
    }
}

/// A change may also show or hide what a save took from the file. That is told here.
/// \param rows gets those to be told of
void Document::applyInPlace(const Replacement &patch, std::vector<int> &rows)
{
    const auto &[row, from, to] = patch;
    for (std::size_t start = 0; start < to.size();) {
        const bool isSame = isFateSame(from[start], to[start]);
        const bool isShown = !isGone(to[start]);
        std::size_t end = start;
        for (; end < to.size() && isFateSame(from[end], to[end]) == isSame &&
               isGone(to[end]) != isShown;
             ++end) {
            if (isSame) {
                m_entries.all()[std::size_t(row) + end] = to[end];
                rows.push_back(row + int(end));
            }
        }
        if (!isSame) {
            replaceRun(row + int(start),
                       {to.begin() + std::ptrdiff_t(start), to.begin() + std::ptrdiff_t(end)},
                       isShown);
        }
        start = end;
    }
}

/// \param isShown whether these records are shown now, or hidden
void Document::replaceRun(int row, std::span<const Entry> to, bool isShown)
{
    const int size = int(to.size());
    const int first = m_entries.shownBefore(row);
    const int last = first + size - 1;
    if (isShown) {
        emit aboutToInsert(first, last);
        m_entries.show(row, size);
    } else {
        emit aboutToRemove(first, last);
        m_entries.hide(row, size);
    }
    std::copy(to.begin(), to.end(), m_entries.all().begin() + row);
    if (isShown) {
        emit inserted(first, last);
    } else {
        emit removed(first, last);
    }
}

void Document::tellOfChanges(std::vector<int> rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::vector<int> indexes;
    indexes.reserve(rows.size());
    for (const int row : rows) {
        if (!isGone(m_entries.all()[std::size_t(row)])) {
            indexes.push_back(m_entries.shownBefore(row));
        }
    }
    if (!indexes.empty()) {
        emit changed(indexes);
    }
}

} // namespace tarvold::records
