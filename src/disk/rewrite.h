#pragma once

#include "disk/file_error.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvold {

/// Writes a data file anew, creating it when it is missing.
///
/// At every instant the name means either the old file or the new one, whole. When it
/// succeeds, the new bytes are on the disk; else the old file is untouched, unless the error says
/// `Unconfirmed`. Other copies of this program neither append to the file nor rewrite
/// it meanwhile.
///
/// A symbolic link stays one. The file keeps its rights: on Linux owner, group, mode, access
/// control list and other extended attributes as far as this user may set them, see
/// copyAttributes(). At no instant may anybody do more with the new file than with the old one; if
/// a list cannot be kept, that is a failure. It is a new file all the same: another hard link keeps
/// the old content.
/// \param name as the user typed it; a relative one starts at the current folder
/// \param known what the file held when it was last read or written. When it holds anything else,
///        another program changed it: it is left as it is, and the error says `ChangedByAnother`. A
///        file that is gone has nothing to lose and is made anew. This is looked at in the last
///        moment, when the new file is written and only has to take the name. Without it, whatever
///        is there goes.
[[nodiscard]] Result<void> rewriteFile(const QString &name, QByteArrayView bytes,
                                       std::optional<QByteArrayView> known = {});

} // namespace tarvold
