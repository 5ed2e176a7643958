#include "disk/file_error.h"

#include "disk/file.h"

#include <QFileInfo>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

using Reason = FileError::Reason;

/// What a writer is told, on every system. `OddLines` and `Other` have words of their own.
QString wordsFor(Reason reason)
{
    switch (reason) {
    case Reason::Missing:
        return u"The file does not exist."_s;
    case Reason::Exists:
        return u"A file with this name exists already."_s;
    case Reason::Denied:
        return u"You have no permission to use the file."_s;
    case Reason::Busy:
        return u"Another program has it open."_s;
    case Reason::ReadOnlyFile:
        return u"The file is read-only."_s;
    case Reason::ReadOnlyDisk:
        return u"The disk is read-only."_s;
    case Reason::FullDisk:
        return u"There is no space left on the disk."_s;
    case Reason::Quota:
        return u"Your share of the disk is full."_s;
    case Reason::BadDisk:
        return u"The disk failed, or was removed."_s;
    case Reason::Folder:
        return u"It is a folder."_s;
    case Reason::BelowAFile:
        return u"A part of its path is a file and no folder."_s;
    case Reason::LongName:
        return u"Its name or path is too long."_s;
    case Reason::LinkLoop:
        return u"Its symbolic links lead in a circle."_s;
    case Reason::OddLines:
    case Reason::Other:
        break;
    }
    return {};
}

/// The whole path of the folder that a file is in or would be in.
QString folderOf(const FilePath &path)
{
    return QFileInfo(path.absolute()).path();
}

bool isReadOnly(const FilePath &path)
{
    constexpr auto kAll = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return path.exists() && !(QFileInfo(path.text()).permissions() & kAll);
}

/// Why the user may not read or write a file.
QString denial(const FilePath &path, FileUse use)
{
    if (use == FileUse::Read) {
        return u"You have no permission to read the file."_s;
    }
    if (isReadOnly(path)) {
        return wordsFor(Reason::ReadOnlyFile);
    }
    // If the file itself can be written, its folder takes no new file.
    const bool isFile = path.exists() && !File::open(path, File::Access::Write);
    return isFile ? u"You have no permission to write to the file."_s
                  : u"You may not write in the folder \"%1\"."_s.arg(folderOf(path));
}

} // namespace

FileError errorFor(FileError::Reason reason)
{
    return {.cause = wordsFor(reason), .outcome = FileOutcome::Unchanged, .reason = reason};
}

FileError withPath(FileError error, const FilePath &path, FileUse use)
{
    const FilePath real = path.real().value_or(path);
    if (error.reason == Reason::Missing && !QFileInfo(folderOf(real)).isDir()) {
        error.cause = u"The folder \"%1\" does not exist."_s.arg(folderOf(real));
    } else if (error.reason == Reason::Denied) {
        error.cause = denial(real, use);
    }
    return error;
}

} // namespace tarvold
