#pragma once

#include "disk/file.h"

#include <string>
#include <windows.h>

/// Files and paths as Windows itself takes them.
namespace tarvold {

/// Lets other programs do anything with a file that is open here.
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

/// A path from its drive on, as all calls of the system take it, be it ever so long. Only here are
/// names such as "NUL" taken for the devices that they are. Empty when it is none.
std::wstring nativePath(const FilePath &path);

/// Whether a native path is that of a device.
bool isDevice(const std::wstring &path);

/// Opens what a path means so that other programs may do anything with it meanwhile. One that
/// shares it with nobody, such as a virus scanner, is waited for.
Result<File> openShared(const FilePath &path, DWORD access, DWORD disposition = OPEN_EXISTING);

/// Puts into better words why a path could not be opened or replaced, where that is known.
FileError explained(FileError error, const FilePath &path);

/// The error for a file that another program has open.
FileError heldByAnother();

/// Fails when an open file has the read-only attribute, which not all file systems care for.
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
/// it: who gets the lock then must let go of it, for that file is about to be lost. Other processes
/// on the same computer see it, those on other computers do not.
class LockGap
{
public:
    /// Begins it for an open file that is locked. Where the system cannot, there is none.
    explicit LockGap(const File &file);
    ~LockGap();
    Q_DISABLE_COPY_MOVE(LockGap)

    /// Whether another process is in this interval with a file that is open here.
    static bool isIn(const File &file);

private:
    HANDLE m_mutex; ///< which nobody waits for: that it is there says all, and it goes with its
                    ///< process
};

} // namespace tarvold
