#include "records/window_words.h"

#include "records/kind_box.h"
#include "records/wording.h"
#include "screens/failures.h"

#include <QStringList>

namespace tarvold::records::words {

using namespace Qt::StringLiterals;

namespace {

QString contentOf(DataFileKind kind)
{
    return QLatin1StringView(rowOf(kind).content);
}

} // namespace

QString notRead(const QString &name, const FileError &error)
{
    return u"The file \"%1\" can't be shown.\n\n%2\n\nThis window shows it as soon as it can be "
           "read."_s.arg(name, error.cause);
}

QString outdated(const QString &name)
{
    return u"The file \"%1\" was changed after it was loaded, by another program or by a screen of "
           "this editor.\n\nYes writes your records over it, and what was changed there is lost. "
           "After No your changes are still here; to keep both, save them to another file with "
           "Save As.\n\nWrite over it?"_s.arg(name);
}

QString unsavedBeforeSimilar(const QString &name)
{
    return u"The file \"%1\" has changes that are not saved.\n\nSave them before you write a "
           "similar record?"_s.arg(name);
}

QString grown(int records)
{
    return u"The file got %1 more at its end. Your changes are still here; Save writes all."_s.arg(
        countOf(records));
}

QString inTheWay(const QString &name)
{
    return u"The file \"%1\" is there already.\n\nYes writes all records of this window over it, "
           "and what is in it now is lost. After No it stays as it is.\n\nWrite over it?"_s.arg(
               name);
}

QString notSaved()
{
    return u"Not saved."_s;
}

QString kept()
{
    return u"All your changes are still here."_s;
}

QString notCopied(const QString &name, const FileError &error)
{
    const QString state = error.outcome == FileOutcome::Unchanged
                              ? u"Nothing was written."_s
                              : u"Part of the records may be in the file and could not be taken "
                                "out again."_s;
    return u"The file \"%1\" could not be written.\n\n%2\n\n%3"_s.arg(failures::fileOf(name, error),
                                                                      error.cause, state);
}

QString unsaved(const QString &name)
{
    return u"The file \"%1\" has changes that are not saved.\n\nSave them before the window "
           "closes?"_s.arg(name);
}

QString forgetByReload(const QString &name)
{
    return u"The file \"%1\" has changes that are not saved.\n\nYes reads the file again, and all "
           "your changes are lost.\n\nRead it again?"_s.arg(name);
}

QString forgetByKind(const QString &name, DataFileKind kind)
{
    return u"The file \"%1\" has changes that are not saved.\n\nYes reads the file again, as %2, "
           "and all your changes are lost.\n\nRead it so?"_s.arg(name, contentOf(kind));
}

QString otherKind(const QString &name, DataFileKind found, DataFileKind kind)
{
    return u"The file \"%1\" seems to hold %2, and these records are %3.\n\nNothing was written. "
           "Choose a file of the same kind."_s.arg(name, contentOf(found), contentOf(kind));
}

QString uncertainKind(const QString &name, DataFileKind kind)
{
    return u"It is not certain that the file \"%1\" holds %2.\n\nYes adds the records to its "
           "end.\n\nAdd them?"_s.arg(name, contentOf(kind));
}

QString outOfStep(const QString &name)
{
    return u"Lines are missing in the file \"%1\", or there are too many. The game would read what "
           "is added to its end wrongly.\n\nYes adds the records all the same. After No nothing is "
           "written; look through that file and repair it first.\n\nAdd them?"_s.arg(name);
}

QString notWhole(DataFileKind kind, int number)
{
    return u"Lines of %1 %2 are missing, or there are too many. In another file, too, the game "
           u"would "
           "read it wrongly, and maybe all that follows it.\n\nYes copies it as it is. After No "
           "nothing is written; repair it first.\n\nCopy it?"_s.arg(wording::recordOf(kind),
                                                                    QString::number(number));
}

QString sameFile(const QString &name)
{
    return u"The file \"%1\" is the one that these records are in.\n\nNothing was written. Choose "
           "another file, or use Duplicate in the menu Record."_s.arg(name);
}

QString tossUp(const std::vector<DataFileKind> &likely)
{
    if (likely.size() < 2 || likely.size() == kDataFileKinds.size()) {
        return u"Nothing in this file tells what its records are. Choose the kind above."_s;
    }
    QStringList kinds;
    for (const DataFileKind kind : likely) {
        kinds << contentOf(kind);
    }
    const QString last = kinds.takeLast();
    return u"This file may hold %1 or %2. Choose the kind above."_s.arg(kinds.join(u", "_s), last);
}

QString misnamed(DataFileKind named, DataFileKind kind)
{
    return u"The name says %1, but the records look like %2. The game reads this file as %1."_s.arg(
        contentOf(named), contentOf(kind));
}

QString saved(const QString &name, int records)
{
    return u"Saved %1 to %2."_s.arg(countOf(records), name);
}

QString readAgain(int records)
{
    return u"Read the file again: %1."_s.arg(countOf(records));
}

QString copied(const QString &name, int records)
{
    return u"Copied %1 to %2."_s.arg(countOf(records), name);
}

QString deleted(int records)
{
    return u"Deleted %1. The file changes only when you save."_s.arg(countOf(records));
}

QString repaired(int records, int left)
{
    QString text =
        records == 0 ? u"Nothing was repaired."_s : u"Repaired %1."_s.arg(countOf(records));
    if (left > 0) {
        text += u" %1 with problems that only you can decide."_s.arg(countOf(left));
    }
    return text;
}

QString countOf(int records)
{
    return records == 1 ? u"1 record"_s : u"%1 records"_s.arg(records);
}

} // namespace tarvold::records::words
