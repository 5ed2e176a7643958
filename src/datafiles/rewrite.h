#pragma once

#include "datafiles/file_error.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvold {

/// Writes a data file anew, creating it when it is missing.
///
/// At every instant the name means either the old file or the new one, whole. When it returns no
/// error, the new bytes are on the disk; else the old file is untouched, unless the error says that
/// the new bytes are in place. A symbolic link stays one,
/// and the file keeps its mode.
/// \param name as the user typed it; a relative one starts at the current folder
[[nodiscard]] std::optional<FileError> rewriteFile(const QString &name, QByteArrayView bytes);

} // namespace tarvold
