#include "screens/failures.h"

#include "disk/file_path.h"
#include "screens/file_facts.h"

#include <QFileInfo>

namespace tarvold::failures {

using namespace Qt::StringLiterals;

namespace {

/// A character and its number. Only the number of a character that is invisible or would change how
/// its neighbours look.
QString shown(char32_t character)
{
    const QString number =
        u"U+"_s + QString::number(character, 16).rightJustified(4, u'0').toUpper();
    const bool canBeSeen = QChar::isPrint(character) && !QChar::isSpace(character) &&
                           !QChar::isMark(character) && !QChar::isNonCharacter(character);
    return canBeSeen ? u"\"%1\" (%2)"_s.arg(QString::fromUcs4(&character, 1), number) : number;
}

bool isUnchanged(const FileError &error)
{
    return error.outcome == FileOutcome::Unchanged;
}

} // namespace

QString fileOf(const QString &name, const FileError &error)
{
    const auto typed = FilePath::ofTyped(name);
    const QString folder = typed ? QFileInfo(typed->absolute()).path() : QString();
    const bool isTold = error.cause.contains(u"\"%1\""_s.arg(folder));
    return isTold ? name : filefacts::wholePath(name);
}

QString notSaved(const QString &name, const FileError &error)
{
    const QString state =
        isUnchanged(error) ? u"Nothing was written, and everything that you typed is still here."_s
                           : u"Part of the record may be in the file and could not be taken out "
                             "again. Everything that you typed is still here."_s;
    return u"The file \"%1\" could not be written.\n\n%2\n\n%3"_s.arg(fileOf(name, error),
                                                                      error.cause, state);
}

QString notRewritten(const QString &name, const FileError &error, const QString &kept)
{
    if (error.outcome == FileOutcome::Unconfirmed) {
        return u"The file \"%1\" was written, but the disk did not confirm it.\n\n%2\n\n"
               "The change is in the file. Should the computer stop before the disk "
               "has caught up, it may be lost."_s.arg(fileOf(name, error), error.cause);
    }
    return u"The file \"%1\" could not be written.\n\n%2\n\nThe file is as it was. %3"_s.arg(
        fileOf(name, error), error.cause, kept);
}

QString outdated(const QString &name, const QString &kept)
{
    return u"The file \"%1\" was changed by another program after this list was "
           "loaded.\n\nYes writes your list over it, and what the other program "
           "changed is lost. %2 To see what was changed, open the list again from "
           "the main menu.\n\nWrite over it?"_s.arg(name, kept);
}

QString inTheWay(const QString &name)
{
    return u"The file \"%1\" is there already.\n\nYes writes your list over it, and "
           "what is in it now is lost. No lets you choose another name.\n\nWrite "
           "over it?"_s.arg(name);
}

QString notLoaded(const QString &name, const FileError &error)
{
    QString state = isUnchanged(error)
                        ? u"Nothing was changed."_s
                        : u"The file was missing, and an empty one may be there now."_s;
    if (error.reason == FileError::Reason::OddLines) {
        state += u" To repair the file, press Ctrl+O on the main menu."_s;
    }
    return u"The file \"%1\" could not be loaded.\n\n%2\n\n%3"_s.arg(fileOf(name, error),
                                                                     error.cause, state);
}

QString tooLongToEdit(int line, qsizetype length, qsizetype most)
{
    return u"Line %1 of this stipulation has %2 characters. The form can show %3 at "
           "most.\n\nNothing was changed."_s.arg(QString::number(line), QString::number(length),
                                                 QString::number(most));
}

QString noSource()
{
    return u"No file to import from is selected.\n\nNothing was imported. Select a "
           "file in the list, then import again."_s;
}

QString notImported(const QString &name, const FileError &error)
{
    const QString state =
        isUnchanged(error) ? u"Nothing was imported. Correct the file or choose another one, then "
                             "import again."_s
                           : u"Part of the records may be in the file and could not be taken out "
                             "again."_s;
    return u"The file \"%1\" kept the import from being done.\n\n%2\n\n%3"_s.arg(
        fileOf(name, error), error.cause, state);
}

QString cannotHold(const MissingCharacter &missing)
{
    return u"The field \"%1\" holds the character %2, which the data files cannot "
           "hold.\n\nNothing was written, and everything that you typed is still "
           "here."_s.arg(missing.field, shown(missing.character));
}

} // namespace tarvold::failures
