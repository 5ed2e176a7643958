#include "datafiles/append.h"

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

namespace tarvold {
namespace {

constexpr int kMostOpenings = 100;

/// Opens a file so that no other copy of this program writes to it until it is closed.
std::optional<QString> openAlone(QFile &file)
{
    for (int opening = 0; opening < kMostOpenings; ++opening) {
        if (!file.open(QIODevice::Append | QIODevice::Unbuffered)) {
            return file.errorString();
        }
        if (!durable::lock(file.handle())) {
            return QStringLiteral("Another program is writing to it.");
        }
        if (!durable::isRemoved(file.handle())) {
            return std::nullopt;
        }
        file.close(); // while this one waited, the other one took back the file that it had made
    }
    return QStringLiteral("Another program removes it again and again.");
}

/// Takes back what a failed append may have left. `true` when nothing of it remains.
bool takeBack(QFile &file, bool created, qint64 oldSize)
{
    // Through a link it is the file itself that was created, and the link stays.
    if (created && QFile::remove(QFileInfo(file.fileName()).canonicalFilePath())) {
        return true;
    }
    return file.resize(oldSize) && durable::syncFile(file.handle()) && !created;
}

/// Writes behind the old end, once the space for all bytes is there.
std::optional<QString> writeBehind(qint64 oldSize, QFile &file, QByteArrayView bytes)
{
    if (!durable::reserve(file.handle(), oldSize, bytes.size())) {
        return qt_error_string();
    }
    return durable::writeAndSync(file, bytes);
}

} // namespace

std::optional<FileError> appendToFile(const QString &name, QByteArrayView bytes)
{
    if (auto unfit = whyNotOrdinary(name)) {
        return unfit;
    }
    const QString path = durable::pathOf(name);
    const bool existed = QFileInfo::exists(path);
    QFile file(path);
    if (const auto failure = openAlone(file)) {
        return FileError{*failure};
    }
    const std::optional<qint64> oldSize = durable::sizeOf(file.handle());
    if (!oldSize) {
        return FileError{qt_error_string(), existed};
    }
    std::optional<QString> failure = writeBehind(*oldSize, file, bytes);
    if (!failure && !existed && !durable::syncFolderOf(path)) {
        failure = qt_error_string();
    }
    if (failure) {
        // A file that holds something was made by somebody else, whatever the look-up said.
        const bool created = !existed && *oldSize == 0;
        return FileError{*failure, takeBack(file, created, *oldSize)};
    }
    return std::nullopt;
}

} // namespace tarvold
