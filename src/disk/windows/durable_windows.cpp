#include "disk/durable.h"
#include "disk/lock_gap.h"
#include "disk/windows/windows_file.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <io.h>

namespace tarvold::durable {

using namespace Qt::StringLiterals;

namespace {

/// Which file an open one is.
struct Identity
{
    quint64 volume;
    quint64 low;
    quint64 high; ///< of the number on the volume

    bool operator==(const Identity &) const = default;
};

std::optional<Identity> identityOf(HANDLE handle)
{
    FILE_ID_INFO id = {};
    if (::GetFileInformationByHandleEx(handle, FileIdInfo, &id, sizeof id) != FALSE) {
        Identity identity = {id.VolumeSerialNumber, 0, 0};
        std::memcpy(&identity.low, &id.FileId, sizeof identity.low);
        std::memcpy(&identity.high, id.FileId.Identifier + sizeof identity.low,
                    sizeof identity.high);
        return identity;
    }
    // File systems with short numbers need not know the long ones.
    const auto information = informationOf(handle);
    if (!information) {
        return std::nullopt;
    }
    return Identity{information->dwVolumeSerialNumber,
                    quint64(information->nFileIndexHigh) << 32U | information->nFileIndexLow, 0};
}

/// A time of the system in nanoseconds since 1970.
qint64 nanoseconds(qint64 ticks)
{
    constexpr qint64 kTicksBefore1970 = 116'444'736'000'000'000;
    constexpr qint64 kNanosecondsPerTick = 100;
    return (ticks - kTicksBefore1970) * kNanosecondsPerTick;
}

std::optional<FileState> stateOfOpen(HANDLE handle)
{
    // Where the system notes no time of change, that of the last write counts, in steps of two
    // seconds (FAT).
    constexpr qint64 kSlowStep = 20'000'000;
    const std::optional<Identity> identity = identityOf(handle);
    FILE_BASIC_INFO times = {};
    LARGE_INTEGER size = {};
    if (!identity ||
        ::GetFileInformationByHandleEx(handle, FileBasicInfo, &times, sizeof times) == FALSE ||
        ::GetFileSizeEx(handle, &size) == FALSE) {
        return std::nullopt;
    }
    const qint64 modified = times.LastWriteTime.QuadPart;
    const qint64 changed = times.ChangeTime.QuadPart;
    return FileState{identity->volume, identity->low ^ identity->high, size.QuadPart,
                     nanoseconds(modified),
                     nanoseconds(changed > 0 ? changed : modified + kSlowStep)};
}

} // namespace

KeptError::KeptError() : m_code(int(::GetLastError())) {}

KeptError::~KeptError()
{
    ::SetLastError(DWORD(m_code));
}

bool isDenied()
{
    return ::GetLastError() == ERROR_ACCESS_DENIED;
}

QString causeOf(const QFileDevice &file)
{
    // Qt knows only the few causes that the C library tells apart.
    const unsigned long code = file.error() == QFileDevice::ReadError ? _doserrno : 0;
    return code != 0 ? qt_error_string(int(code)) : file.errorString();
}

std::optional<FileState> stateOf(const QString &name)
{
    const SystemHandle handle = openShared(pathOf(name), FILE_READ_ATTRIBUTES);
    return handle ? stateOfOpen(handle.get()) : std::nullopt;
}

bool mayChangeUnseen(const FileState &state)
{
    constexpr qint64 kSlowestTick = 40'000'000; // more than twice that of a clock at rest
    FILETIME time = {};
    ::GetSystemTimeAsFileTime(&time);
    const quint64 now = quint64(time.dwHighDateTime) << 32U | time.dwLowDateTime;
    return nanoseconds(qint64(now)) - state.changed < kSlowestTick;
}

int openToRead(const QString &path)
{
    SystemHandle handle = openShared(path, GENERIC_READ);
    return handle ? handle.release() : -1;
}

void close(int handle)
{
    ::_close(handle);
}

std::optional<bool> isOrdinary(int handle)
{
    return isFile(handleOf(handle));
}

std::optional<QString> openOrdinary(QFile &file, const QString &path,
                                    QIODeviceBase::OpenModeFlag mode, bool *created)
{
    const bool appends = mode == QIODeviceBase::Append;
    const DWORD access = appends ? GENERIC_WRITE : GENERIC_READ;
    SystemHandle handle = openShared(path, access);
    bool isNew = false;
    if (!handle && isMissing() && appends) {
        handle = openShared(path, access, OPEN_ALWAYS);
        isNew = handle && ::GetLastError() != ERROR_ALREADY_EXISTS;
    }
    if (created != nullptr) {
        *created = isNew;
    }
    if (!handle) {
        return causeOfRefusal(path);
    }
    if (isFile(handle.get()) == false) {
        return u"It is not an ordinary file."_s;
    }
    if (appends && isWriteProtected(handle.get())) {
        return writeProtected();
    }
    const int descriptor = handle.release();
    const auto direction = appends ? QIODevice::WriteOnly : QIODevice::ReadOnly;
    if (!file.open(descriptor, direction | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        return file.errorString();
    }
    _doserrno = 0; // for causeOf(), as nothing else sets it back
    return std::nullopt;
}

std::chrono::microseconds lockPause()
{
    return std::chrono::milliseconds(1); // a shorter one would be none here
}

bool takeLock(int handle)
{
    // Such a lock keeps everybody from the bytes in it, so that none that a file has are in it.
    constexpr DWORD kBehindAllBytes = 256; // in units of 4 GB
    OVERLAPPED place = {};
    place.OffsetHigh = kBehindAllBytes;
    const bool isLocked =
        ::LockFileEx(handleOf(handle), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                     &place) != FALSE ||
        ::GetLastError() != ERROR_LOCK_VIOLATION;
    return isLocked && !LockGap::isIn(handleOf(handle));
}

std::optional<bool> areSame(int one, int other)
{
    const std::optional<Identity> first = identityOf(handleOf(one));
    const std::optional<Identity> second = identityOf(handleOf(other));
    return first && second ? std::optional(*first == *second) : std::nullopt;
}

std::optional<bool> meansFile(const QString &path, int handle)
{
    FILE_STANDARD_INFO opened = {};
    if (::GetFileInformationByHandleEx(handleOf(handle), FileStandardInfo, &opened,
                                       sizeof opened) != FALSE &&
        opened.DeletePending != FALSE) {
        return false; // its name stays to nobody's use until all have closed it
    }
    const SystemHandle found = openShared(path, FILE_READ_ATTRIBUTES);
    if (!found) {
        return isMissing() || ::GetLastError() == ERROR_PATH_NOT_FOUND ? std::optional(false)
                                                                       : std::nullopt;
    }
    const std::optional<Identity> first = identityOf(handleOf(handle));
    const std::optional<Identity> second = identityOf(found.get());
    return first && second ? std::optional(*first == *second) : std::nullopt;
}

std::optional<qint64> sizeOf(int handle)
{
    LARGE_INTEGER size = {};
    return ::GetFileSizeEx(handleOf(handle), &size) != FALSE ? std::optional<qint64>(size.QuadPart)
                                                             : std::nullopt;
}

std::optional<qint64> placeIn(int handle)
{
    const qint64 place = ::_telli64(handle);
    return place >= 0 ? std::optional(place) : std::nullopt;
}

bool rewind(int handle)
{
    return ::_lseeki64(handle, 0, SEEK_SET) == 0;
}

std::optional<qint64> readAt(int handle, qint64 place, char *bytes, qint64 size)
{
    OVERLAPPED from = {};
    from.Offset = DWORD(place);
    from.OffsetHigh = DWORD(place >> 32U);
    DWORD count = 0;
    if (::ReadFile(handleOf(handle), bytes, DWORD(size), &count, &from) == FALSE &&
        ::GetLastError() != ERROR_HANDLE_EOF) {
        return std::nullopt;
    }
    return count;
}

bool removeFile(const QString &path)
{
    const std::optional<QString> real = realPathOf(path);
    return real && ::DeleteFileW(nativePath(*real).c_str()) != FALSE;
}

} // namespace tarvold::durable
