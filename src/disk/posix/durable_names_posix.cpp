// What names and paths mean.

#include "disk/durable.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <unistd.h>

namespace tarvold::durable {

using namespace Qt::StringLiterals;

namespace {

/// A path with all links to its folder followed; as it is when the folder is not there.
QString inRealFolder(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    if (folder.isEmpty()) {
        return path;
    }
    return (folder.endsWith(u'/') ? folder : folder + u'/') + info.fileName();
}

/// What a link leads to, as it stands there; empty when the path means no link.
QString targetOf(const QString &path)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t size =
        ::readlink(QFile::encodeName(path).constData(), target.data(), target.size());
    return size < 0 ? QString() : QFile::decodeName(QByteArray(target.data(), size));
}

/// The path of what is not there, with all links followed, those that lead to it included.
QString realPathOfMissing(const QString &path)
{
    constexpr int kMostLinks = 40; // as the system; loops of links do not come here
    QString real = inRealFolder(path);
    for (int count = 0; count < kMostLinks; ++count) {
        const QString target = targetOf(real);
        if (target.isEmpty()) {
            break;
        }
        const bool isAbsolute = target.startsWith(u'/');
        real = inRealFolder(isAbsolute ? target : QFileInfo(real).path() + u'/' + target);
    }
    return real;
}

} // namespace

bool canBeName(const QString &name)
{
    // The system takes a name as ended by a NUL, and would use the file that it then names.
    return !name.contains(QChar::Null) && name.isValidUtf16();
}

QString pathOf(const QString &name)
{
    return name.startsWith(u':') ? u"./"_s + name : name;
}

Kind kindOf(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        return Kind::Folder;
    }
    if (!info.exists()) {
        return Kind::Nothing;
    }
    return info.isFile() ? Kind::File : Kind::Other;
}

bool exists(const QString &path)
{
    return QFileInfo::exists(path);
}

std::optional<QString> realPathOf(const QString &path)
{
    std::array<char, PATH_MAX> real{};
    if (::realpath(QFile::encodeName(path).constData(), real.data()) != nullptr) {
        return QFile::decodeName(real.data());
    }
    return errno == ENOENT ? std::optional(realPathOfMissing(path)) : std::nullopt;
}

} // namespace tarvold::durable
