#include "datafiles/append.h"

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

namespace tarvold {
namespace {

/// Writing to a pipe or a device would block or lose the record, so only ordinary files are opened.
std::optional<FileError> whyUnfit(const QString &name, const QFileInfo &info)
{
    if (name.isEmpty()) {
        return FileError{QStringLiteral("The file name is empty.")};
    }
    if (info.isDir()) {
        return FileError{QStringLiteral("It is a folder.")};
    }
    if (info.exists() && !info.isFile()) {
        return FileError{QStringLiteral("It is not an ordinary file.")};
    }
    return std::nullopt;
}

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
    const QString path = durable::pathOf(name);
    const QFileInfo info(path);
    if (auto unfit = whyUnfit(name, info)) {
        return unfit;
    }
    const bool existed = info.exists();
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
