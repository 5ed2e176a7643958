#pragma once

#include <QString>

#include <optional>
#include <string>
#include <utility>
#include <windows.h>

/// Files as Windows itself knows them, for those parts of the file layer that call it.
namespace tarvold::durable {

/// Lets other programs do anything with a file that is open here.
inline constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// How many characters the longest path has, its end included.
inline constexpr std::size_t kLongestPath = 32768;

/// Owns what the system calls a handle.
class SystemHandle
{
public:
    explicit SystemHandle(HANDLE handle) : m_handle(handle) {}
    SystemHandle(SystemHandle &&other) noexcept
        : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE))
    {
    }
    SystemHandle &operator=(SystemHandle &&other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~SystemHandle();
    Q_DISABLE_COPY(SystemHandle)

    explicit operator bool() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

    /// Makes it a descriptor of the C library, which owns it then. A negative one on failure.
    int release();

private:
    HANDLE m_handle;
};

/// The system's handle of a descriptor of the C library, which keeps it.
HANDLE handleOf(int descriptor);

/// A path from its drive on, as all calls of the system take it, be it ever so long. Only here are
/// names such as "NUL" taken for the devices that they are. Empty with the system's error code set
/// when it is none.
std::wstring nativePath(const QString &path);

/// Whether a native path is that of a device.
bool isDevice(const std::wstring &path);

/// Opens what a path means so that other programs may do anything with it meanwhile. One that
/// shares it with nobody, such as a virus scanner, is given some seconds to let it go.
SystemHandle openShared(const QString &path, DWORD access, DWORD disposition = OPEN_EXISTING);

/// Whether the system's error code says that nothing is there.
bool isMissing();

/// Why a path could not be opened for writing or reading, in words, after the system's error code.
QString causeOfRefusal(const QString &path);

/// The words for a file that another program shares with nobody.
QString heldByAnother();

/// The words for a file that its owner wants nobody to write to.
QString writeProtected();

/// What a handle is; nothing with the system's error code set on failure.
std::optional<BY_HANDLE_FILE_INFORMATION> informationOf(HANDLE handle);

/// Whether a handle is an ordinary file. Nothing with the system's error code set on failure.
std::optional<bool> isFile(HANDLE handle);

/// Whether an open file is marked as write-protected, which not all file systems care for.
bool isWriteProtected(HANDLE handle);

} // namespace tarvold::durable
