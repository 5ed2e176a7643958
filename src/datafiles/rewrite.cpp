#include "datafiles/rewrite.h"

#include "datafiles/durable.h"

#include <QSaveFile>

namespace tarvold {
namespace {

/// A short write carries no cause; the write of the rest does.
bool writeAll(QSaveFile &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0) {
            return false;
        }
        bytes = bytes.sliced(written);
    }
    return true;
}

} // namespace

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
    if (!writeAll(file, bytes) || !file.flush() || file.error() != QFileDevice::NoError) {
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
