#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tarvold::durable {

QString pathOf(const QString &name)
{
    return name.startsWith(u':') ? QStringLiteral("./") + name : name;
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
