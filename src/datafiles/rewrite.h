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
/// the new bytes are in place. A symbolic link stays one, and the file keeps its mode. Other copies
/// of this program neither append to the file nor rewrite it meanwhile.
/// \param name as the user typed it; a relative one starts at the current folder
/// \param known what the file held when it was last read or written. When it holds anything else,
///        another program changed it: it is left as it is, and the error says `outdated`. A file
///        that is gone has nothing to lose and is made anew. This is looked at in the last moment,
///        when the new file is written and only has to take the name. Without it, whatever is there
///        goes.
[[nodiscard]] std::optional<FileError> rewriteFile(const QString &name, QByteArrayView bytes,
                                                   std::optional<QByteArrayView> known = {});

} // namespace tarvold
