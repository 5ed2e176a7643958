#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold::durable {

QString pathOf(const QString &name)
{
    return name.startsWith(u':') ? QStringLiteral("./") + name : name;
}

std::optional<FileState> stateOf(const QString &name)
{
    constexpr qint64 kNanosecondsPerSecond = 1'000'000'000;
    struct stat found = {};
    if (::stat(QFile::encodeName(pathOf(name)).constData(), &found) != 0) {
        return std::nullopt;
    }
    const auto nanoseconds = [](const timespec &time) {
        return qint64(time.tv_sec) * kNanosecondsPerSecond + time.tv_nsec;
    };
    return FileState{found.st_dev, found.st_ino, found.st_size, nanoseconds(found.st_mtim),
                     nanoseconds(found.st_ctim)};
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
