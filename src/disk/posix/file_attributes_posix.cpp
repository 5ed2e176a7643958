#include "disk/posix/posix_file.h"

#include <QByteArrayList>
#include <QtEndian>

#include <cerrno>
#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tarvold {
namespace {

constexpr char kAccessList[] = "system.posix_acl_access";
constexpr mode_t kModeBits = 07777;
constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr int kBitsPerClass = 3;

/// The attribute of an access control list is a header and then entries, in little-endian order:
/// two bytes that tell for whom it is, two of permissions, and four that name a user or a group.
constexpr qsizetype kHeaderSize = 4;
constexpr qsizetype kEntrySize = 8;
constexpr qsizetype kPermissionsOffset = 2;
enum Tag : quint16 { OwningGroup = 0x04, NamedGroup = 0x08, Mask = 0x10, Others = 0x20 };

/// A value, or the error code of the system call that failed.
template <typename Value>
using CallResult = tl::expected<Value, int>;

CallResult<void> callResult(bool succeeded)
{
    return succeeded ? CallResult<void>() : tl::unexpected(errno);
}

bool isUnsupported(int error)
{
    return error == ENOTSUP || error == ENOSYS;
}

/// Whether an error code says that this user may not set this owner or group. EINVAL is for one
/// that has no number in the user's namespace.
bool isForbidden(int error)
{
    return error == EPERM || error == EINVAL || isUnsupported(error);
}

CallResult<struct stat> stateOf(int handle)
{
    struct stat state = {};
    return callResult(::fstat(handle, &state) == 0).map([&state] { return state; });
}

/// Sets owner and group, or the group alone, as far as this user may.
CallResult<void> copyOwner(const struct stat &model, const struct stat &state, int to)
{
    constexpr auto kAsItIs = static_cast<uid_t>(-1);
    const bool isSame = state.st_uid == model.st_uid && state.st_gid == model.st_gid;
    return callResult(
        isSame || ::fchown(to, model.st_uid, model.st_gid) == 0 ||
        (isForbidden(errno) && (::fchown(to, kAsItIs, model.st_gid) == 0 || isForbidden(errno))));
}

CallResult<QByteArray> attributeOf(int handle, const QByteArray &name)
{
    QByteArray value(XATTR_SIZE_MAX, Qt::Uninitialized);
    const ssize_t size =
        ::fgetxattr(handle, name.constData(), value.data(), std::size_t(value.size()));
    return callResult(size >= 0).map([&] { return value.first(size); });
}

CallResult<void> setAttribute(int handle, const QByteArray &name, const QByteArray &value)
{
    return callResult(::fsetxattr(handle, name.constData(), value.constData(),
                                  std::size_t(value.size()), 0) == 0);
}

/// Leaves group and others of a list only the permissions that both have: the file's group is
/// another one, so its members were others before, and those of the old group are others now. A
/// named group may keep some of the new group's members out; with what the group gets they would
/// get in.
void narrow(QByteArray &list)
{
    quint16 common = kPermissions;
    quint16 ofNamedGroups = kPermissions;
    for (qsizetype at = kHeaderSize; at + kEntrySize <= list.size(); at += kEntrySize) {
        const auto tag = qFromLittleEndian<quint16>(list.constData() + at);
        const auto permissions =
            qFromLittleEndian<quint16>(list.constData() + at + kPermissionsOffset);
        if (tag == OwningGroup || tag == Mask || tag == Others) {
            common &= permissions;
        } else if (tag == NamedGroup) {
            ofNamedGroups &= permissions;
        }
    }
    for (qsizetype at = kHeaderSize; at + kEntrySize <= list.size(); at += kEntrySize) {
        const auto tag = qFromLittleEndian<quint16>(list.constData() + at);
        if (tag == OwningGroup || tag == Others) {
            const auto left = quint16(tag == OwningGroup ? common & ofNamedGroups : common);
            qToLittleEndian(left, list.data() + at + kPermissionsOffset);
        }
    }
}

/// The same for a mode without a list.
mode_t narrowed(mode_t mode)
{
    const mode_t common = (mode >> kBitsPerClass) & mode & S_IRWXO;
    constexpr mode_t kNarrowed = S_IRWXG | S_IRWXO;
    return (mode & ~kNarrowed) | (common << kBitsPerClass) | common;
}

/// Copies the access control list. The new file may have one from its folder, which goes if the old
/// file has none: after that the mode would give permissions to those whom it names.
/// \return whether there is one
CallResult<bool> copyAccessList(int from, int to, bool keptGroup)
{
    CallResult<QByteArray> list = attributeOf(from, kAccessList);
    if (list) {
        if (!keptGroup) {
            narrow(*list);
        }
        return setAttribute(to, kAccessList, *list).map([] { return true; });
    }
    if (isUnsupported(list.error())) {
        return false;
    }
    if (list.error() != ENODATA) {
        return tl::unexpected(list.error());
    }
    return callResult(::fremovexattr(to, kAccessList) == 0 || errno == ENODATA).map([] {
        return false;
    });
}

/// Whether an attribute that could not be copied may be left out. Those of users and the access
/// lists of other systems are only when the file system cannot have them at all.
bool mayLack(const QByteArray &name, int error)
{
    if (isUnsupported(error) || error == ENODATA) {
        return true;
    }
    const bool isRefused = error == EPERM || error == EACCES || error == EINVAL;
    const QByteArray space = name.split('.').first();
    return isRefused && space != "user" && space != "system";
}

CallResult<void> copyAttribute(const QByteArray &name, int from, int to)
{
    return attributeOf(from, name)
        .and_then([&](const QByteArray &value) -> CallResult<void> {
            return attributeOf(to, name) == value ? CallResult<void>()
                                                  : setAttribute(to, name, value);
        })
        .or_else([&name](int error) -> CallResult<void> {
            return mayLack(name, error) ? CallResult<void>() : tl::unexpected(error);
        });
}

/// Copies all extended attributes but the access control list, and but the checksums that the
/// system itself keeps of a file's content.
CallResult<void> copyOtherAttributes(int from, int to)
{
    QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
    const ssize_t size = ::flistxattr(from, names.data(), std::size_t(names.size()));
    if (size < 0) {
        return callResult(isUnsupported(errno));
    }
    names.truncate(size);
    for (const QByteArray &name : names.split('\0')) {
        const bool isLeftOut = name.isEmpty() || name == kAccessList || name == "security.ima" ||
                               name == "security.evm";
        const auto copied = isLeftOut ? CallResult<void>() : copyAttribute(name, from, to);
        if (!copied) {
            return copied;
        }
    }
    return {};
}

/// Copies the mode, which is as the access control list has made it, if there is one.
CallResult<void> copyMode(const struct stat &model, const struct stat &state, int to, bool hasList)
{
    const bool keptGroup = state.st_gid == model.st_gid;
    mode_t mode = model.st_mode & kModeBits;
    if (hasList) {
        mode = (mode & ~kPermissions) | (state.st_mode & kPermissions);
    } else if (!keptGroup) {
        mode = narrowed(mode);
    }
    mode &= ~((state.st_uid == model.st_uid ? 0U : S_ISUID) | (keptGroup ? 0U : S_ISGID));
    // File systems without modes of their own refuse the change but need none.
    return callResult(((mode ^ state.st_mode) & kModeBits) == 0 || ::fchmod(to, mode) == 0);
}

CallResult<void> copyAll(const struct stat &model, int from, int to)
{
    // The owner goes first, for a change of it takes away some of the rest, and the mode last:
    // until the list or the mode is set, nobody else may do anything with the file.
    bool hasList = false;
    return stateOf(to)
        .and_then([&](const struct stat &state) { return copyOwner(model, state, to); })
        .and_then([&] { return stateOf(to); })
        .and_then([&](const struct stat &state) {
            return copyAccessList(from, to, state.st_gid == model.st_gid);
        })
        .map([&hasList](bool isThere) { hasList = isThere; })
        .and_then([&] { return copyOtherAttributes(from, to); })
        .and_then([&] { return stateOf(to); })
        .and_then([&](const struct stat &state) { return copyMode(model, state, to, hasList); });
}

} // namespace

Result<void> copyAttributes(const File &from, const File &to)
{
    const int old = descriptorOf(from);
    return stateOf(old)
        .and_then([&](const struct stat &model) { return copyAll(model, old, descriptorOf(to)); })
        .map_error([](int code) { return systemError(code); });
}

} // namespace tarvold
