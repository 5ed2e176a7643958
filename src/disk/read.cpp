#include "disk/read.h"

#include "disk/file.h"

#include <algorithm>
#include <functional>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// Reads to the end. A short read is not the end: only the next one returns 0 or the error. Some
/// virtual files of the system have the size 0 and never end.
Result<QByteArray> readToEnd(const File &file)
{
    constexpr qsizetype kLeastRoom = 4096;
    constexpr qsizetype kMostRoom = 1'073'741'824 + kLeastRoom;
    const auto tooLarge = u"It is larger than 1 GB."_s;
    const qint64 size = file.size().value_or(0); // a hint; failure is ignored
    if (size > kMostRoom - kLeastRoom) {
        return failure(tooLarge);
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
            return failure(tooLarge);
        }
        if (length == bytes.size()) {
            bytes.resize(std::min(2 * length, kMostRoom));
        }
    }
}

Result<QByteArray> readFirst(const File &file, qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    qsizetype length = 0;
    while (length < size) {
        const Result<qint64> count =
            file.readAt(length, {bytes.data() + length, std::size_t(size - length)});
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

/// Locked, so that a record that another copy of this program is writing is not read in part.
Result<QByteArray> readLocked(const QString &name,
                              const std::function<Result<QByteArray>(const File &)> &read)
{
    return FilePath::ofOrdinary(name).and_then([&read](const FilePath &path) {
        return File::openLocked(path, File::Access::Read)
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

Result<QByteArray> readFile(const QString &name)
{
    return readLocked(name, readToEnd);
}

Result<QByteArray> readBeginning(const QString &name, qsizetype size)
{
    return readLocked(name, [size](const File &file) { return readFirst(file, size); });
}

} // namespace tarvold
