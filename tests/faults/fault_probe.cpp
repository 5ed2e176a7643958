// One save of the file layer, to be run under injected faults:
//
//     fault_probe append FILE RECORD     adds the bytes of the file RECORD to FILE
//     fault_probe rewrite FILE RECORD    loads the stipulations of FILE, puts the lines of RECORD
//     in
//                                        the place of the second one and writes them back
//
// RECORD is read before FILE is touched. The exit code tells what the file layer reported.

#include "datafiles/append.h"
#include "datafiles/line_reader.h"
#include "datafiles/read.h"
#include "datafiles/stipulation_table.h"

#include <QFile>

#include <csignal>
#include <cstdio>

namespace {

using tarvold::FileError;
using tarvold::StipulationTable;

enum Outcome { Saved = 0, Unchanged = 1, PossiblyChanged = 2, WrongUse = 3 };

std::optional<FileError> rewrite(const QString &file, QByteArrayView lines)
{
    StipulationTable table;
    if (auto error = table.load(file)) {
        return error;
    }
    tarvold::LineReader reader(lines);
    StipulationTable::Record record;
    for (auto &line : record) {
        line = reader.readLine().toByteArray();
    }
    table.replace(StipulationTable::kLinesPerRecord, record);
    return table.writeBack(file);
}

Outcome report(const std::optional<FileError> &error)
{
    if (!error) {
        std::puts("ok");
        return Saved;
    }
    std::printf("%s: %s\n", error->unchanged ? "unchanged" : "possibly changed",
                qPrintable(error->cause));
    return error->unchanged ? Unchanged : PossiblyChanged;
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
    const tarvold::FileContent record = tarvold::readFile(QString::fromLocal8Bit(argv[3]));
    if (record.error) {
        return WrongUse;
    }
    if (operation == QLatin1String("append")) {
        return report(tarvold::appendToFile(file, record.bytes));
    }
    if (operation == QLatin1String("rewrite")) {
        return report(rewrite(file, record.bytes));
    }
    return WrongUse;
}
