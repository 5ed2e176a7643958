#include "disk/file.h"

#include "disk/retry.h"

#include <QByteArray>

#include <algorithm>
#include <chrono>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// Short, to get the lock between two saves of the other program.
#ifdef Q_OS_WIN
constexpr auto kLockPause = 1ms; // the shortest
#else
constexpr auto kLockPause = 100us;
#endif

} // namespace

FileError notOrdinary()
{
    return {u"It is not an ordinary file."_s};
}

Result<File> File::openOrdinary(const FilePath &path, Access access)
{
    Result<File> file = open(path, access);
    // If it is unknown, try: reading or writing it tells more.
    if (file && !file->isOrdinary().value_or(true)) {
        return failure(notOrdinary());
    }
    return file;
}

Result<File> File::openLocked(const FilePath &path, Access access)
{
    // Opened anew each time: while this one waits, the other one may remove or replace the file.
    return retry(kLockPause, [&path, access]() -> Result<File> {
        Result<File> file = openOrdinary(path, access);
        // A file system without locks is no reason to refuse. If it is unknown what the path
        // means, assume that it still means this file.
        if (!file || (file->lock().value_or(true) && file->isAt(path).value_or(true))) {
            return file;
        }
        return failure(
            {.cause = u"Another program is writing to it."_s, .reason = FileError::Reason::Busy});
    });
}

Result<bool> File::holds(qint64 place, QByteArrayView bytes) const
{
    constexpr qsizetype kBlock = 65536;
    QByteArray block(std::min(kBlock, bytes.size()), Qt::Uninitialized);
    while (!bytes.isEmpty()) {
        const qsizetype wanted = std::min(block.size(), bytes.size());
        const Result<qint64> count = readAt(place, {block.data(), std::size_t(wanted)});
        if (!count) {
            return failure(count.error());
        }
        if (*count == 0 || QByteArrayView(block).first(*count) != bytes.first(*count)) {
            return false;
        }
        bytes = bytes.sliced(*count);
        place += *count;
    }
    return true;
}

} // namespace tarvold
