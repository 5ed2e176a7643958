#include "datafiles/durable.h"
#include "datafiles/replacement.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <sys/stat.h>

namespace tarvold::durable {
namespace {

constexpr mode_t kModeBits = 07777;

/// Gives an open file the mode of another one, if that is there. `false` with the system's error
/// code set on failure.
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

} // namespace

struct Replacement::Parts
{
    QString path;
    QSaveFile file;
};

Replacement::Replacement(const QString &path) : m_parts(new Parts{path, QSaveFile(path)}) {}

Replacement::~Replacement() = default;

std::optional<QString> Replacement::write(QByteArrayView bytes)
{
    QSaveFile &file = m_parts->file;
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return file.errorString();
    }
    if (!takeModeOf(m_parts->path, file.handle())) {
        return qt_error_string();
    }
    // commit() alone would report success after losing what a full disk did not take.
    return writeAndSync(file, bytes);
}

std::optional<Replacement::Failure> Replacement::takeName(QFile & /*old*/)
{
    if (!m_parts->file.commit()) {
        return Failure{m_parts->file.errorString(), false};
    }
    return std::nullopt;
}

std::optional<QString> Replacement::syncName()
{
    return syncFolderOf(m_parts->path) ? std::nullopt : std::optional(qt_error_string());
}

} // namespace tarvold::durable
