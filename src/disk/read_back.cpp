#include "disk/read_back.h"

#include <QByteArray>

#include <algorithm>

namespace tarvold {
namespace {

/// Whether a file holds these bytes as whole lines, anywhere.
Result<bool> holdsAnywhere(const File &file, QByteArrayView lines)
{
    constexpr qsizetype kLeastBlock = 65536;
    const QByteArray wanted = '\n' + lines.toByteArray(); // a line starts after another one's end
    QByteArray block(std::max(kLeastBlock, wanted.size()), Qt::Uninitialized);
    QByteArray window("\n"); // the block, and before it what may be the start of the wanted bytes
    for (qint64 place = 0;;) {
        const Result<qint64> count = file.readAt(place, {block.data(), std::size_t(block.size())});
        if (!count) {
            return failure(count.error());
        }
        if (*count == 0) {
            return false;
        }
        window += QByteArrayView(block).first(*count);
        if (window.contains(wanted)) {
            return true;
        }
        window = window.last(std::min(window.size(), wanted.size() - 1));
        place += *count;
    }
}

/// What isWritten() tells of a path that cannot be opened for reading.
Result<bool> isWrittenUnread(const FilePath &path, const File &written, qint64 end,
                             const FileError &refusal)
{
    Result<bool> isSame = written.isAt(path);
    if (isSame == false) {
        return false;
    }
    const Result<qint64> size = written.size();
    const bool isDenied = refusal.reason == FileError::Reason::Denied;
    return isSame && size && isDenied ? Result<bool>(*size >= end) : failure(refusal);
}

/// What isWritten() tells, once the path is opened for reading.
Result<bool> isWrittenIn(File &found, const FilePath &path, const File &written, qint64 place,
                         QByteArrayView lines)
{
    Result<bool> isOrdinary = found.isOrdinary();
    if (isOrdinary != true) {
        return isOrdinary;
    }
    Result<bool> isInPlace = found.holds(place, lines);
    if (!isInPlace) {
        return isInPlace;
    }
    if (*isInPlace) {
        Result<bool> isSame = found.isSame(written);
        if (isSame != false) {
            return isSame;
        }
    } else {
        Result<bool> isHeld = holdsAnywhere(found, lines);
        if (isHeld != true) {
            return isHeld;
        }
    }
    // Another program wrote them there, in a copy or in this file, and need not have synced them.
    return found.sync().and_then([&path] { return path.syncFolder(); }).map([] { return true; });
}

} // namespace

Result<bool> isWritten(const FilePath &path, const File &written, qint64 place,
                       QByteArrayView lines)
{
    Result<File> found = File::open(path, File::Access::Read);
    return found ? isWrittenIn(*found, path, written, place, lines)
                 : isWrittenUnread(path, written, place + lines.size(), found.error());
}

} // namespace tarvold
