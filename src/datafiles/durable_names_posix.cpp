// What names and paths mean.

#include "datafiles/durable.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>

namespace tarvold::durable {
namespace {

/// The path of what is not there, with all links to its folder followed.
QString realPathOfMissing(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    if (folder.isEmpty()) {
        return path;
    }
    return (folder.endsWith(u'/') ? folder : folder + u'/') + info.fileName();
}

} // namespace

bool canBeName(const QString &name)
{
    // The system takes a name as ended by a NUL, and would use the file that it then names.
    return !name.contains(QChar::Null) && name.isValidUtf16();
}

QString pathOf(const QString &name)
{
    return name.startsWith(u':') ? QStringLiteral("./") + name : name;
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
