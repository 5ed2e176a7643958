#pragma once

#include "disk/file_error.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvold {

/// What reading a file gives: all its bytes, or why it could not be read.
struct FileContent
{
    QByteArray bytes;
    std::optional<FileError> error;
};

/// Whether a file of this name is there, whatever it is.
bool fileExists(const QString &name);

/// Reads a data file whole, while no other copy of this program writes to it. Only ordinary files
/// are read, as a pipe or a device need not end, and none of more than 1 GB: some that the system
/// makes up never end either, and for a larger one there need not be the memory.
/// \param name as the user typed it; a relative one starts at the current folder
FileContent readFile(const QString &name);

} // namespace tarvold
