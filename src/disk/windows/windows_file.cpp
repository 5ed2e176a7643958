#include "disk/windows/windows_file.h"

#include "disk/durable.h"

#include <array>
#include <chrono>
#include <fcntl.h>
#include <io.h>
#include <thread>
#include <utility>

namespace tarvold::durable {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2s;
constexpr auto kPause = 10ms;

bool isHeldByAnother()
{
    const DWORD error = ::GetLastError();
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

} // namespace

SystemHandle::~SystemHandle()
{
    if (*this) {
        const KeptError kept;
        ::CloseHandle(m_handle);
    }
}

int SystemHandle::release()
{
    const int descriptor = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(m_handle), _O_BINARY);
    if (descriptor >= 0) {
        m_handle = INVALID_HANDLE_VALUE;
    }
    return descriptor;
}

HANDLE handleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
}

std::wstring nativePath(const QString &path)
{
    constexpr std::size_t kShort = MAX_PATH - 12; // of a folder, whose files have short names too
    const std::wstring name = path.toStdWString();
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

SystemHandle openShared(const QString &path, DWORD access, DWORD disposition)
{
    const std::wstring native = nativePath(path);
    if (native.empty()) {
        return SystemHandle(INVALID_HANDLE_VALUE);
    }
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (true) {
        // The flag allows folders to be opened, which are told from files then.
        HANDLE const handle = ::CreateFileW(native.c_str(), access, kShared, nullptr, disposition,
                                            FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (handle != INVALID_HANDLE_VALUE || !isHeldByAnother() ||
            std::chrono::steady_clock::now() >= deadline) {
            return SystemHandle(handle);
        }
        std::this_thread::sleep_for(kPause);
    }
}

bool isMissing()
{
    return ::GetLastError() == ERROR_FILE_NOT_FOUND;
}

QString causeOfRefusal(const QString &path)
{
    const KeptError kept;
    if (isHeldByAnother()) {
        return heldByAnother();
    }
    QString cause = qt_error_string();
    if (!isDenied()) {
        return cause;
    }
    const DWORD attributes = ::GetFileAttributesW(nativePath(path).c_str());
    const bool isProtected =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    return isProtected ? writeProtected() : cause;
}

QString heldByAnother()
{
    return u"Another program has it open."_s;
}

QString writeProtected()
{
    return u"It is write-protected."_s;
}

std::optional<BY_HANDLE_FILE_INFORMATION> informationOf(HANDLE handle)
{
    BY_HANDLE_FILE_INFORMATION information = {};
    return ::GetFileInformationByHandle(handle, &information) != FALSE ? std::optional(information)
                                                                       : std::nullopt;
}

std::optional<bool> isFile(HANDLE handle)
{
    if (::GetFileType(handle) != FILE_TYPE_DISK) {
        return false;
    }
    const auto information = informationOf(handle);
    if (!information) {
        return std::nullopt;
    }
    return (information->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool isWriteProtected(HANDLE handle)
{
    const auto information = informationOf(handle);
    return information && (information->dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace tarvold::durable
