#pragma once

namespace tarvold::durable {

/// Gives a new file the owner, group, mode, access control list and other extended attributes of an
/// old one. At no instant may anybody do more with the new file than with the old one, if its mode
/// is 0600 at the start.
///
/// What only the superuser may set (the owner, a foreign group, attributes of the system) and what
/// the file system does not have is left out. Without the old group, the rights of group and others
/// are those that both had; without the old owner the file belongs to this user. An access control
/// list, an attribute that users set, or a mode that cannot be copied is a failure, and so is all
/// that fails for any other reason, such as a full disk.
/// \param from a handle of the old file, open for reading
/// \param to a handle of the new file, still empty, open for writing. Writing takes away what marks
///        a program with more rights than its user, as it does in any file.
/// \return `false` with the system's error code set on failure
[[nodiscard]] bool copyAttributes(int from, int to);

} // namespace tarvold::durable
