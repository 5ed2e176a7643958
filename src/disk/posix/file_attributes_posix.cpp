#include "disk/file_attributes.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QtEndian>

#include <cerrno>
#include <linux/limits.h>
#include <optional>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tarvold::durable {
namespace {

constexpr char kAccessList[] = "system.posix_acl_access";
constexpr mode_t kModeBits = 07777;
constexpr mode_t kRights = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr int kBitsPerClass = 3;

/// The attribute of an access control list is a header and then entries, in little-endian order:
/// two bytes that tell for whom it is, two of rights, and four that name a user or a group.
constexpr qsizetype kHeaderSize = 4;
constexpr qsizetype kEntrySize = 8;
constexpr qsizetype kRightsOffset = 2;
enum Tag : quint16 { OwningGroup = 0x04, NamedGroup = 0x08, Mask = 0x10, Others = 0x20 };

bool isUnsupported()
{
    return errno == ENOTSUP || errno == ENOSYS;
}

/// Whether the error code says that this user may not set this owner or group. EINVAL is for one
/// that has no number in the user's namespace.
bool isForbidden()
{
    return errno == EPERM || errno == EINVAL || isUnsupported();
}

/// Sets owner and group, or the group alone, as far as this user may.
bool copyOwner(const struct stat &model, int to)
{
    struct stat state = {};
    if (::fstat(to, &state) != 0) {
        return false;
    }
    if (state.st_uid == model.st_uid && state.st_gid == model.st_gid) {
        return true;
    }
    if (::fchown(to, model.st_uid, model.st_gid) == 0) {
        return true;
    }
    constexpr auto kAsItIs = static_cast<uid_t>(-1);
    return isForbidden() && (::fchown(to, kAsItIs, model.st_gid) == 0 || isForbidden());
}

/// The value of an attribute; nothing with the error code set when it cannot be read.
std::optional<QByteArray> attributeOf(int handle, const QByteArray &name)
{
    QByteArray value(XATTR_SIZE_MAX, Qt::Uninitialized);
    const ssize_t size =
        ::fgetxattr(handle, name.constData(), value.data(), std::size_t(value.size()));
    return size >= 0 ? std::optional(value.first(size)) : std::nullopt;
}

bool setAttribute(int handle, const QByteArray &name, const QByteArray &value)
{
    return ::fsetxattr(handle, name.constData(), value.constData(), std::size_t(value.size()), 0) ==
           0;
}

/// Leaves group and others of a list only the rights that both have: the file's group is another
/// one, so its members were others before, and those of the old group are others now. A named group
/// may keep some of the new group's members out; with what the group gets they would get in.
void narrow(QByteArray &list)
{
    quint16 common = kRights;
    quint16 ofNamedGroups = kRights;
    for (qsizetype at = kHeaderSize; at + kEntrySize <= list.size(); at += kEntrySize) {
        const auto tag = qFromLittleEndian<quint16>(list.constData() + at);
        const auto rights = qFromLittleEndian<quint16>(list.constData() + at + kRightsOffset);
        if (tag == OwningGroup || tag == Mask || tag == Others) {
            common &= rights;
        } else if (tag == NamedGroup) {
            ofNamedGroups &= rights;
        }
    }
    for (qsizetype at = kHeaderSize; at + kEntrySize <= list.size(); at += kEntrySize) {
        const auto tag = qFromLittleEndian<quint16>(list.constData() + at);
        if (tag == OwningGroup || tag == Others) {
            const auto left = quint16(tag == OwningGroup ? common & ofNamedGroups : common);
            qToLittleEndian(left, list.data() + at + kRightsOffset);
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
/// file has none: after that the mode would give rights to those whom it names.
/// \return whether there is one; nothing with the error code set on failure
std::optional<bool> copyAccessList(int from, int to, bool keptGroup)
{
    std::optional<QByteArray> list = attributeOf(from, kAccessList);
    if (!list) {
        const bool isNone = errno == ENODATA
                                ? ::fremovexattr(to, kAccessList) == 0 || errno == ENODATA
                                : isUnsupported();
        return isNone ? std::optional(false) : std::nullopt;
    }
    if (!keptGroup) {
        narrow(*list);
    }
    return setAttribute(to, kAccessList, *list) ? std::optional(true) : std::nullopt;
}

/// Whether an attribute that could not be copied may be left out. Those of users and the access
/// lists of other systems are only when the file system cannot have them at all.
bool mayLack(const QByteArray &name)
{
    if (isUnsupported() || errno == ENODATA) {
        return true;
    }
    const bool isRefused = errno == EPERM || errno == EACCES || errno == EINVAL;
    const QByteArray space = name.split('.').first();
    return isRefused && space != "user" && space != "system";
}

bool copyAttribute(const QByteArray &name, int from, int to)
{
    const std::optional<QByteArray> value = attributeOf(from, name);
    if (!value) {
        return mayLack(name);
    }
    return attributeOf(to, name) == value || setAttribute(to, name, *value) || mayLack(name);
}

/// Copies all extended attributes but the access control list, and but the checksums that the
/// system itself keeps of a file's content.
bool copyOtherAttributes(int from, int to)
{
    QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
    const ssize_t size = ::flistxattr(from, names.data(), std::size_t(names.size()));
    if (size < 0) {
        return isUnsupported();
    }
    names.truncate(size);
    for (const QByteArray &name : names.split('\0')) {
        const bool isLeftOut = name.isEmpty() || name == kAccessList || name == "security.ima" ||
                               name == "security.evm";
        if (!isLeftOut && !copyAttribute(name, from, to)) {
            return false;
        }
    }
    return true;
}

/// Copies the mode, which is as the access control list has made it, if there is one.
bool copyMode(const struct stat &model, int to, bool hasList)
{
    struct stat state = {};
    if (::fstat(to, &state) != 0) {
        return false;
    }
    const bool keptGroup = state.st_gid == model.st_gid;
    mode_t mode = model.st_mode & kModeBits;
    if (hasList) {
        mode = (mode & ~kRights) | (state.st_mode & kRights);
    } else if (!keptGroup) {
        mode = narrowed(mode);
    }
    mode &= ~((state.st_uid == model.st_uid ? 0U : S_ISUID) | (keptGroup ? 0U : S_ISGID));
    // File systems without modes of their own refuse the change but need none.
    return ((mode ^ state.st_mode) & kModeBits) == 0 || ::fchmod(to, mode) == 0;
}

} // namespace

bool copyAttributes(int from, int to)
{
    struct stat model = {};
    struct stat state = {};
    // The owner goes first, for a change of it takes away some of the rest, and the mode last:
    // until the list or the mode is set, nobody else may do anything with the file.
    if (::fstat(from, &model) != 0 || !copyOwner(model, to) || ::fstat(to, &state) != 0) {
        return false;
    }
    const std::optional<bool> hasList = copyAccessList(from, to, state.st_gid == model.st_gid);
    return hasList && copyOtherAttributes(from, to) && copyMode(model, to, *hasList);
}

} // namespace tarvold::durable
