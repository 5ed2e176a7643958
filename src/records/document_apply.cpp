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

void Document::apply(int row, const std::vector<Entry> &from, const std::vector<Entry> &to)
{
    if (from.size() == to.size()) {
        applyInPlace(row, to);
    } else if (to.empty()) {
        const int first = m_entries.shownBefore(row);
        const int last = first + int(from.size()) - 1;
        emit aboutToRemove(first, last);
        m_entries.erase(row, int(from.size()));
        emit removed(first, last);
    } else {
        const int first = m_entries.shownBefore(row);
        const int last = first + int(to.size()) - 1;
        emit aboutToInsert(first, last);
        m_entries.insert(row, to);
        emit inserted(first, last);
    }
}

/// A change may also show or hide what a save took from the file.
void Document::applyInPlace(int row, const std::vector<Entry> &to)
{
    const auto entryAt = [&](std::size_t place) -> Entry & {
        return m_entries.all()[std::size_t(row) + place];
    };
    const auto fateOf = [&](std::size_t place) {
        return std::pair(!isGone(entryAt(place)), !isGone(to[place]));
    };
    for (std::size_t start = 0; start < to.size();) {
        const auto fate = fateOf(start);
        std::size_t end = start + 1;
        while (end < to.size() && fateOf(end) == fate) {
            ++end;
        }
        replaceRun(row + int(start), {to.begin() + qsizetype(start), to.begin() + qsizetype(end)},
                   fate);
        start = end;
    }
}

/// \param fate whether these records were shown, and whether they are now
void Document::replaceRun(int row, std::span<const Entry> to, std::pair<bool, bool> fate)
{
    const auto [wasShown, isShown] = fate;
    const int size = int(to.size());
    const int first = m_entries.shownBefore(row);
    const int last = first + size - 1;
    if (wasShown && !isShown) {
        emit aboutToRemove(first, last);
        m_entries.hide(row, size);
    } else if (!wasShown && isShown) {
        emit aboutToInsert(first, last);
        m_entries.show(row, size);
    }
    std::copy(to.begin(), to.end(), m_entries.all().begin() + row);
    if (wasShown && isShown) {
        emit changed(first, last);
    } else if (wasShown) {
        emit removed(first, last);
    } else if (isShown) {
        emit inserted(first, last);
    }
}

} // namespace tarvold::records
