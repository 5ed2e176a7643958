#include "screens/failures.h"

namespace tarvold::failures {
namespace {

/// A character and its number. One that cannot be seen, or that would change how what stands beside
/// it looks, is told by its number alone.
QString shown(char32_t character)
{
    const QString number =
        QStringLiteral("U+") + QString::number(character, 16).rightJustified(4, u'0').toUpper();
    const bool canBeSeen = QChar::isPrint(character) && !QChar::isSpace(character) &&
                           !QChar::isMark(character) && !QChar::isNonCharacter(character);
    return canBeSeen ? QStringLiteral("\"%1\" (%2)").arg(QString::fromUcs4(&character, 1), number)
                     : number;
}

} // namespace

QString notSaved(const QString &name, const FileError &error)
{
    const QString state =
        error.unchanged
            ? QStringLiteral("Nothing was written, and everything that you typed is still here.")
            : QStringLiteral("Part of the record may be in the file and could not be taken out "
                             "again. Everything that you typed is still here.");
    return QStringLiteral("The file \"%1\" could not be written.\n\n%2\n\n%3")
        .arg(name, error.cause, state);
}

QString notRewritten(const QString &name, const FileError &error, const QString &kept)
{
    if (error.inPlace) {
        return QStringLiteral(
                   "The file \"%1\" was written, but the disk did not confirm it.\n\n%2\n\n"
                   "The change is in the file. Should the computer stop before the disk "
                   "has caught up, it may be lost.")
            .arg(name, error.cause);
    }
    return QStringLiteral(
               "The file \"%1\" could not be written.\n\n%2\n\nThe file is as it was. %3")
        .arg(name, error.cause, kept);
}

QString outdated(const QString &name, const QString &kept)
{
    return QStringLiteral("The file \"%1\" was changed by another program after this list was "
                          "loaded.\n\nYes writes your list over it, and what the other program "
                          "changed is lost. %2 To see what was changed, open the list again from "
                          "the main menu.\n\nWrite over it?")
        .arg(name, kept);
}

QString inTheWay(const QString &name)
{
    return QStringLiteral("The file \"%1\" is there already.\n\nYes writes your list over it, and "
                          "what is in it now is lost. No lets you choose another name.\n\nWrite "
                          "over it?")
        .arg(name);
}

QString notLoaded(const QString &name, const FileError &error)
{
    const QString state =
        error.unchanged
            ? QStringLiteral("Nothing was changed.")
            : QStringLiteral("The file was missing, and an empty one may be there now.");
    return QStringLiteral("The file \"%1\" could not be loaded.\n\n%2\n\n%3")
        .arg(name, error.cause, state);
}

QString tooLongToEdit(int line, qsizetype length, qsizetype most)
{
    return QStringLiteral("Line %1 of this stipulation has %2 characters. The form can show %3 at "
                          "most.\n\nNothing was changed.")
        .arg(QString::number(line), QString::number(length), QString::number(most));
}

QString noSource()
{
    return QStringLiteral("No file to import from is selected.\n\nNothing was imported. Select a "
                          "file in the list, then import again.");
}

QString notImported(const QString &name, const FileError &error)
{
    const QString state =
        error.unchanged
            ? QStringLiteral("Nothing was imported. Mend the file or choose another one, then "
                             "import again.")
            : QStringLiteral("Part of the records may be in the file and could not be taken out "
                             "again.");
    return QStringLiteral("The file \"%1\" kept the import from being done.\n\n%2\n\n%3")
        .arg(name, error.cause, state);
}

QString cannotHold(const MissingCharacter &missing)
{
    return QStringLiteral("The field \"%1\" holds the character %2, which the data files cannot "
                          "hold.\n\nNothing was written, and everything that you typed is still "
                          "here.")
        .arg(missing.field, shown(missing.character));
}

} // namespace tarvold::failures
