#pragma once

#include <QString>

#include <optional>

namespace tarvold {

/// Why a data file could not be read or written.
struct FileError
{
    QString cause;         ///< in words, for the user
    bool unchanged = true; ///< the file is as it was before
};

/// Says of a file that its lines are not a whole number of records, and where it breaks off.
QString cutShort(qsizetype lines, int linesPerRecord);

/// Tells why a name means no ordinary file: it is empty, a folder, a pipe or a device. A file that
/// is not there yet is fine.
/// \param name as the user typed it
std::optional<FileError> whyNotOrdinary(const QString &name);

} // namespace tarvold
