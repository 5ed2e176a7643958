#pragma once

#include "disk/file_error.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvold {

/// Replaces the content of a data file, creating the file when it is missing.
///
/// Atomic: at every instant the name means either the old file or the new one, whole. On success,
/// the new bytes are on the disk; on failure, the old file is untouched, unless the error says
/// `Unconfirmed`. Other copies of this program neither append to the file nor rewrite it meanwhile.
///
/// A symbolic link stays one. The file keeps its permissions: on Linux owner, group, mode, access
/// control list and other extended attributes as far as this user may set them, see
/// copyAttributes(). At no instant may anybody do more with the new file than with the old one; an
/// access control list that cannot be kept is a failure. It is a new file all the same: other hard
/// links keep the old content.
/// \param name as the user typed it; a relative one starts at the current folder
/// \param known what the file held when it was last read or written. If it holds anything else,
///        another program changed it: it stays as it is, and the error says `ChangedByAnother`. A
///        file that is gone is created again. This is checked at the last moment, when the new file
///        is written and only the rename is left. Without `known`, any content is replaced.
[[nodiscard]] Result<void> rewriteFile(const QString &name, QByteArrayView bytes,
                                       std::optional<QByteArrayView> known = {});

} // namespace tarvold
