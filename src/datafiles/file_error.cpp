#include "datafiles/file_error.h"

#include "datafiles/durable.h"
#include "datafiles/record.h"

namespace tarvold {

std::optional<FileError> whyNotWhole(QByteArrayView bytes, qsizetype lines, int linesPerRecord,
                                     const QString &record)
{
    if (lines % linesPerRecord == 0) {
        return std::nullopt;
    }
    if (bytes.contains('\r') && !bytes.contains('\n')) {
        return FileError{QStringLiteral("Its lines end with CR alone, not with CR LF.")};
    }
    if (bytes.contains('\n') && !bytes.contains(kLineEnd)) {
        return FileError{QStringLiteral("Its lines do not end with CR LF.")};
    }
    return FileError{QStringLiteral("It breaks off at line %1, inside %2 %3: each %2 takes %4 "
                                    "lines (lines found: %1).")
                         .arg(QString::number(lines), record,
                              QString::number(lines / linesPerRecord + 1),
                              QString::number(linesPerRecord))};
}

std::optional<FileError> whyNotOrdinary(const QString &name)
{
    if (name.isEmpty()) {
        return FileError{QStringLiteral("The file name is empty.")};
    }
    if (!durable::canBeName(name)) {
        return FileError{QStringLiteral("The file name holds a character that no file name can "
                                        "have.")};
    }
    const durable::Kind kind = durable::kindOf(durable::pathOf(name));
    if (kind == durable::Kind::Folder) {
        return FileError{QStringLiteral("It is a folder.")};
    }
    if (kind == durable::Kind::Other) {
        return FileError{QStringLiteral("It is not an ordinary file.")};
    }
    return std::nullopt;
}

} // namespace tarvold
