#pragma once

#include "disk/file.h"

#include <QByteArray>

/// Files and paths as POSIX calls take them.
namespace tarvold {

/// The descriptor of an open file.
inline int descriptorOf(const File &file)
{
    return int(file.handle());
}

/// A path in the encoding of file names.
QByteArray nativePath(const FilePath &path);

/// The folder of a file, as a native path.
QByteArray folderOf(const FilePath &path);

/// Gives a new file the owner, group, mode, access control list and other extended attributes of an
/// old one. At no instant may anybody do more with the new file than with the old one, if its mode
/// is 0600 at the start.
///
/// What only the superuser may set (the owner, a foreign group, attributes of the system) and what
/// the file system does not support is left out. Without the old group, the permissions of group
/// and others are those that both had; without the old owner the file belongs to this user. An
/// access control list, an attribute that users set, or a mode that cannot be copied is a failure,
/// and so is all that fails for any other reason, such as a full disk.
/// \param to still empty, open for writing. Writing clears the set-user-ID and set-group-ID bits,
///        as it does in any file.
[[nodiscard]] Result<void> copyAttributes(const File &from, const File &to);

} // namespace tarvold
