#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tarvold::durable {
namespace {

using namespace std::chrono_literals;

constexpr auto kLockPatience = 2s;
constexpr auto kLockPause = 1ms;
constexpr mode_t kModeBits = 07777;

qint64 nanoseconds(const timespec &time)
{
    constexpr qint64 kNanosecondsPerSecond = 1'000'000'000;
    return qint64(time.tv_sec) * kNanosecondsPerSecond + time.tv_nsec;
}

} // namespace

QString pathOf(const QString &name)
{
    return name.startsWith(u':') ? QStringLiteral("./") + name : name;
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

std::optional<QString> realPathOf(const QString &path)
{
    std::array<char, PATH_MAX> real{};
    if (::realpath(QFile::encodeName(path).constData(), real.data()) != nullptr) {
        return QFile::decodeName(real.data());
    }
    return errno == ENOENT ? std::optional(path) : std::nullopt;
}

bool lock(int handle)
{
    const auto deadline = std::chrono::steady_clock::now() + kLockPatience;
    while (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) {
            return true;
        }
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(kLockPause);
    }
    return true;
}

bool isRemoved(int handle)
{
    struct stat state = {};
    return ::fstat(handle, &state) == 0 && state.st_nlink == 0;
}

std::optional<qint64> sizeOf(int handle)
{
    struct stat state = {};
    return ::fstat(handle, &state) == 0 ? std::optional<qint64>(state.st_size) : std::nullopt;
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

bool takeModeOf(const QString &path, int handle)
{
    struct stat model = {};
    if (::stat(QFile::encodeName(path).constData(), &model) != 0) {
        return errno == ENOENT;
    }
    struct stat state = {};
    if (::fstat(handle, &state) != 0) {
        return false;
    }
    // File systems without modes of their own refuse the change but need none.
    return ((model.st_mode ^ state.st_mode) & kModeBits) == 0 ||
           ::fchmod(handle, model.st_mode & kModeBits) == 0;
}

std::optional<QString> writeAndSync(QFileDevice &file, QByteArrayView bytes)
{
    // A write that runs short tells its cause only when it is asked for the rest.
    while (!bytes.isEmpty()) {
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0) {
            return file.errorString();
        }
        bytes = bytes.sliced(written);
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

void preferLargePages(QByteArray &bytes)
{
    constexpr quintptr kPage = 4096;
    constexpr qsizetype kLarge = 8'388'608;
    if (bytes.size() < kLarge) {
        return;
    }
    const auto skipped = qsizetype(-quintptr(bytes.data()) % kPage); // up to the next whole page
    ::madvise(bytes.data() + skipped, std::size_t(bytes.size() - skipped), MADV_HUGEPAGE);
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
    const int error = errno;
    ::close(handle);
    errno = error;
    return synced;
}

} // namespace tarvold::durable
