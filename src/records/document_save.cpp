// How a document reaches the disk.

#include "disk/append.h"
#include "disk/file.h"
#include "disk/rewrite.h"
#include "records/changes.h"
#include "records/document.h"

#include <algorithm>
#include <array>

namespace tarvold::records {
namespace {

/// Joins the bytes of entries. Those that follow each other in memory, which are nearly all, are
/// copied in one go.
QByteArray joinedBytes(const std::vector<QByteArrayView> &parts)
{
    qsizetype size = 0;
    for (const QByteArrayView part : parts) {
        size += part.size();
    }
    QByteArray bytes;
    bytes.reserve(size);
    for (auto part = parts.begin(); part != parts.end();) {
        const char *const start = part->begin();
        const char *end = part->end();
        for (++part; part != parts.end() && part->begin() == end; ++part) {
            end = part->end();
        }
        bytes.append(start, end - start);
    }
    return bytes;
}

/// The last byte of a file; nothing if it has none. A file that cannot be read is left to the
/// append, which says why.
std::optional<char> lastByteOf(const QString &name)
{
    const auto path = FilePath::ofOrdinary(name);
    const auto file = path ? File::openLocked(*path, File::Access::Read) : failure(path.error());
    const qint64 size = file ? file->size().value_or(0) : 0;
    std::array<char, 1> last{};
    const bool isRead = size > 0 && file->readAt(size - 1, last) == 1;
    return isRead ? std::optional(last.front()) : std::nullopt;
}

} // namespace

bool Document::isInFile(const Result<void> &saved)
{
    return saved || saved.error().outcome == FileOutcome::Unconfirmed;
}

Result<void> Document::save(const std::function<bool()> &mayOverwrite)
{
    constexpr int kMostGrowths = 10; // a file that grows all the time is not waited for
    const auto isRefused = [](const Result<void> &result) {
        return !result && result.error().outcome == FileOutcome::ChangedByAnother;
    };
    QByteArray bytes = joined();
    Result<void> written = rewriteFile(m_name, bytes, m_file);
    for (int growths = 0; isRefused(written) && growths < kMostGrowths && takeGrowth() > 0;
         ++growths) {
        bytes = joined();
        written = rewriteFile(m_name, bytes, m_file);
    }
    if (isRefused(written) && mayOverwrite && mayOverwrite()) {
        written = rewriteFile(m_name, bytes);
    }
    if (isInFile(written)) {
        takeOver(m_name, bytes);
    }
    return written;
}

Result<void> Document::saveAs(const QString &name)
{
    const QByteArray bytes = joined();
    Result<void> written = rewriteFile(name, bytes);
    if (isInFile(written)) {
        takeOver(name, bytes);
    }
    return written;
}

Result<void> Document::copyTo(const QString &name, const std::vector<int> &indexes) const
{
    QByteArray bytes;
    for (const int index : indexes) {
        const QByteArray record = ended(entry(index).bytes);
        bytes += joinsLines(bytes, record) ? "\n" + record : record;
    }
    if (const std::optional<char> last = lastByteOf(name)) {
        const QByteArray before(1, *last);
        bytes.prepend(!isEnded(before) ? "\r\n" : joinsLines(before, bytes) ? "\n" : "");
    }
    return appendToFile(name, bytes);
}

bool Document::isFileUnchanged() const
{
    const auto path = FilePath::ofOrdinary(m_name);
    const auto file = path ? File::openOrdinary(*path, File::Access::Read) : failure(path.error());
    return file && file->size() == m_file.size() && file->holds(0, m_file) == true;
}

QByteArray Document::joined() const
{
    std::vector<QByteArrayView> parts;
    parts.reserve(m_entries.all().size());
    for (const Entry &one : m_entries.all()) {
        if (!one.isDeleted) {
            parts.emplace_back(one.bytes);
        }
    }
    return joinedBytes(parts);
}

/// Makes bytes that are in the file now what this document knows of it.
void Document::takeOver(const QString &name, const QByteArray &bytes)
{
    constexpr std::size_t kMostRuns = 100; // telling of each takes time that grows with the file
    m_name = name;
    const std::vector<std::pair<int, int>> runs = deletedRuns();
    const bool isReset = runs.size() > kMostRuns;
    if (isReset) {
        emit aboutToReset();
        m_entries.showAll([](const Entry &one) { return !one.isDeleted; });
    } else {
        hide(runs);
    }
    rebase(bytes);
    m_moved.clear();
    m_undo.setClean();
    if (isReset) {
        emit reset();
    }
    emit saved();
}

/// The first and the last of deleted records that follow each other.
std::vector<std::pair<int, int>> Document::deletedRuns() const
{
    std::vector<std::pair<int, int>> runs;
    for (int index = 0; index < count(); ++index) {
        const bool isNext = !runs.empty() && runs.back().second == index - 1;
        if (!entry(index).isDeleted) {
            continue;
        }
        if (isNext) {
            runs.back().second = index;
        } else {
            runs.emplace_back(index, index);
        }
    }
    return runs;
}

/// Shows records no longer. Their entries stay for undo.
void Document::hide(const std::vector<std::pair<int, int>> &runs)
{
    std::for_each(runs.rbegin(), runs.rend(), [this](const std::pair<int, int> &run) {
        emit aboutToRemove(run.first, run.second);
        m_entries.hideShown(run.first, run.second);
        emit removed(run.first, run.second);
    });
}

/// Lets all entries share the bytes of the new file and nothing of the old one, whose memory is
/// free then.
void Document::rebase(const QByteArray &bytes)
{
    visitChanges([this](Entry &entry) {
        if (isPartOf(entry.bytes, m_file)) {
            entry.bytes = QByteArrayView(entry.bytes).toByteArray();
        }
    });
    std::fill(m_origins.begin(), m_origins.end(), -1);
    m_starts.clear();
    qsizetype start = 0;
    for (Entry &one : m_entries.all()) {
        if (!one.isDeleted) {
            m_origins[std::size_t(one.id)] = int(m_starts.size());
            m_starts.push_back(start);
            one.bytes = partOf(bytes, start, one.bytes.size());
            start += one.bytes.size();
        } else if (isPartOf(one.bytes, m_file)) {
            one.bytes = QByteArrayView(one.bytes).toByteArray();
        }
    }
    m_starts.push_back(start);
    m_file = bytes;
}

} // namespace tarvold::records
