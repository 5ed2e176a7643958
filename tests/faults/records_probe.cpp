// One save of the records window's document, to be run under faults:
//
//     records_probe rewrite FILE RECORD      loads the talk shows of FILE, puts RECORD in the place
//     of
//                                            the second one and saves
//
// RECORD is read before FILE is touched. The exit code tells what the document reported.

#include "disk/read.h"
#include "records/document.h"

#include <QFile>

#include <csignal>
#include <cstdio>

namespace {

using namespace Qt::StringLiterals;

using tarvold::DataFileKind;
using tarvold::FileOutcome;
using tarvold::Result;
using tarvold::records::Document;

enum Outcome { Saved = 0, Unchanged = 1, PossiblyChanged = 2, WrongUse = 3 };

Result<void> save(const QString &file, const QByteArray &record)
{
    Document document;
    if (auto opened = document.open(file, DataFileKind::TalkShows); !opened) {
        return opened;
    }
    if (document.count() < 2) {
        return tarvold::failure(u"There is no second record."_s);
    }
    document.replace(1, record, u"Edit"_s);
    Result<void> saved = document.save({});
    // What it says of itself must be true as well.
    if (document.isChanged() == Document::isInFile(saved)) {
        return tarvold::failure(u"The document does not know whether it is saved."_s,
                                FileOutcome::MaybeChanged);
    }
    return saved;
}

Outcome report(const Result<void> &result)
{
    if (result) {
        std::puts("ok");
        return Saved;
    }
    const bool isUnchanged = result.error().outcome == FileOutcome::Unchanged ||
                             result.error().outcome == FileOutcome::ChangedByAnother;
    std::printf("%s: %s\n", isUnchanged ? "unchanged" : "possibly changed",
                qPrintable(result.error().cause));
    return isUnchanged ? Unchanged : PossiblyChanged;
}

} // namespace

int main(int argc, char *argv[])
{
    // A file that grows too large is an error to report, not the end of the program.
    if (argc != 4 || qstrcmp(argv[1], "rewrite") != 0 || std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR) {
        return WrongUse;
    }
    const auto record = tarvold::readFile(QString::fromLocal8Bit(argv[3]));
    return record ? report(save(QString::fromLocal8Bit(argv[2]), *record)) : WrongUse;
}
