#include "disk/durable.h"
#include "disk/lock_gap.h"
#include "disk/replacement.h"
#include "disk/windows/windows_file.h"

#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

namespace tarvold::durable {
namespace {

/// Who may do what with an open file, as the system keeps it. Empty where it keeps none.
std::vector<char> rightsOf(HANDLE handle)
{
    DWORD size = 0;
    ::GetKernelObjectSecurity(handle, DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<char> rights(size);
    const bool isKnown = size > 0 && ::GetKernelObjectSecurity(handle, DACL_SECURITY_INFORMATION,
                                                               rights.data(), size, &size) != FALSE;
    return isKnown ? rights : std::vector<char>();
}

/// Whether somebody gave a file rights of its own; most have those of their folder.
bool areOwn(std::vector<char> &rights)
{
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    BOOL isThere = FALSE;
    BOOL isDefault = FALSE;
    PACL list = nullptr;
    if (rights.empty() ||
        ::GetSecurityDescriptorControl(rights.data(), &control, &revision) == FALSE ||
        ::GetSecurityDescriptorDacl(rights.data(), &isThere, &list, &isDefault) == FALSE) {
        return false;
    }
    bool isOwn = (control & SE_DACL_PROTECTED) != 0 || (isThere != FALSE && list == nullptr);
    for (DWORD entry = 0; list != nullptr && entry < list->AceCount; ++entry) {
        void *found = nullptr;
        isOwn = isOwn || (::GetAce(list, entry, &found) != FALSE &&
                          (static_cast<ACE_HEADER *>(found)->AceFlags & INHERITED_ACE) == 0);
    }
    return isOwn;
}

/// Gives a new file the rights of the old one that it has not from its folder. To set any takes
/// more rights than to write, on a share above all.
bool takeRights(const SystemHandle &from, HANDLE to)
{
    std::vector<char> rights = rightsOf(from.get());
    if (!areOwn(rights) || rights == rightsOf(to)) {
        return true;
    }
    const SystemHandle owned(::ReOpenFile(to, WRITE_DAC, kShared, 0));
    return owned && ::SetKernelObjectSecurity(owned.get(), DACL_SECURITY_INFORMATION,
                                              rights.data()) != FALSE;
}

/// What a new file has of the old one from the start.
DWORD attributesOf(const BY_HANDLE_FILE_INFORMATION &old)
{
    constexpr DWORD kKept = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_ENCRYPTED |
                            FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED |
                            FILE_ATTRIBUTE_SYSTEM;
    return old.dwFileAttributes & kKept;
}

/// Makes a file of a new name beside another one.
SystemHandle createBeside(const QString &path, DWORD attributes)
{
    constexpr int kMostTries = 100;
    HANDLE handle = INVALID_HANDLE_VALUE;
    for (int count = 0; handle == INVALID_HANDLE_VALUE && count < kMostTries; ++count) {
        const QString number = QString::number(QRandomGenerator::global()->generate(), 36);
        const std::wstring native = nativePath(path + u'.' + number);
        handle = ::CreateFileW(native.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, kShared,
                               nullptr, CREATE_NEW, attributes | FILE_FLAG_WRITE_THROUGH, nullptr);
        if (::GetLastError() != ERROR_FILE_EXISTS) {
            break;
        }
    }
    return SystemHandle(handle);
}

/// Renames an open file, over another one if that is there.
/// \param isPosix whether that other one may be open
bool rename(HANDLE handle, const QString &path, bool isPosix)
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
    return ::SetFileInformationByHandle(handle, isPosix ? kRenameInfoEx : FileRenameInfo, info,
                                        DWORD(buffer.size())) != FALSE;
}

/// Whether the system's error code says that it cannot do this at all, there or anywhere.
bool isUnknownCall()
{
    switch (::GetLastError()) {
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

/// Whether the system's error code says by itself that another program has the file.
bool mayPass()
{
    switch (::GetLastError()) {
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
bool isOpen(const QString &path)
{
    const KeptError kept;
    const SystemHandle alone(
        ::CreateFileW(nativePath(path).c_str(), DELETE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    return !alone && ::GetLastError() == ERROR_SHARING_VIOLATION;
}

} // namespace

struct Replacement::Parts
{
    QString path;
    QFile file;
    bool hasName = false;
    bool wasDenied = false; ///< the name, and by no program that has the old file open
};

Replacement::Replacement(const QString &path) : m_parts(new Parts{.path = path, .file = {}}) {}

Replacement::~Replacement()
{
    if (m_parts->file.isOpen() && !m_parts->hasName) {
        FILE_DISPOSITION_INFO gone = {TRUE};
        ::SetFileInformationByHandle(handleOf(m_parts->file.handle()), FileDispositionInfo, &gone,
                                     sizeof gone);
    }
}

std::optional<QString> Replacement::write(QByteArrayView bytes)
{
    // Opened for writing because a file that may not be written may not be replaced either.
    const SystemHandle old = openShared(m_parts->path, GENERIC_WRITE);
    if (!old && !isMissing()) {
        return causeOfRefusal(m_parts->path);
    }
    if (old && isWriteProtected(old.get())) {
        return writeProtected();
    }
    const auto known = old ? informationOf(old.get()) : std::nullopt;
    SystemHandle created = createBeside(m_parts->path, known ? attributesOf(*known) : 0);
    if (!created) {
        return qt_error_string();
    }
    // A file system without this time is no reason to refuse.
    ::SetFileTime(created.get(), known ? &known->ftCreationTime : nullptr, nullptr, nullptr);
    const bool hasRights = !old || takeRights(old, created.get());
    const QString refusal = qt_error_string();
    const int descriptor = created.release();
    if (!m_parts->file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered,
                            QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        return m_parts->file.errorString();
    }
    return hasRights ? writeAndSync(m_parts->file, bytes) : std::optional(refusal);
}

std::optional<Replacement::Failure> Replacement::takeName(QFile &old)
{
    HANDLE const handle = handleOf(m_parts->file.handle());
    m_parts->hasName = rename(handle, m_parts->path, true);
    if (!m_parts->hasName && isUnknownCall()) {
        // If another copy of this program has it open now, this fails; what it might do before, the
        // gap keeps it from.
        const LockGap gap(handleOf(old.handle()));
        old.close();
        m_parts->hasName = rename(handle, m_parts->path, false);
    }
    if (m_parts->hasName) {
        return std::nullopt;
    }
    const bool passes = mayPass();
    const bool wasDeniedBefore = std::exchange(m_parts->wasDenied, isDenied());
    const QString cause = causeOfRefusal(m_parts->path);
    old.close(); // else it would be found open here
    // An open file may be the reason to be denied, and closed by now: only the second time tells.
    const bool isHeld = isOpen(m_parts->path);
    m_parts->wasDenied = m_parts->wasDenied && !isHeld;
    return Failure{isHeld ? heldByAnother() : cause,
                   isHeld || passes || (m_parts->wasDenied && !wasDeniedBefore)};
}

std::optional<QString> Replacement::syncName()
{
    return syncFile(m_parts->file.handle()) ? std::nullopt : std::optional(qt_error_string());
}

} // namespace tarvold::durable
