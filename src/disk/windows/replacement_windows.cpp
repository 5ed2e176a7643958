#include "disk/replacement.h"
#include "disk/windows/windows_file.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

namespace tarvold {
namespace {

/// The permissions of an open file (its DACL) as the system keeps them. Empty where it keeps none.
std::vector<char> permissionsOf(const File &file)
{
    const auto get = [&file](std::vector<char> &to, DWORD &size) {
        return ::GetKernelObjectSecurity(handleOf(file), DACL_SECURITY_INFORMATION, to.data(),
                                         DWORD(to.size()), &size) != FALSE;
    };
    DWORD size = 0;
    std::vector<char> permissions;
    get(permissions, size);
    permissions.resize(size);
    return size > 0 && get(permissions, size) ? permissions : std::vector<char>();
}

/// Whether some permissions were given to the file itself; most files inherit all from the folder.
bool areExplicit(std::vector<char> &permissions)
{
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    BOOL isThere = FALSE;
    BOOL isDefault = FALSE;
    PACL list = nullptr;
    if (permissions.empty() ||
        ::GetSecurityDescriptorControl(permissions.data(), &control, &revision) == FALSE ||
        ::GetSecurityDescriptorDacl(permissions.data(), &isThere, &list, &isDefault) == FALSE) {
        return false;
    }
    bool isExplicit = (control & SE_DACL_PROTECTED) != 0 || (isThere != FALSE && list == nullptr);
    for (DWORD entry = 0; list != nullptr && entry < list->AceCount; ++entry) {
        void *found = nullptr;
        isExplicit =
            isExplicit || (::GetAce(list, entry, &found) != FALSE &&
                           (static_cast<ACE_HEADER *>(found)->AceFlags & INHERITED_ACE) == 0);
    }
    return isExplicit;
}

/// Copies the old file's explicit (non-inherited) permissions. Inherited ones are not set, because
/// setting any needs more than write permission, above all on network shares.
Result<void> copyPermissions(const File &from, const File &to)
{
    std::vector<char> permissions = permissionsOf(from);
    if (!areExplicit(permissions) || permissions == permissionsOf(to)) {
        return {};
    }
    return owning(::ReOpenFile(handleOf(to), WRITE_DAC, kShared, 0))
        .and_then([&](const File &file) {
            return resultOf(::SetKernelObjectSecurity(handleOf(file), DACL_SECURITY_INFORMATION,
                                                      permissions.data()) != FALSE);
        });
}

/// The attributes of the old file that a new file has from the start.
DWORD keptAttributes(const BY_HANDLE_FILE_INFORMATION &old)
{
    constexpr DWORD kKept = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_ENCRYPTED |
                            FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED |
                            FILE_ATTRIBUTE_SYSTEM;
    return old.dwFileAttributes & kKept;
}

Result<File> create(const FilePath &path, DWORD attributes)
{
    return owning(::CreateFileW(nativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                                kShared, nullptr, CREATE_NEW, attributes | FILE_FLAG_WRITE_THROUGH,
                                nullptr));
}

/// Gives a new file the time that another was created at. Names its attributes again, because Wine
/// 10 takes none to mean that the file is no longer hidden. A hint; failure is ignored, as some
/// file systems have no such time.
void setCreationTime(const File &file, FILETIME time, DWORD attributes)
{
    FILE_BASIC_INFO information = {};
    information.CreationTime.LowPart = time.dwLowDateTime;
    information.CreationTime.HighPart = LONG(time.dwHighDateTime);
    information.FileAttributes = attributes & ~DWORD(FILE_ATTRIBUTE_ENCRYPTED); // not set this way
    ::SetFileInformationByHandle(handleOf(file), FileBasicInfo, &information, sizeof information);
}

/// Renames an open file, over another one if that is there.
/// \param isPosix whether that other one may be open
/// \return the error code of the system
DWORD rename(const File &file, const FilePath &path, bool isPosix)
{
    // FileRenameInfoEx, which the headers show only to programs for newer systems.
    constexpr auto kRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
    const std::wstring name = nativePath(path);
    std::vector<char> buffer(sizeof(FILE_RENAME_INFO) + name.size() * sizeof(wchar_t));
    auto *info = new (buffer.data()) FILE_RENAME_INFO{};
    info->FileNameLength = DWORD(name.size() * sizeof(wchar_t));
    std::copy(name.begin(), name.end(), info->FileName);
    if (isPosix) {
        info->Flags = FILE_RENAME_FLAG_REPLACE_IF_EXISTS | FILE_RENAME_FLAG_POSIX_SEMANTICS;
    } else {
        info->ReplaceIfExists = TRUE;
    }
    const bool isRenamed =
        ::SetFileInformationByHandle(handleOf(file), isPosix ? kRenameInfoEx : FileRenameInfo, info,
                                     DWORD(buffer.size())) != FALSE;
    return isRenamed ? ERROR_SUCCESS : ::GetLastError();
}

/// Whether an error code says that the system cannot do this at all, there or anywhere.
bool isUnsupported(DWORD error)
{
    switch (error) {
    case ERROR_INVALID_FUNCTION:
    case ERROR_NOT_SUPPORTED:
    case ERROR_INVALID_PARAMETER:
    case ERROR_CALL_NOT_IMPLEMENTED:
    case ERROR_INVALID_LEVEL:
        return true;
    default:
        return false;
    }
}

/// Whether an error code says by itself that another program has the file.
bool isHeld(DWORD error)
{
    switch (error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_DELETE_PENDING:
        return true;
    default:
        return false;
    }
}

/// Whether a file is open, wherever.
bool isOpen(const FilePath &path)
{
    const auto alone = owning(
        ::CreateFileW(nativePath(path).c_str(), DELETE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    return !alone && alone.error().reason == FileError::Reason::Busy;
}

} // namespace

Replacement::~Replacement()
{
    if (m_temporaryName) {
        FILE_DISPOSITION_INFO gone = {TRUE};
        ::SetFileInformationByHandle(handleOf(m_file), FileDispositionInfo, &gone, sizeof gone);
    }
}

Result<void> Replacement::write(QByteArrayView bytes)
{
    // Opened for writing because a file that may not be written may not be replaced either.
    const Result<File> old = File::open(m_path, File::Access::Write);
    if (!old && old.error().reason != FileError::Reason::Missing) {
        return failure(old.error());
    }
    const auto known = old ? informationOf(*old) : failure(old.error());
    const DWORD attributes = known ? keptAttributes(*known) : 0;
    return takeTemporaryName([&](const FilePath &name) {
               return create(name, attributes).map([this](File &&file) {
                   m_file = std::move(file);
               });
           })
        .and_then([&] {
            if (known) {
                setCreationTime(m_file, known->ftCreationTime, attributes);
            }
            return old ? copyPermissions(*old, m_file) : Result<void>();
        })
        .and_then([&] { return m_file.append(bytes); })
        .and_then([&] { return m_file.sync(); });
}

Result<void> Replacement::takeName(File &old)
{
    DWORD error = rename(m_file, m_path, true);
    if (isUnsupported(error)) {
        // This fails if another copy of this program has the old file open, and the gap keeps the
        // copy from appending to it before.
        const LockGap gap(old);
        old.close();
        error = rename(m_file, m_path, false);
    }
    if (error == ERROR_SUCCESS) {
        m_temporaryName.reset();
        return {};
    }
    FileError refusal = explained(systemError(int(error)), m_path);
    old.close(); // so that isOpen() finds only those of other programs
    const bool wasDeniedBefore = std::exchange(m_wasDenied, error == ERROR_ACCESS_DENIED);
    if (isOpen(m_path)) {
        m_wasDenied = false; // the reason is probably the open file
        return failure(heldByAnother());
    }
    // An open file may be the reason for the denial, and may be closed by now: only a second denial
    // is final.
    if (isHeld(error) || (m_wasDenied && !wasDeniedBefore)) {
        refusal.reason = FileError::Reason::Busy;
    }
    return failure(refusal);
}

Result<void> Replacement::syncName()
{
    return m_file.sync();
}

} // namespace tarvold
