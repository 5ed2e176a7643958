#include "disk/read_back.h"

#include "disk/durable.h"

#include <QFile>

#include <algorithm>

namespace tarvold {
namespace {

/// Whether an open file holds bytes at a place. Nothing with the error code set on failure.
std::optional<bool> holds(int handle, qint64 place, QByteArrayView bytes)
{
    constexpr qsizetype kBlock = 65536;
    QByteArray block(std::min(kBlock, bytes.size()), Qt::Uninitialized);
    while (!bytes.isEmpty()) {
        const qsizetype wanted = std::min(block.size(), bytes.size());
        const std::optional<qint64> count = durable::readAt(handle, place, block.data(), wanted);
        if (!count) {
            return std::nullopt;
        }
        if (*count == 0 || QByteArrayView(block).first(*count) != bytes.first(*count)) {
            return false;
        }
        bytes = bytes.sliced(*count);
        place += *count;
    }
    return true;
}

/// Whether an open file holds bytes as whole lines, wherever. Nothing with the error code set on
/// failure.
std::optional<bool> holdsAnywhere(int handle, QByteArrayView lines)
{
    QFile file;
    if (!durable::rewind(handle) || !file.open(handle, QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray all = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return std::nullopt;
    }
    qsizetype at = all.indexOf(lines);
    while (at > 0 && all.at(at - 1) != '\n') {
        at = all.indexOf(lines, at + 1);
    }
    return at >= 0;
}

/// What isWritten() tells of a path that cannot be opened for reading.
std::optional<bool> isWrittenUnread(const QString &path, int handle, qint64 end)
{
    const durable::KeptError kept;
    const bool isDenied = durable::isDenied();
    const std::optional<bool> isSame = durable::meansFile(path, handle);
    if (!isSame || !*isSame) {
        return isSame;
    }
    const std::optional<qint64> size = durable::sizeOf(handle);
    return size && isDenied ? std::optional(*size >= end) : std::nullopt;
}

/// What isWritten() tells, once the path is opened for reading.
std::optional<bool> isWrittenIn(int opened, const QString &path, int handle, qint64 place,
                                QByteArrayView bytes)
{
    const std::optional<bool> isOrdinary = durable::isOrdinary(opened);
    if (!isOrdinary || !*isOrdinary) {
        return isOrdinary;
    }
    const std::optional<bool> isInPlace = holds(opened, place, bytes);
    if (!isInPlace) {
        return std::nullopt;
    }
    if (*isInPlace) {
        const std::optional<bool> isSame = durable::areSame(opened, handle);
        if (!isSame || *isSame) {
            return isSame;
        }
    } else {
        const std::optional<bool> isHeld = holdsAnywhere(opened, bytes);
        if (!isHeld || !*isHeld) {
            return isHeld;
        }
    }
    // Another program wrote them there, in a copy or in this file, and need not have synced them.
    return durable::syncFile(opened) && durable::syncFolderOf(path) ? std::optional(true)
                                                                    : std::nullopt;
}

} // namespace

std::optional<bool> isWritten(const QString &path, int handle, qint64 place, QByteArrayView bytes)
{
    const int opened = durable::openToRead(path);
    if (opened < 0) {
        return isWrittenUnread(path, handle, place + bytes.size());
    }
    const std::optional<bool> isIn = isWrittenIn(opened, path, handle, place, bytes);
    const durable::KeptError kept;
    durable::close(opened);
    return isIn;
}

} // namespace tarvold
