#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvold {

/// Why a data file could not be read or written.
struct FileError
{
    QString cause;         ///< in words, for the user
    bool unchanged = true; ///< the file is as it was before
    bool inPlace = false;  ///< the new bytes are all in the file, and only the disk may lack them
    bool outdated = false; ///< another program changed the file since it was read
};

/// Tells why a name means no ordinary file: it is empty, no name at all, a folder, a pipe or a
/// device. A file that is not there yet is fine.
/// \param name as the user typed it
std::optional<FileError> whyNotOrdinary(const QString &name);

} // namespace tarvold
