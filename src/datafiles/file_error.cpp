#include "datafiles/file_error.h"

#include "datafiles/durable.h"

#include <QFileInfo>

namespace tarvold {

QString cutShort(qsizetype lines, int linesPerRecord)
{
    return QStringLiteral("It breaks off at line %1, inside record %2: each record takes %3 lines.")
        .arg(lines)
        .arg(lines / linesPerRecord + 1)
        .arg(linesPerRecord);
}

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
