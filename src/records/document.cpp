#include "records/document.h"

#include "disk/read.h"
#include "records/changes.h"

#include <algorithm>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// The name of a change of some records.
QString naming(const QString &what, const std::vector<int> &indexes)
{
    return indexes.size() == 1 ? u"%1 Record %2"_s.arg(what).arg(indexes.front() + 1)
                               : u"%1 %2 Records"_s.arg(what).arg(indexes.size());
}

/// Adds an entry that is replaced by another one in its row.
void add(std::vector<Patch> &patches, int row, const Entry &before, const Entry &after)
{
    if (patches.empty() || patches.back().row + int(patches.back().before.size()) != row) {
        patches.push_back({row, {}, {}});
    }
    patches.back().before.push_back(before);
    patches.back().after.push_back(after);
}

} // namespace

Document::Document(QObject *parent) : QObject(parent) {}

Result<void> Document::open(const QString &name, DataFileKind kind, const Progress &progress)
{
    const Result<QByteArray> bytes = readFile(name);
    return bytes ? show(name, *bytes, kind, progress) : failure(bytes.error());
}

Result<void> Document::take(const QString &name, const QByteArray &bytes, DataFileKind kind,
                            const Progress &progress)
{
    return show(name, bytes, kind, progress);
}

Result<void> Document::reload()
{
    return open(m_name, m_kind);
}

Result<void> Document::show(const QString &name, const QByteArray &bytes, DataFileKind kind,
                            const Progress &progress)
{
    std::optional<std::vector<qsizetype>> starts =
        splitIntoRecords(bytes, Catalog::of(kind), progress);
    if (!starts) {
        return failure(u"Reading it was stopped."_s);
    }
    take(name, bytes, kind, std::move(*starts));
    return {};
}

void Document::take(const QString &name, const QByteArray &bytes, DataFileKind kind,
                    std::vector<qsizetype> starts)
{
    show(name, bytes, kind, std::move(starts), false);
}

void Document::takeBeginning(const QString &name, const QByteArray &bytes, DataFileKind kind)
{
    // Without a callback nothing stops it.
    show(name, bytes, kind, splitIntoRecords(bytes, Catalog::of(kind)).value(), true);
}

void Document::show(const QString &name, const QByteArray &bytes, DataFileKind kind,
                    std::vector<qsizetype> starts, bool isBeginning)
{
    const std::size_t count = starts.size();
    starts.push_back(bytes.size());
    std::vector<Entry> entries(count);
    std::vector<int> origins(count);
    for (std::size_t number = 0; number < count; ++number) {
        const qsizetype start = starts[number];
        origins[number] = int(number);
        entries[number] = {partOf(bytes, start, starts[number + 1] - start), int(number)};
    }
    emit aboutToReset();
    m_isBeginning = isBeginning;
    ++m_loads;
    m_undo.clear();
    m_moved.clear();
    m_name = name;
    m_kind = kind;
    m_file = bytes;
    m_starts = std::move(starts);
    m_origins = std::move(origins);
    m_entries.reset(std::move(entries));
    emit reset();
}

std::optional<int> Document::indexOf(int id) const
{
    for (int index = 0; index < count(); ++index) {
        if (entry(index).id == id) {
            return index;
        }
    }
    return {};
}

std::optional<int> Document::indexFrom(int id) const
{
    const std::vector<Entry> &all = m_entries.all();
    const auto found =
        std::find_if(all.begin(), all.end(), [id](const Entry &entry) { return entry.id == id; });
    if (found == all.end() || count() == 0) {
        return {};
    }
    return std::min(m_entries.shownBefore(int(found - all.begin())), count() - 1);
}

std::vector<int> Document::indexesById() const
{
    std::vector<int> indexes(m_origins.size(), -1);
    for (int index = 0; index < count(); ++index) {
        indexes[std::size_t(entry(index).id)] = index;
    }
    return indexes;
}

EntryState Document::stateOf(int index) const
{
    const Entry &shown = entry(index);
    const int origin = originOf(shown.id);
    if (shown.isDeleted) {
        return EntryState::Deleted;
    }
    if (origin < 0) {
        return EntryState::Added;
    }
    const QByteArrayView old = original(origin);
    const bool isShared = shown.bytes.constData() == old.data() && shown.bytes.size() == old.size();
    if (!isShared && shown.bytes != old) {
        return EntryState::Edited;
    }
    const bool isMoved = m_moved.contains(shown.id) && isOutOfPlace(index);
    return isMoved ? EntryState::Moved : EntryState::Unchanged;
}

