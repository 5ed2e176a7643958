#include "disk/read.h"

#include "disk/file.h"

#include <algorithm>

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

} // namespace

bool fileExists(const QString &name)
{
    const Result<FilePath> path = FilePath::ofTyped(name);
    return path && path->exists();
}

Result<QByteArray> readFile(const QString &name)
{
    // Locked, so that a record that another copy of this program is writing is not read in part.
    return FilePath::ofOrdinary(name).and_then([](const FilePath &path) {
        return File::openLocked(path, File::Access::Read)
            .and_then(readToEnd)
            .map_error(
                [&path](const FileError &error) { return withPath(error, path, FileUse::Read); });
    });
}

} // namespace tarvold
