#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::durable {
namespace {

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
        return false;
    }
    const bool synced = syncFile(handle);
    const int error = errno;
    ::close(handle);
    errno = error;
    return synced;
}

} // namespace tarvold::durable
