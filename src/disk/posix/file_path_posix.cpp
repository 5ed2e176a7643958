#include "disk/posix/posix_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// The path of a missing file with all links followed: those that lead to it, and those in the path
/// of its folder. Unchanged if the folder is missing as well.
QString realPathOfMissing(QString path)
{
    constexpr int kMostLinks = 40; // as the system; loops are found before
    std::array<char, PATH_MAX> target{};
    for (int count = 0; count < kMostLinks; ++count) {
        const ssize_t size =
            ::readlink(QFile::encodeName(path).constData(), target.data(), target.size());
        if (size < 0) {
            break;
        }
        const bool isAbsolute = target.front() == '/';
        path = (isAbsolute ? QString() : QFileInfo(path).path() + u'/') +
               QFile::decodeName(QByteArray(target.data(), size));
    }
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    if (folder.isEmpty()) {
        return path;
    }
    return (folder.endsWith(u'/') ? folder : folder + u'/') + info.fileName();
}

qint64 nanoseconds(const timespec &time)
{
    constexpr qint64 kNanosecondsPerSecond = 1'000'000'000;
    return qint64(time.tv_sec) * kNanosecondsPerSecond + time.tv_nsec;
}

} // namespace

QByteArray nativePath(const FilePath &path)
{
    return QFile::encodeName(path.text());
}

QByteArray folderOf(const FilePath &path)
{
    const QByteArray native = nativePath(path);
    const qsizetype slash = native.lastIndexOf('/');
    return slash > 0 ? native.first(slash) : QByteArray(slash == 0 ? "/" : ".");
}

bool FilePath::canBeName(const QString &name)
{
    // For the system a NUL ends the name, so it would use another file.
    return !name.contains(QChar::Null) && name.isValidUtf16();
}

QString FilePath::absolute() const
{
    QStringList path;
    if (!m_text.startsWith(u'/')) {
        path = QDir::currentPath().split(u'/', Qt::SkipEmptyParts);
    }
    qsizetype certain = path.size(); // no link is among these
    for (const QString &part : m_text.split(u'/', Qt::SkipEmptyParts)) {
        if (part == ".."_L1 && path.size() == certain) {
            certain = std::max<qsizetype>(certain - 1, 0);
            path.resize(certain);
        } else if (part != "."_L1) {
            path << part;
        }
    }
    // A slash at the end means a folder: the system finds no file there.
    const bool isFolder = (m_text.endsWith(u'/') || m_text.endsWith("/."_L1)) && !path.isEmpty();
    return u'/' + path.join(u'/') + (isFolder ? u"/"_s : QString());
}

FilePath::Kind FilePath::kind() const
{
    struct stat found = {};
    if (::stat(nativePath(*this).constData(), &found) != 0) {
        return Kind::Nothing;
    }
    if (S_ISDIR(found.st_mode)) {
        return Kind::Folder;
    }
    return S_ISREG(found.st_mode) ? Kind::File : Kind::Other;
}

bool FilePath::exists() const
{
    return ::access(nativePath(*this).constData(), F_OK) == 0;
}

std::optional<FileState> FilePath::state() const
{
    struct stat found = {};
    if (::stat(nativePath(*this).constData(), &found) != 0) {
        return std::nullopt;
    }
    return FileState{found.st_dev, found.st_ino, found.st_size, nanoseconds(found.st_mtim),
                     nanoseconds(found.st_ctim)};
}

Result<FilePath> FilePath::real() const
{
    std::array<char, PATH_MAX> real{};
    if (::realpath(nativePath(*this).constData(), real.data()) != nullptr) {
        return FilePath(QFile::decodeName(real.data()));
    }
    if (errno != ENOENT) {
        return failure(systemError());
    }
    return FilePath(realPathOfMissing(m_text));
}

Result<void> FilePath::remove() const
{
    return real().and_then(
        [](const FilePath &path) { return resultOf(::unlink(nativePath(path).constData()) == 0); });
}

Result<void> FilePath::syncFolder() const
{
    constexpr int kFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    const FilePath path = real().value_or(*this); // if links cannot be followed, the path as it is
    const auto folder = File::owning(::open(folderOf(path).constData(), kFlags));
    if (folder) {
        return resultOf(::fsync(descriptorOf(*folder)) == 0 || errno == EINVAL);
    }
    const bool isListable = folder.error().reason != FileError::Reason::Denied;
    return isListable ? failure(folder.error()) : Result<void>();
}

} // namespace tarvold
