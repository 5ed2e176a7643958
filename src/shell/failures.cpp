#include "shell/failures.h"

namespace tarvold::failures {

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

QString notLoaded(const QString &name, const FileError &error)
{
    return QStringLiteral("The file \"%1\" could not be loaded.\n\n%2\n\nNothing was changed.")
        .arg(name, error.cause);
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
    return QStringLiteral("The field \"%1\" holds the character \"%2\" (U+%3), which the data "
                          "files cannot hold.\n\nNothing was written, and everything that you "
                          "typed is still here.")
        .arg(missing.field, QString::fromUcs4(&missing.character, 1),
             QString::number(missing.character, 16).rightJustified(4, u'0').toUpper());
}

} // namespace tarvold::failures
