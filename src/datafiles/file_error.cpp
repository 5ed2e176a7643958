#include "datafiles/file_error.h"

#include "datafiles/durable.h"

#include <QFileInfo>

namespace tarvold {

std::optional<FileError> whyNotOrdinary(const QString &name)
{
    if (name.isEmpty()) {
        return FileError{QStringLiteral("The file name is empty.")};
    }
    const QFileInfo info(durable::pathOf(name));
    if (info.isDir()) {
        return FileError{QStringLiteral("It is a folder.")};
    }
    if (info.exists() && !info.isFile()) {
        return FileError{QStringLiteral("It is not an ordinary file.")};
    }
    return std::nullopt;
}

} // namespace tarvold
