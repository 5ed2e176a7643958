#pragma once

#include "disk/file.h"

#include <string>
#include <windows.h>

/// Files and paths as Windows itself takes them.
namespace tarvold {

/// Shares an open file for everything.
inline constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// How many characters the longest path has, its end included.
inline constexpr std::size_t kLongestPath = 32768;

/// The system's handle of an open file, which keeps it.
inline HANDLE handleOf(const File &file)
{
    return reinterpret_cast<HANDLE>(file.handle());
}

/// File::owning() for what calls of Windows give.
inline Result<File> owning(HANDLE handle, bool isNew = false)
{
    return File::owning(reinterpret_cast<File::Handle>(handle), isNew);
}

/// The absolute path in the form that all system calls take, also when it is longer than MAX_PATH.
/// Device names such as "NUL" become device paths. Empty when it is not a path.
std::wstring nativePath(const FilePath &path);

/// Whether a native path is that of a device.
bool isDevice(const std::wstring &path);

/// Opens what a path means, shared for everything. If another program has opened it without
/// sharing, such as a virus scanner, opening is retried.
Result<File> openShared(const FilePath &path, DWORD access, DWORD disposition = OPEN_EXISTING);

/// Explains in plainer words why a path could not be opened or replaced, where that is known.
FileError explained(FileError error, const FilePath &path);

/// The error for a file that another program has open.
FileError heldByAnother();

/// Fails when an open file has the read-only attribute, which not all file systems respect.
Result<void> checkWritable(const File &file);

/// What the system notes of an open file.
Result<BY_HANDLE_FILE_INFORMATION> informationOf(const File &file);

/// Which file an open one is.
struct FileIdentity
{
    quint64 volume;
    quint64 low;
    quint64 high; ///< of the number on the volume

    bool operator==(const FileIdentity &) const = default;
};
Result<FileIdentity> identityOf(const File &file);

/// The interval in which a process has closed, and so unlocked, the old file in order to replace
/// it. Whoever gets the lock in this interval must release it: that file is about to be lost. Only
/// processes on the same computer see the interval.
class LockGap
{
public:
    /// Begins it for an open, locked file. A hint; failure is ignored.
    explicit LockGap(const File &file);
    ~LockGap();
    Q_DISABLE_COPY_MOVE(LockGap)

    /// Whether another process is in this interval with a file that is open here.
    static bool isIn(const File &file);

private:
    HANDLE m_mutex; ///< nobody waits for it: its existence is the mark, and ends with the process
};

} // namespace tarvold