QByteArrayView Document::original(int origin) const
{
    const auto place = static_cast<std::size_t>(origin);
    return QByteArrayView(m_file).sliced(m_starts[place], m_starts[place + 1] - m_starts[place]);
}

bool Document::isOutOfPlace(int index) const
{
    const int origin = originOf(entry(index).id);
    for (int other = 0; other < count(); ++other) {
        const int otherOrigin = originOf(entry(other).id);
        const bool isInFile = otherOrigin >= 0 && !entry(other).isDeleted;
        if (isInFile && (other < index) != (otherOrigin < origin) && other != index) {
            return true;
        }
    }
    return false;
}

int Document::last() const
{
    int index = count() - 1;
    while (index >= 0 && entry(index).isDeleted) {
        --index;
    }
    return index;
}

void Document::push(std::vector<Patch> patches, const QString &what, int moved)
{
    if (!patches.empty() && !m_isBeginning) {
        keepLinesApart(patches);
        m_undo.push(new Change(*this, std::move(patches), what, moved));
    }
}

void Document::replace(int index, const QByteArray &bytes, const QString &what)
{
    replace({{index, bytes}}, what);
}

void Document::replace(const std::vector<std::pair<int, QByteArray>> &records, const QString &what)
{
    std::vector<std::pair<int, QByteArray>> sorted = records;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto &one, const auto &other) { return one.first < other.first; });
    const int lastRow = int(m_entries.all().size()) - 1;
    std::vector<Patch> patches;
    for (const auto &[index, bytes] : sorted) {
        const int row = m_entries.rowOf(index);
        const Entry &before = entry(index);
        Entry after = before;
        after.bytes = row == lastRow ? bytes : ended(bytes);
        if (after.bytes != before.bytes) {
            add(patches, row, before, after);
        }
    }
    push(std::move(patches), what);
}

void Document::remove(const std::vector<int> &indexes)
{
    setDeleted(indexes, true, u"Delete"_s);
}

void Document::restore(const std::vector<int> &indexes)
{
    setDeleted(indexes, false, u"Restore"_s);
}

void Document::setDeleted(const std::vector<int> &indexes, bool isDeleted, const QString &what)
{
    std::vector<int> sorted = indexes;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    std::erase_if(sorted, [&](int index) { return entry(index).isDeleted == isDeleted; });
    std::vector<Patch> patches;
    for (const int index : sorted) {
        Entry after = entry(index);
        after.isDeleted = isDeleted;
        add(patches, m_entries.rowOf(index), entry(index), after);
    }
    push(std::move(patches), naming(what, sorted));
}

void Document::duplicate(int index)
{
    const int row = m_entries.rowOf(index);
    Entry original = entry(index);
    original.bytes = ended(original.bytes);
    const Entry copy = {original.bytes, int(m_origins.size())};
    std::vector<Patch> patches;
    if (original.bytes != entry(index).bytes) {
        patches.push_back({row, {entry(index)}, {original}});
    }
    patches.push_back({row + 1, {}, {copy}});
    m_origins.push_back(-1);
    push(std::move(patches), naming(u"Duplicate"_s, {index}));
}

void Document::move(int index, int by)
{
    const int to = index + by;
    if (std::abs(by) != 1 || to < 0 || to >= count()) {
        return;
    }
    const int first = m_entries.rowOf(std::min(index, to));
    const int last = m_entries.rowOf(std::max(index, to));
    const auto start = m_entries.all().cbegin();
    Patch patch{first, {start + first, start + last + 1}, {start + first, start + last + 1}};
    std::swap(patch.after.front(), patch.after.back());
    patch.after.front().bytes = ended(patch.after.front().bytes);
    const QString what = by < 0 ? u"Move Record %1 Up"_s : u"Move Record %1 Down"_s;
    push({patch}, what.arg(index + 1), entry(index).id);
}

/// A record that was moved and came back is in its place, so nothing need be forgotten.
void Document::noteMove(int id)
{
    if (id >= 0) {
        m_moved.insert(id);
    }
}

} // namespace tarvold::records
