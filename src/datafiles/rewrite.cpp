#include "datafiles/rewrite.h"

#include "datafiles/durable.h"

#include <QSaveFile>

namespace tarvold {

std::optional<FileError> rewriteFile(const QString &name, QByteArrayView bytes)
{
    if (auto unfit = whyNotOrdinary(name)) {
        return unfit;
    }
    // Followed here, because the toolkit takes a link that it cannot look up for a plain file.
    const std::optional<QString> path = durable::realPathOf(durable::pathOf(name));
    if (!path) {
        return FileError{qt_error_string()};
    }
    QSaveFile file(*path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return FileError{file.errorString()};
    }
    if (!durable::takeModeOf(*path, file.handle())) {
        return FileError{qt_error_string()};
    }
    // commit() alone would report success after losing what a full disk did not take.
    if (const auto failure = durable::writeAndSync(file, bytes)) {
        return FileError{*failure};
    }
    if (!file.commit()) {
        return FileError{file.errorString()};
    }
    if (!durable::syncFolderOf(*path)) {
        return FileError{qt_error_string(), false, true};
    }
    return std::nullopt;
}

} // namespace tarvold
