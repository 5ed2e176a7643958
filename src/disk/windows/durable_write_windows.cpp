// How bytes get to the disk for good on Windows.

#include "disk/durable.h"
#include "disk/windows/windows_file.h"

#include <QFile>

#include <algorithm>
#include <io.h>

namespace tarvold::durable {
namespace {

/// Writes bytes behind the end of a file, wherever that is by then.
/// \return how many; 0 with the system's error code set on failure
DWORD writeAtTheEnd(HANDLE handle, QByteArrayView bytes)
{
    OVERLAPPED atTheEnd = {};
    atTheEnd.Offset = atTheEnd.OffsetHigh = 0xFFFFFFFF;
    DWORD count = 0;
    if (::WriteFile(handle, bytes.data(), DWORD(bytes.size()), &count, &atTheEnd) == FALSE) {
        return 0;
    }
    if (count == 0) {
        ::SetLastError(ERROR_WRITE_FAULT);
    }
    return count;
}

/// Whether a part of an open file is what these bytes begin with.
bool beginsAt(qint64 place, qint64 size, HANDLE handle, QByteArrayView bytes)
{
    SystemHandle readable(::ReOpenFile(handle, GENERIC_READ, kShared, 0));
    QFile file;
    if (size > bytes.size() || !readable ||
        !file.open(readable.release(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ||
        !file.seek(place)) {
        return false;
    }
    constexpr qint64 kBlock = 65536;
    for (QByteArrayView rest = bytes.first(size); !rest.isEmpty();) {
        const QByteArray read = file.read(std::min<qint64>(kBlock, rest.size()));
        if (read.isEmpty() || !rest.startsWith(read)) {
            return false;
        }
        rest = rest.sliced(read.size());
    }
    return true;
}

/// How many bytes stand behind the old end after a write that failed, which may be in its midst, as
/// on a share or a full disk. If they surely are those that were to be written, the place in the
/// file is behind them, as after other writes. Else it is the beginning, so that nobody cuts off
/// what may be another program's.
qint64 arrivedBehind(qint64 end, int handle, QByteArrayView bytes)
{
    const qint64 grown = durable::sizeOf(handle).value_or(end + 1) - end;
    if (grown <= 0) {
        return 0;
    }
    ::_lseeki64(handle, 0, beginsAt(end, grown, handleOf(handle), bytes) ? SEEK_END : SEEK_SET);
    return grown;
}

} // namespace

bool reserve(int /*handle*/, qint64 /*offset*/, qint64 /*count*/)
{
    // To set how much a file takes on the disk cuts off what another program writes behind that in
    // the same moment. The write itself tells that there is no room, which may be in its midst.
    return true;
}

std::optional<QString> writeAndSync(QFileDevice &file, QByteArrayView bytes, qint64 *written)
{
    constexpr qsizetype kMost = 1'073'741'824;
    while (!bytes.isEmpty()) {
        const std::optional<qint64> end = sizeOf(file.handle());
        const auto wanted = DWORD(std::min(kMost, bytes.size()));
        const DWORD count = end ? writeAtTheEnd(handleOf(file.handle()), bytes.first(wanted)) : 0;
        if (count == 0) {
            QString cause = qt_error_string();
            if (end && written != nullptr) {
                *written += arrivedBehind(*end, file.handle(), bytes);
            }
            return cause;
        }
        if (written != nullptr) {
            *written += count;
        }
        bytes = bytes.sliced(count);
    }
    return syncFile(file.handle()) ? std::nullopt : std::optional(qt_error_string());
}

bool syncFile(int handle)
{
    if (::FlushFileBuffers(handleOf(handle)) != FALSE) {
        return true;
    }
    if (!isDenied()) {
        return false;
    }
    // Opened for reading: only who may write may sync.
    const SystemHandle writable(::ReOpenFile(handleOf(handle), GENERIC_WRITE, kShared, 0));
    return writable && ::FlushFileBuffers(writable.get()) != FALSE;
}

bool syncFolderOf(const QString & /*path*/)
{
    // To sync a file takes its entry along, and folders cannot be synced by themselves.
    return true;
}

} // namespace tarvold::durable
