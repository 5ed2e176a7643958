#pragma once

#include "datafiles/file_error.h"

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

/// Reads a data file whole. Only ordinary files are read; a pipe or a device would not end.
/// \param name as the user typed it; a relative one starts at the current folder
FileContent readFile(const QString &name);

} // namespace tarvold
