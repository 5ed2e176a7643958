// Two copies of the program at the same file at the same time: everything is there afterwards,
// whole, and what was written together stays together.

#include "datafiles/import_merge.h"
#include "datafiles/stipulation_table.h"
#include "disk/append.h"
#include "support/folder_test.h"
#include "support/processes.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLines = StipulationTable::kLinesPerRecord;
const auto kSource = u"source.tvd"_s;
const auto kTarget = u"target.tvd"_s;

QByteArray numbered(const QByteArray &writer, int number)
{
    return recordOf(kLines, {writer, QByteArray::number(number)});
}

/// The records of a writer with numbers up to, not including, `end`.
QByteArray block(const QByteArray &writer, int end)
{
    QByteArray bytes;
    for (int number = 0; number < end; ++number) {
        bytes += numbered(writer, number);
    }
    return bytes;
}

class TwoPrograms : public FolderTest
{
protected:
    /// Appends numbered records as another program.
    static pid_t startAppending(int records)
    {
        return start([records] {
            bool allSaved = true;
            for (int number = 0; number < records; ++number) {
                allSaved = appendToFile(kTarget, numbered("appended", number)) && allSaved;
            }
            return allSaved;
        });
    }

    /// Takes all of the target's appended records out of it, which must be there in their order,
    /// and returns the rest.
    static QByteArray withoutAppended(int records)
    {
        QByteArray rest = bytesIn(kTarget);
        qsizetype from = 0;
        for (int number = 0; number < records; ++number) {
            const QByteArray record = numbered("appended", number);
            from = rest.indexOf(record, from);
            EXPECT_GE(from, 0) << "appended record " << number << " is lost";
            if (from < 0) {
                break;
            }
            rest.remove(from, record.size());
        }
        return rest;
    }
};

TEST_F(TwoPrograms, WhatOneImportsStaysTogetherWhileTheOtherAppends)
{
    constexpr int kAppended = 500;
    constexpr int kImported = 2000;
    const QByteArray imported = block("imported", kImported);
    putBytes(kSource, imported);
    putBytes(kTarget, {});
    const pid_t appending = startAppending(kAppended);
    int imports = 0;
    do {
        ASSERT_TRUE(importRecords({kSource, kTarget, DataFileKind::Interviews}, {}));
        ++imports;
    } while (imports < 5 || (isRunning(appending) && imports < 40));
    EXPECT_TRUE(succeeds(appending));
    EXPECT_EQ(bytesIn(kTarget).count(imported), imports);
    EXPECT_EQ(withoutAppended(kAppended), imported.repeated(imports));
    EXPECT_EQ(bytesIn(kSource), imported);
}

/// Edits the first stipulation until so many edits are saved; one that meets another program's
/// change is made again on what is there now.
void saveEdits(int edits)
{
    for (int edit = 1; edit <= edits;) {
        StipulationTable table;
        ASSERT_TRUE(table.load(kTarget));
        StipulationTable::Record record;
        record[1] = QByteArray::number(edit);
        table.replace(0, record);
        const auto written = table.writeBack(kTarget);
        ASSERT_TRUE(written || written.error().outcome == FileOutcome::ChangedByAnother)
            << written.error().cause.toStdString();
        edit += written ? 1 : 0;
    }
}

TEST_F(TwoPrograms, NoStipulationIsLostWhenOneEditsThemWhileTheOtherAppends)
{
    constexpr int kAppended = 300;
    constexpr int kEdits = 100;
    putBytes(kTarget, numbered("edited", 0));
    const pid_t appending = startAppending(kAppended);
    saveEdits(kEdits);
    EXPECT_TRUE(succeeds(appending));
    EXPECT_EQ(withoutAppended(kAppended), numbered("edited", kEdits));
}

TEST_F(TwoPrograms, NoStipulationIsLostWhenOneEditsThemWhileTheOtherImports)
{
    constexpr int kImports = 30;
    constexpr int kImported = 200;
    constexpr int kEdits = 50;
    const QByteArray imported = block("imported", kImported);
    putBytes(kSource, imported);
    putBytes(kTarget, numbered("edited", 0));
    const pid_t importing = start([] {
        bool allDone = true;
        for (int import = 0; import < kImports; ++import) {
            // As interviews, which have as many lines: stipulations would be told as duplicates.
            allDone = importRecords({kSource, kTarget, DataFileKind::Interviews}, {}) && allDone;
        }
        return allDone;
    });
    saveEdits(kEdits);
    EXPECT_TRUE(succeeds(importing));
    EXPECT_EQ(bytesIn(kTarget), numbered("edited", kEdits) + imported.repeated(kImports));
}

} // namespace
} // namespace tarvold::testing
