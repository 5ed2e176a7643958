#pragma once

#include "disk/file_error.h"

#include <QByteArray>
#include <QString>

namespace tarvold {

/// Whether a file of this name is there, whatever it is.
[[nodiscard]] bool fileExists(const QString &name);

/// Reads a data file whole, while no other copy of this program writes to it. Only ordinary files
/// are read, as a pipe or a device need not end, and none of more than 1 GB: some that the system
/// makes up never end either, and for a larger one there need not be the memory.
/// \param name as the user typed it; a relative one starts at the current folder
[[nodiscard]] Result<QByteArray> readFile(const QString &name);

/// The same without keeping other copies of this program from writing meanwhile, for a long time of
/// reading. What they write may be read in part, so look afterwards whether the file has changed.
[[nodiscard]] Result<QByteArray> readUnlocked(const QString &name);

/// The same as readFile() for the beginning of a file, which need not be small.
/// \param most how many bytes are read at most; fewer if the file ends before
[[nodiscard]] Result<QByteArray> readBeginning(const QString &name, qsizetype most);

} // namespace tarvold
