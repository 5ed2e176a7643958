#include "disk/windows/windows_file.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tarvold {
namespace {

/// The path of an open file without any links in it. A file system that cannot tell has none.
std::optional<QString> finalPathOf(const File &file)
{
    std::wstring path(kLongestPath, L'\0');
    path.resize(::GetFinalPathNameByHandleW(handleOf(file), path.data(), DWORD(path.size()),
                                            FILE_NAME_NORMALIZED | VOLUME_NAME_DOS));
    return path.empty() ? std::nullopt : std::optional(QString::fromStdWString(path));
}

/// The path of what is not there, with all links to its folder followed. An error when it is a link
/// itself.
Result<QString> realPathOfMissing(const FilePath &path)
{
    const std::wstring native = nativePath(path);
    const std::size_t nameStart = native.find_last_of(L'\\') + 1;
    if (::GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return failure(systemError(ERROR_FILE_NOT_FOUND));
    }
    const auto folder =
        openShared(FilePath::ofSystem(QString::fromStdWString(native.substr(0, nameStart))),
                   FILE_READ_ATTRIBUTES);
    const auto real = folder ? finalPathOf(*folder) : std::nullopt;
    if (!real) {
        return path.text();
    }
    return (real->endsWith(u'\\') ? *real : QString(*real + u'\\')) +
           QString::fromStdWString(native.substr(nameStart));
}

/// Names such as ":x" are no built-in resources here, as Qt opens none of them by name.
bool isOfNoName(QChar character)
{
    return character < u' ' || QStringView(u"<>:\"|?*").contains(character);
}

/// A time of the system in nanoseconds since 1970.
qint64 nanoseconds(qint64 ticks)
{
    constexpr qint64 kTicksBefore1970 = 116'444'736'000'000'000;
    constexpr qint64 kNanosecondsPerTick = 100;
    return (ticks - kTicksBefore1970) * kNanosecondsPerTick;
}

} // namespace

bool FilePath::canBeName(const QString &name)
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

QString FilePath::absolute() const
{
    return QDir::cleanPath(QFileInfo(m_text).absoluteFilePath()); // as Windows: by the text alone
}

FilePath::Kind FilePath::kind() const
{
    const std::wstring native = nativePath(*this);
    if (isDevice(native)) {
        return Kind::Other;
    }
    const auto file = openShared(*this, FILE_READ_ATTRIBUTES);
    if (!file) {
        // Without permission to look, assume a file; opening it tells more.
        const bool isThere = file.error().reason != FileError::Reason::Missing &&
                             ::GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES;
        return isThere ? Kind::File : Kind::Nothing;
    }
    if (::GetFileType(handleOf(*file)) != FILE_TYPE_DISK) {
        return Kind::Other;
    }
    return file->isOrdinary().value_or(true) ? Kind::File : Kind::Folder; // if unknown, the same
}

bool FilePath::exists() const
{
    return kind() != Kind::Nothing;
}

std::optional<FileState> FilePath::state() const
{
    // Where the system notes no time of change, that of the last write counts, in steps of two
    // seconds (FAT).
    constexpr qint64 kSlowStep = 20'000'000;
    const auto file = openShared(*this, FILE_READ_ATTRIBUTES);
    if (!file) {
        return std::nullopt;
    }
    const auto identity = identityOf(*file);
    const auto size = file->size();
    FILE_BASIC_INFO times = {};
    if (!identity || !size ||
        ::GetFileInformationByHandleEx(handleOf(*file), FileBasicInfo, &times, sizeof times) ==
            FALSE) {
        return std::nullopt;
    }
    const qint64 modified = times.LastWriteTime.QuadPart;
    const qint64 changed = times.ChangeTime.QuadPart;
    return FileState{identity->volume, identity->low ^ identity->high, *size, nanoseconds(modified),
                     nanoseconds(changed > 0 ? changed : modified + kSlowStep)};
}

Result<FilePath> FilePath::real() const
{
    const auto file = openShared(*this, FILE_READ_ATTRIBUTES);
    if (file) {
        return FilePath(finalPathOf(*file).value_or(m_text));
    }
    if (file.error().reason != FileError::Reason::Missing) {
        return failure(file.error());
    }
    return realPathOfMissing(*this).map(&FilePath::ofSystem);
}

Result<void> FilePath::remove() const
{
    return real().and_then([](const FilePath &path) {
        return resultOf(::DeleteFileW(nativePath(path).c_str()) != FALSE);
    });
}

Result<void> FilePath::syncFolder() const
{
    // Syncing a file syncs its entry in the folder as well, and folders cannot be synced.
    return {};
}

} // namespace tarvold
