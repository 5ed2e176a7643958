#include "disk/read.h"

#include "disk/file.h"

#include <algorithm>
#include <functional>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMost = 1'073'741'824;

QString tooLarge()
{
    return u"It is larger than 1 GB."_s;
}

/// Reads to the end. A short read is not the end: only the next one returns 0 or the error. Some
/// virtual files of the system have the size 0 and never end.
Result<QByteArray> readToEnd(const File &file)
{
    constexpr qsizetype kLeastRoom = 4096;
    constexpr qsizetype kMostRoom = kMost + kLeastRoom;
    const qint64 size = file.size().value_or(0); // a hint; failure is ignored
    if (size > kMost) {
        return failure(tooLarge());
    }
    QByteArray bytes(size + kLeastRoom, Qt::Uninitialized);
    qsizetype length = 0;
    while (true) {
        const Result<qint64> count =
            file.readAt(length, {bytes.data() + length, std::size_t(bytes.size() - length)});
        if (!count) {
            return failure(count.error());
        }
        if (*count == 0) {
            bytes.truncate(length);
            return bytes;
        }
        length += *count;
        if (length == kMostRoom) {
            return failure(tooLarge());
        }
        if (length == bytes.size()) {
            bytes.resize(std::min(2 * length, kMostRoom));
        }
    }
}

Result<QByteArray> readFirst(const File &file, qsizetype most)
{
    if (file.size().value_or(0) > kMost) {
        return failure(tooLarge());
    }
    QByteArray bytes(most, Qt::Uninitialized);
    qsizetype length = 0;
    while (length < most) {
        const Result<qint64> count =
            file.readAt(length, {bytes.data() + length, std::size_t(most - length)});
        if (!count) {
            return failure(count.error());
        }
        if (*count == 0) {
            break;
        }
        length += *count;
    }
    bytes.truncate(length);
    return bytes;
}

using Open = Result<File> (*)(const FilePath &, File::Access);
using Read = std::function<Result<QByteArray>(const File &)>;

Result<QByteArray> readBy(Open open, const Read &read, const QString &name)
{
    return FilePath::ofOrdinary(name).and_then([&](const FilePath &path) {
        return open(path, File::Access::Read)
            .and_then(read)
            .map_error(
                [&path](const FileError &error) { return withPath(error, path, FileUse::Read); });
    });
}

} // namespace

bool fileExists(const QString &name)
{
    const Result<FilePath> path = FilePath::ofTyped(name);
    return path && path->exists();
}

// Locked, so that a record that another copy of this program is writing is not read in part.

Result<QByteArray> readFile(const QString &name)
{
    return readBy(File::openLocked, readToEnd, name);
}

Result<QByteArray> readBeginning(const QString &name, qsizetype most)
{
    return readBy(
        File::openLocked, [most](const File &file) { return readFirst(file, most); }, name);
}

Result<QByteArray> readUnlocked(const QString &name)
{
    return readBy(File::openOrdinary, readToEnd, name);
}

} // namespace tarvold
