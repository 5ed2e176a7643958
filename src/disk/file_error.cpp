#include "disk/file_error.h"

#include "disk/durable.h"

namespace tarvold {

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
