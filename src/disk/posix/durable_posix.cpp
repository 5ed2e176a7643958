#include "disk/durable.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::durable {

using namespace Qt::StringLiterals;

namespace {

qint64 nanoseconds(const timespec &time)
{
    constexpr qint64 kNanosecondsPerSecond = 1'000'000'000;
    return qint64(time.tv_sec) * kNanosecondsPerSecond + time.tv_nsec;
}

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// Opens what a path means, without waiting for the other end when that is a pipe. A negative
/// handle on failure.
int openAtOnce(const QString &path, int flags)
{
    constexpr mode_t kModeOfNew = 0666;
    const QByteArray name = QFile::encodeName(path);
    int handle = -1;
    do {
        handle = ::open(name.constData(), flags | O_NONBLOCK | O_CLOEXEC, kModeOfNew);
    } while (handle < 0 && errno == EINTR);
    return handle;
}

} // namespace

KeptError::KeptError() : m_code(errno) {}

KeptError::~KeptError()
{
    errno = m_code;
}

bool isDenied()
{
    return errno == EACCES;
}

QString causeOf(const QFileDevice &file)
{
    return file.errorString();
}

std::optional<FileState> stateOf(const QString &name)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(pathOf(name)).constData(), &found) != 0) {
        return std::nullopt;
    }
    return FileState{found.st_dev, found.st_ino, found.st_size, nanoseconds(found.st_mtim),
                     nanoseconds(found.st_ctim)};
}

int openToRead(const QString &path)
{
    return openAtOnce(path, O_RDONLY);
}

void close(int handle)
{
    ::close(handle);
}

std::optional<bool> isOrdinary(int handle)
{
    struct stat state = {};
    return ::fstat(handle, &state) == 0 ? std::optional<bool>(S_ISREG(state.st_mode))
                                        : std::nullopt;
}

std::optional<qint64> readAt(int handle, qint64 place, char *bytes, qint64 size)
{
    const ssize_t count = ::pread(handle, bytes, static_cast<std::size_t>(size), place);
    return count >= 0 ? std::optional<qint64>(count) : std::nullopt;
}

bool rewind(int handle)
{
    return ::lseek(handle, 0, SEEK_SET) == 0;
}

std::optional<QString> openOrdinary(QFile &file, const QString &path,
                                    QIODeviceBase::OpenModeFlag mode, bool *created)
{
    const bool appends = mode == QIODeviceBase::Append;
    const int flags = appends ? O_WRONLY | O_APPEND : O_RDONLY;
    int handle = openAtOnce(path, flags);
    const bool isMissing = handle < 0 && errno == ENOENT;
    if (isMissing && appends) {
        handle = openAtOnce(path, flags | O_CREAT);
    }
    if (created != nullptr) {
        *created = isMissing;
    }
    if (handle < 0 && errno != ENXIO) { // which is a pipe that nobody reads from
        return qt_error_string();
    }
    struct stat state = {};
    if (handle < 0 || (::fstat(handle, &state) == 0 && !S_ISREG(state.st_mode))) {
        ::close(handle);
        return u"It is not an ordinary file."_s;
    }
    // The system cares for the end: told of it, Qt would look for it, and might fail.
    const auto access = appends ? QIODevice::WriteOnly : QIODevice::ReadOnly;
    if (!file.open(handle, access | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        return file.errorString();
    }
    return std::nullopt;
}

std::chrono::microseconds lockPause()
{
    return std::chrono::microseconds(100);
}

bool takeLock(int handle)
{
    return ::flock(handle, LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR);
}

std::optional<bool> meansFile(const QString &path, int handle)
{
    struct stat opened = {};
    struct stat found = {};
    if (::fstat(handle, &opened) != 0) {
        return std::nullopt;
    }
    if (::stat(QFile::encodeName(path).constData(), &found) != 0) {
        const bool isGone = errno == ENOENT || errno == ENOTDIR || errno == ELOOP;
        return isGone ? std::optional(false) : std::nullopt;
    }
    return isSame(opened, found);
}

std::optional<bool> areSame(int one, int other)
{
    struct stat first = {};
    struct stat second = {};
    if (::fstat(one, &first) != 0 || ::fstat(other, &second) != 0) {
        return std::nullopt;
    }
    return isSame(first, second);
}

std::optional<qint64> sizeOf(int handle)
{
    struct stat state = {};
    return ::fstat(handle, &state) == 0 ? std::optional<qint64>(state.st_size) : std::nullopt;
}

std::optional<qint64> placeIn(int handle)
{
    const off_t place = ::lseek(handle, 0, SEEK_CUR);
    return place >= 0 ? std::optional<qint64>(place) : std::nullopt;
}

bool reserve([[maybe_unused]] int handle, [[maybe_unused]] qint64 offset,
             [[maybe_unused]] qint64 count)
{
#ifdef FALLOC_FL_KEEP_SIZE
    return ::fallocate(handle, FALLOC_FL_KEEP_SIZE, offset, count) == 0 ||
           (errno != ENOSPC && errno != EDQUOT);
#else
    return true;
#endif
}

bool removeFile(const QString &path)
{
    return QFile::remove(QFileInfo(path).canonicalFilePath());
}

std::optional<QString> writeAndSync(QFileDevice &file, QByteArrayView bytes, qint64 *written)
{
    // A write that runs short tells its cause only when it is asked for the rest.
    while (!bytes.isEmpty()) {
        const qint64 count = file.write(bytes.data(), bytes.size());
        if (count <= 0) {
            return file.errorString();
        }
        if (written != nullptr) {
            *written += count;
        }
        bytes = bytes.sliced(count);
    }
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        return file.errorString();
    }
    if (!syncFile(file.handle())) {
        return qt_error_string();
    }
    return std::nullopt;
}

bool mayChangeUnseen(const FileState &state)
{
    constexpr qint64 kSlowestTick = 20'000'000; // twice that of a clock with 100 ticks a second
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now) - state.changed < kSlowestTick;
}

bool syncFile(int handle)
{
    return ::fsync(handle) == 0;
}

bool syncFolderOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).canonicalPath());
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return errno == EACCES;
    }
    const bool synced = syncFile(handle) || errno == EINVAL;
    const KeptError kept;
    ::close(handle);
    return synced;
}

} // namespace tarvold::durable
