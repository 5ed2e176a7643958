#include "disk/windows/windows_file.h"

#include "disk/retry.h"

#include <chrono>
#include <cstring>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// The name of the mutex for a file, by the file's number: it has many names. Empty if it has no
/// number.
std::wstring mutexNameFor(const File &file)
{
    const auto known = informationOf(file);
    return known ? u"Global\\tarvold-%1-%2-%3"_s.arg(known->dwVolumeSerialNumber, 0, 16)
                       .arg(known->nFileIndexHigh, 0, 16)
                       .arg(known->nFileIndexLow, 0, 16)
                       .toStdWString()
                 : std::wstring();
}

} // namespace

FileError systemError(int code)
{
    using Reason = FileError::Reason;
    constexpr int kDiskQuotaExceeded = 1295; // which some headers lack
    switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return errorFor(Reason::Missing);
    case ERROR_FILE_EXISTS:
        return errorFor(Reason::Exists);
    case ERROR_ACCESS_DENIED:
        return errorFor(Reason::Denied);
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return errorFor(Reason::Busy);
    case ERROR_WRITE_PROTECT:
        return errorFor(Reason::ReadOnlyDisk);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return errorFor(Reason::FullDisk);
    case kDiskQuotaExceeded:
        return errorFor(Reason::Quota);
    case ERROR_CRC:
    case ERROR_NOT_READY:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_IO_DEVICE:
        return errorFor(Reason::BadDisk);
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_BUFFER_OVERFLOW:
        return errorFor(Reason::LongName);
    default:
        return {.cause = qt_error_string(code)};
    }
}

FileError systemError()
{
    return systemError(int(::GetLastError()));
}

std::wstring nativePath(const FilePath &path)
{
    constexpr std::size_t kShort = MAX_PATH - 12; // of a folder, whose files have short names too
    const std::wstring name = path.text().toStdWString();
    std::wstring full(kLongestPath, L'\0');
    full.resize(::GetFullPathNameW(name.c_str(), DWORD(full.size()), full.data(), nullptr));
    if (full.size() < kShort || full.starts_with(LR"(\\?\)") || isDevice(full)) {
        return full;
    }
    const bool isShare = full.starts_with(LR"(\\)");
    return isShare ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

bool isDevice(const std::wstring &path)
{
    return path.starts_with(LR"(\\.\)");
}

Result<File> openShared(const FilePath &path, DWORD access, DWORD disposition)
{
    const std::wstring native = nativePath(path);
    return retry(std::chrono::milliseconds(10), [&] {
        // The flag allows folders to be opened, which are told from files then.
        HANDLE const handle = ::CreateFileW(native.c_str(), access, kShared, nullptr, disposition,
                                            FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        const bool isNew = disposition == OPEN_ALWAYS && ::GetLastError() != ERROR_ALREADY_EXISTS;
        return owning(handle, isNew);
    });
}

FileError explained(FileError error, const FilePath &path)
{
    if (error.reason == FileError::Reason::Busy) {
        return heldByAnother();
    }
    const DWORD attributes = error.reason == FileError::Reason::Denied
                                 ? ::GetFileAttributesW(nativePath(path).c_str())
                                 : INVALID_FILE_ATTRIBUTES;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        error.cause = errorFor(FileError::Reason::ReadOnlyFile).cause;
    }
    return error;
}

FileError heldByAnother()
{
    return errorFor(FileError::Reason::Busy);
}

Result<void> checkWritable(const File &file)
{
    // The read-only attribute of a folder has another meaning.
    constexpr DWORD kAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    const auto known = informationOf(file);
    if (known && (known->dwFileAttributes & kAttributes) == FILE_ATTRIBUTE_READONLY) {
        return failure(errorFor(FileError::Reason::ReadOnlyFile));
    }
    return {};
}

Result<BY_HANDLE_FILE_INFORMATION> informationOf(const File &file)
{
    BY_HANDLE_FILE_INFORMATION known = {};
    return resultOf(::GetFileInformationByHandle(handleOf(file), &known) != FALSE).map([&known] {
        return known;
    });
}

Result<FileIdentity> identityOf(const File &file)
{
    FILE_ID_INFO id = {};
    if (::GetFileInformationByHandleEx(handleOf(file), FileIdInfo, &id, sizeof id) != FALSE) {
        FileIdentity identity = {id.VolumeSerialNumber, 0, 0};
        std::memcpy(&identity.low, &id.FileId, sizeof identity.low);
        std::memcpy(&identity.high, id.FileId.Identifier + sizeof identity.low,
                    sizeof identity.high);
        return identity;
    }
    // File systems with short numbers need not know the long ones.
    return informationOf(file).map([](const BY_HANDLE_FILE_INFORMATION &known) {
        return FileIdentity{known.dwVolumeSerialNumber,
                            quint64(known.nFileIndexHigh) << 32U | known.nFileIndexLow, 0};
    });
}

LockGap::LockGap(const File &file)
{
    const std::wstring name = mutexNameFor(file);
    m_mutex = name.empty() ? nullptr : ::CreateMutexW(nullptr, FALSE, name.c_str());
}

LockGap::~LockGap()
{
    if (m_mutex != nullptr) {
        ::CloseHandle(m_mutex);
    }
}

bool LockGap::isIn(const File &file)
{
    const std::wstring name = mutexNameFor(file);
    if (name.empty()) {
        return false;
    }
    HANDLE const found = ::OpenMutexW(SYNCHRONIZE, FALSE, name.c_str());
    if (found == nullptr) {
        return ::GetLastError() == ERROR_ACCESS_DENIED; // to another user's
    }
    ::CloseHandle(found);
    return true;
}

} // namespace tarvold
