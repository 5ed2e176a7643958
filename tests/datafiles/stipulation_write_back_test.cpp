// What a stipulations file holds after it was loaded, changed and written back.

#include "datafiles/stipulation_table.h"

#include <QFile>
#include <QList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarvold {

using namespace Qt::StringLiterals;

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

    QString path() const { return folder.filePath(u"stipulations.tvd"_s); }

    void load(const QByteArray &bytes)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
        file.close();
        ASSERT_TRUE(table.load(path()));
    }

    QByteArray writtenBack()
    {
        EXPECT_TRUE(table.writeBack(path()));
        return content();
    }

    QByteArray content() const
    {
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

TEST_F(StipulationWriteBack, ARecordAfterALastLineWithoutItsEndStartsANewLine)
{
    Lines lines = linesOf(1);
    lines.last() = "No";
    QByteArray bytes = fileOf(lines);
    bytes.chop(2);
    load(bytes);
    table.append(record("new"));
    EXPECT_EQ(writtenBack(), fileOf(lines + Lines(kLines, "new")));
}

TEST_F(StipulationWriteBack, OnlyTheChangedRecordDiffers)
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

TEST_F(StipulationWriteBack, ATableWhoseChangeFailedIsTheOldFile)
{
    const QByteArray bytes = fileOf(linesOf(3));
    load(bytes);
    const auto edit = [](StipulationTable &changed) {
        changed.replace(0, record("changed"));
        changed.remove(kLines);
    };
    EXPECT_FALSE(table.change(folder.filePath(u"missing/a.tvd"_s), edit, {}));
    EXPECT_EQ(writtenBack(), bytes);
}

/// Two programs that have loaded the same file.
class TwoStipulationTables : public StipulationWriteBack
{
protected:
    TwoStipulationTables()
    {
        load(fileOf(linesOf(2)));
        EXPECT_TRUE(other.load(path()));
        other.append(record("other"));
        EXPECT_TRUE(other.writeBack(path()));
        others = content();
        table.append(record("own"));
    }

    StipulationTable other;
    QByteArray others; ///< the file as the other program wrote it
};

TEST_F(TwoStipulationTables, KeepWhatTheOtherOneWrote)
{
    const auto written = table.writeBack(path());
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().outcome, FileOutcome::ChangedByAnother);
    EXPECT_EQ(content(), others);
}

TEST_F(TwoStipulationTables, RefuseAgainUntilTheFileIsLoadedAgain)
{
    EXPECT_FALSE(table.writeBack(path()));
    EXPECT_FALSE(table.writeBack(path()));
    ASSERT_TRUE(table.load(path()));
    table.append(record("own"));
    EXPECT_EQ(writtenBack(), others + fileOf(Lines(kLines, "own")));
}

TEST_F(TwoStipulationTables, OverwriteTheOtherOneWhenAllowed)
{
    EXPECT_TRUE(table.writeBack(path(), [] { return true; }));
    EXPECT_EQ(content(), fileOf(linesOf(2) + Lines(kLines, "own")));
    table.append(record("next"));
    EXPECT_EQ(writtenBack(), fileOf(linesOf(2) + Lines(kLines, "own") + Lines(kLines, "next")));
}

TEST_F(StipulationWriteBack, ASecondOneKnowsWhatTheFirstOneWrote)
{
    load(fileOf(linesOf(1)));
    table.append(record("first"));
    EXPECT_TRUE(table.writeBack(path()));
    table.append(record("second"));
    EXPECT_EQ(writtenBack(), fileOf(linesOf(1) + Lines(kLines, "first") + Lines(kLines, "second")));
}

TEST_F(StipulationWriteBack, LinesStayTheSameAfterEverySave)
{
    Lines lines = linesOf(3);
    load(fileOf(lines));
    const auto expectLines = [this, &lines] {
        ASSERT_EQ(table.lineCount(), lines.size());
        for (int index = 0; index < table.lineCount(); ++index) {
            EXPECT_EQ(table.line(index), lines.at(index)) << index;
        }
    };
    table.replace(kLines, record("edited"));
    lines = lines.mid(0, kLines) + Lines(kLines, "edited") + lines.mid(2 * kLines);
    EXPECT_EQ(writtenBack(), fileOf(lines));
    expectLines();
    table.remove(0);
    lines = lines.mid(kLines);
    table.append(record("new"));
    lines += Lines(kLines, "new");
    EXPECT_EQ(writtenBack(), fileOf(lines));
    expectLines();
}

TEST_F(StipulationWriteBack, AFileReplacedByTheSameBytesIsNotChanged)
{
    const QByteArray bytes = fileOf(linesOf(1));
    load(bytes);
    ASSERT_TRUE(QFile::remove(path()));
    QFile copy(path());
    ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
    ASSERT_EQ(copy.write(bytes), bytes.size());
    copy.close();
    EXPECT_EQ(writtenBack(), bytes);
}

TEST_F(StipulationWriteBack, AFileThatVanishedIsCreatedAgain)
{
    const QByteArray bytes = fileOf(linesOf(1));
    load(bytes);
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_EQ(writtenBack(), bytes);
}

} // namespace
} // namespace tarvold
