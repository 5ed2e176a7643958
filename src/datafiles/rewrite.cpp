#include "datafiles/rewrite.h"

#include "datafiles/durable.h"

#include <QSaveFile>

namespace tarvold {

std::optional<FileError> rewriteFile(const QString &name, QByteArrayView bytes)
{
    if (auto unfit = whyNotOrdinary(name)) {
        return unfit;
    }
    const QString path = durable::pathOf(name);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return FileError{file.errorString()};
    }
    // commit() alone would report success after losing what a full disk did not take.
    if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush() ||
        file.error() != QFileDevice::NoError) {
        return FileError{file.errorString()};
    }
    if (!durable::syncFile(file.handle())) {
        return FileError{qt_error_string()};
    }
    if (!file.commit()) {
        return FileError{file.errorString()};
    }
    if (!durable::syncFolderOf(path)) {
        return FileError{qt_error_string(), false};
    }
    return std::nullopt;
}

} // namespace tarvold
