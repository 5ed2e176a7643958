#include "datafiles/append.h"

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

namespace tarvold {
namespace {

/// Takes back what a failed append may have left. `true` when nothing of it remains.
bool takeBack(QFile &file, bool existed, qint64 oldSize)
{
    if (!existed) {
        // Through a link it is the file itself that was created, and the link stays.
        return QFile::remove(QFileInfo(file.fileName()).canonicalFilePath());
    }
    return file.resize(oldSize) && durable::syncFile(file.handle());
}

/// One write for all bytes, then the sync, each checked.
std::optional<QString> writeAndSync(QFile &file, QByteArrayView bytes)
{
    if (file.write(bytes.data(), bytes.size()) != bytes.size()) {
        return file.error() == QFile::NoError ? QStringLiteral("The disk is full.")
                                              : file.errorString();
    }
    if (!durable::syncFile(file.handle())) {
        return qt_error_string();
    }
    return std::nullopt;
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
    if (!file.open(QIODevice::Append | QIODevice::Unbuffered)) {
        return FileError{file.errorString()};
    }
    const qint64 oldSize = file.size();
    std::optional<QString> failure = writeAndSync(file, bytes);
    if (!failure && !existed && !durable::syncFolderOf(path)) {
        failure = qt_error_string();
    }
    if (failure) {
        return FileError{*failure, takeBack(file, existed, oldSize)};
    }
    return std::nullopt;
}

} // namespace tarvold
