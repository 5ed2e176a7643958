// What a stipulations file holds after it was loaded, changed and written back.

#include "datafiles/stipulation_table.h"

#include <QFile>
#include <QList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarvold {
namespace {

using Lines = QList<QByteArray>;

constexpr int kLines = StipulationTable::kLinesPerRecord;

class StipulationWriteBack : public ::testing::Test
{
protected:
    /// Lines of all kinds: long and empty ones, lone line breaks, bytes that are no text.
    static Lines linesOf(int records)
    {
        const Lines kinds = {
            "Singles", "", "a\rb\nc", QByteArray("\0\xff\x80", 3), QByteArray(5000, 'x'),
            "",        "", "\n"};
        Lines lines;
        for (int index = 0; index < records * kLines; ++index) {
            lines << kinds.at(index % kinds.size());
        }
        return lines;
    }

    static QByteArray fileOf(const Lines &lines)
    {
        QByteArray bytes;
        for (const QByteArray &line : lines) {
            bytes += line + "\r\n";
        }
        return bytes;
    }

    static StipulationTable::Record record(const QByteArray &text)
    {
        StipulationTable::Record record;
        record.fill(text);
        return record;
    }

    QString path() const { return folder.filePath(QStringLiteral("stipulations.tvd")); }

    void load(const QByteArray &bytes)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
        file.close();
        ASSERT_FALSE(table.load(path()));
    }

    QByteArray writtenBack() const
    {
        EXPECT_FALSE(table.writeBack(path()));
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
    StipulationTable table;
};

TEST_F(StipulationWriteBack, AnUntouchedTableIsTheSameFile)
{
    const QByteArray bytes = fileOf(linesOf(5));
    load(bytes);
    EXPECT_EQ(writtenBack(), bytes);
}

TEST_F(StipulationWriteBack, AnEmptyTableIsAnEmptyFile)
{
    load({});
    EXPECT_EQ(writtenBack(), QByteArray());
}

TEST_F(StipulationWriteBack, ALastLineWithoutItsEndGetsOne)
{
    Lines lines = linesOf(1);
    lines.last() = "No";
    QByteArray bytes = fileOf(lines);
    bytes.chop(2);
    load(bytes);
    EXPECT_EQ(writtenBack(), fileOf(lines));
}

TEST_F(StipulationWriteBack, ARecordBehindALastLineWithoutItsEndStandsApart)
{
    Lines lines = linesOf(1);
    lines.last() = "No";
    QByteArray bytes = fileOf(lines);
    bytes.chop(2);
    load(bytes);
    table.append(record("new"));
    EXPECT_EQ(writtenBack(), fileOf(lines + Lines(kLines, "new")));
}

TEST_F(StipulationWriteBack, OnlyTheChangedRecordIsAnother)
{
    Lines lines = linesOf(5);
    load(fileOf(lines));
    StipulationTable::Record changed = record("changed");
    changed[0] = QByteArray();
    changed[17] = std::nullopt;
    table.replace(2 * kLines, changed);
    for (int offset = 0; offset < kLines; ++offset) {
        if (changed.at(std::size_t(offset))) {
            lines[2 * kLines + offset] = *changed.at(std::size_t(offset));
        }
    }
    EXPECT_EQ(writtenBack(), fileOf(lines));
}

TEST_F(StipulationWriteBack, ADeletedRecordIsMissingAndNothingElse)
{
    Lines lines = linesOf(5);
    load(fileOf(lines));
    table.remove(kLines);
    lines.remove(kLines, kLines);
    EXPECT_EQ(writtenBack(), fileOf(lines));
}

TEST_F(StipulationWriteBack, AppendedRecordsStandAtTheEnd)
{
    const Lines lines = linesOf(2);
    load(fileOf(lines));
    table.append(record("new"));
    table.append(record({}));
    EXPECT_EQ(writtenBack(), fileOf(lines + Lines(kLines, "new") + Lines(kLines, {})));
}

TEST_F(StipulationWriteBack, ATableGoneBackToASnapshotIsTheOldFile)
{
    const QByteArray bytes = fileOf(linesOf(3));
    load(bytes);
    StipulationTable::Snapshot before = table.snapshot();
    table.replace(0, record("changed"));
    table.remove(kLines);
    table.restore(std::move(before));
    EXPECT_EQ(writtenBack(), bytes);
}

} // namespace
} // namespace tarvold
