// What names and paths mean on Windows.

#include "disk/durable.h"
#include "disk/windows/windows_file.h"

#include <algorithm>

namespace tarvold::durable {
namespace {

/// The path of an open file without any links in it. A file system that cannot tell has none.
std::optional<QString> finalPathOf(HANDLE handle)
{
    std::wstring path(kLongestPath, L'\0');
    path.resize(::GetFinalPathNameByHandleW(handle, path.data(), DWORD(path.size()),
                                            FILE_NAME_NORMALIZED | VOLUME_NAME_DOS));
    return path.empty() ? std::nullopt : std::optional(QString::fromStdWString(path));
}

/// The path of what is not there, with all links to its folder followed. Nothing when it is a link
/// itself.
std::optional<QString> realPathOfMissing(const QString &path)
{
    const std::wstring native = nativePath(path);
    const std::size_t nameStart = native.find_last_of(L'\\') + 1;
    if (::GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES) {
        ::SetLastError(ERROR_FILE_NOT_FOUND);
        return std::nullopt;
    }
    const SystemHandle folder =
        openShared(QString::fromStdWString(native.substr(0, nameStart)), FILE_READ_ATTRIBUTES);
    const auto real = folder ? finalPathOf(folder.get()) : std::nullopt;
    if (!real) {
        return path;
    }
    return (real->endsWith(u'\\') ? *real : QString(*real + u'\\')) +
           QString::fromStdWString(native.substr(nameStart));
}

/// Names such as ":x" are no built-in resources here, as Qt opens none of them by name.
bool isOfNoName(QChar character)
{
    return character < u' ' || QStringView(u"<>:\"|?*").contains(character);
}

} // namespace

bool canBeName(const QString &name)
{
    QString rest = name;
    rest.replace(u'/', u'\\');
    if (rest.startsWith(QStringView(uR"(\\?\)")) || rest.startsWith(QStringView(uR"(\\.\)"))) {
        rest.remove(0, 4);
    }
    // A colon elsewhere than behind a drive would mean a stream beside the content of a file, of
    // which most programs never know.
    if (rest.size() >= 2 && rest.at(0).isLetter() && rest.at(1) == u':') {
        rest.remove(0, 2);
    }
    return name.isValidUtf16() && std::none_of(rest.begin(), rest.end(), isOfNoName);
}

QString pathOf(const QString &name)
{
    return name;
}

Kind kindOf(const QString &path)
{
    const std::wstring native = nativePath(path);
    if (isDevice(native)) {
        return Kind::Other;
    }
    const SystemHandle handle = openShared(path, FILE_READ_ATTRIBUTES);
    if (!handle) {
        // What may not even be looked at may be a file; opening it tells more.
        const bool isThere =
            !isMissing() && ::GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES;
        return isThere ? Kind::File : Kind::Nothing;
    }
    if (::GetFileType(handle.get()) != FILE_TYPE_DISK) {
        return Kind::Other;
    }
    return isFile(handle.get()) == false ? Kind::Folder : Kind::File;
}

bool exists(const QString &path)
{
    return kindOf(path) != Kind::Nothing;
}

std::optional<QString> realPathOf(const QString &path)
{
    const SystemHandle handle = openShared(path, FILE_READ_ATTRIBUTES);
    if (!handle) {
        return isMissing() ? realPathOfMissing(path) : std::nullopt;
    }
    return finalPathOf(handle.get()).value_or(path);
}

} // namespace tarvold::durable
