#pragma once

#include "datafiles/file_error.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvold {

/// Appends whole records to a data file, creating it when it is missing.
///
/// All or nothing: when it returns no error, the bytes are on the disk; else the file has its old
/// length, or is gone again when it was created here (and if even that failed, the error says so).
/// \param name as the user typed it; a relative one starts at the current folder
[[nodiscard]] std::optional<FileError> appendToFile(const QString &name, QByteArrayView bytes);

} // namespace tarvold
