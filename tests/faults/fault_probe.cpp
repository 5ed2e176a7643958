// One save of the file layer, to be run under faults and hindrances:
//
//     fault_probe append FILE RECORD     adds the bytes of the file RECORD to FILE
//     fault_probe rewrite FILE RECORD    loads the stipulations of FILE, puts the lines of RECORD
//                                        in the place of the second one and writes them back
//     fault_probe interviews FILE SOURCE     imports the interviews of SOURCE into FILE
//     fault_probe stipulations FILE SOURCE   imports the stipulations of SOURCE into FILE
//
// RECORD is read before FILE is touched. The exit code tells what the file layer reported.

#include "datafiles/import_merge.h"
#include "datafiles/line_reader.h"
#include "datafiles/stipulation_table.h"
#include "disk/append.h"
#include "disk/read.h"

#include <QFile>

#include <csignal>
#include <cstdio>

namespace {

using namespace Qt::StringLiterals;

using tarvold::FileOutcome;
using tarvold::Result;
using tarvold::StipulationTable;

enum Outcome { Saved = 0, Unchanged = 1, PossiblyChanged = 2, WrongUse = 3 };

Result<void> rewrite(const QString &file, QByteArrayView lines)
{
    StipulationTable table;
    if (auto loaded = table.load(file); !loaded) {
        return loaded;
    }
    tarvold::LineReader reader(lines);
    StipulationTable::Record record;
    for (auto &line : record) {
        line = reader.readLine().toByteArray();
    }
    const auto edit = [&record](StipulationTable &changed) {
        changed.replace(StipulationTable::kLinesPerRecord, record);
    };
    return table.change(file, edit, {});
}

Result<void> import(tarvold::DataFileKind kind, const QString &file, const QString &source)
{
    return tarvold::importRecords({source, file, kind}, [](const QString &) {})
        .map_error([](const tarvold::ImportFailure &failure) { return failure.error; });
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
    if (argc != 4 || std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR) {
        return WrongUse;
    }
    const QString operation = QString::fromLocal8Bit(argv[1]);
    const QString file = QString::fromLocal8Bit(argv[2]);
    const QString other = QString::fromLocal8Bit(argv[3]);
    if (operation == "interviews"_L1) {
        return report(import(tarvold::DataFileKind::Interviews, file, other));
    }
    if (operation == "stipulations"_L1) {
        return report(import(tarvold::DataFileKind::Stipulations, file, other));
    }
    const auto record = tarvold::readFile(other);
    if (!record) {
        return WrongUse;
    }
    if (operation == "append"_L1) {
        return report(tarvold::appendToFile(file, *record));
    }
    if (operation == "rewrite"_L1) {
        return report(rewrite(file, *record));
    }
    return WrongUse;
}
