#include "datafiles/stipulation_table.h"
#include "support/folder_test.h"
#include "support/stipulation_records.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class StipulationTableLoad : public FolderTest
{
protected:
    static QString name() { return u"a.tvd"_s; }

    Result<void> load(const QByteArray &bytes)
    {
        writeFile("a.tvd", bytes);
        return table.load(name());
    }

    /// Fails unless a file of this name is refused and the table stays as it was.
    QString refusal(const char *unfit)
    {
        EXPECT_TRUE(load(stipulation("Singles", "Kept")));
        const auto loaded = table.load(QString::fromLatin1(unfit));
        EXPECT_FALSE(loaded) << unfit;
        EXPECT_EQ(table.lineCount(), 19);
        EXPECT_EQ(table.line(1), "Kept");
        return loaded ? QString() : loaded.error().cause;
    }

    StipulationTable table;
};

TEST_F(StipulationTableLoad, CreatesAMissingFileEmpty)
{
    EXPECT_TRUE(table.load(name()));
    EXPECT_EQ(table.lineCount(), 0);
    EXPECT_EQ(folderContent(), "a.tvd");
    EXPECT_EQ(readBack("a.tvd"), "");
}

TEST_F(StipulationTableLoad, TakesAnEmptyFileAsAnEmptyTable)
{
    EXPECT_TRUE(load(""));
    EXPECT_EQ(table.lineCount(), 0);
    EXPECT_TRUE(table.allRecords().empty());
}

TEST_F(StipulationTableLoad, KeepsAllLinesInTheOrderOfTheFile)
{
    QByteArray bytes;
    for (int record = 0; record < 50; ++record) {
        bytes += stipulation("Type " + QByteArray::number(record), "Name");
    }
    EXPECT_TRUE(load(bytes));
    ASSERT_EQ(table.lineCount(), 50 * 19);
    for (int record = 0; record < 50; ++record) {
        const auto lines = stipulationLines("Type " + QByteArray::number(record), "Name");
        for (int offset = 0; offset < 19; ++offset) {
            EXPECT_EQ(table.line(record * 19 + offset), lines.at(std::size_t(offset)));
        }
    }
}

TEST_F(StipulationTableLoad, NeedsNoLineEndAfterTheLastLine)
{
    QByteArray bytes = stipulation("Singles", "Cage");
    bytes.chop(2);
    EXPECT_TRUE(load(bytes));
    EXPECT_EQ(table.lineCount(), 19);
    EXPECT_EQ(table.line(18), "Yes");
}

TEST_F(StipulationTableLoad, ReplacesWhatWasLoadedBefore)
{
    EXPECT_TRUE(load(stipulation("Singles", "One") + stipulation("Singles", "Two")));
    EXPECT_TRUE(load(stipulation("Tag Team", "Three")));
    EXPECT_EQ(table.lineCount(), 19);
    EXPECT_EQ(table.displayText(0), "Tag Team / Three");
}

TEST_F(StipulationTableLoad, SaysHowManyLinesAFileHasThatEndsInsideARecord)
{
    for (const int lines : {1, 18, 20, 37, 39}) {
        QByteArray bytes;
        for (int line = 0; line < lines; ++line) {
            bytes += "x\r\n";
        }
        writeFile("short.tvd", bytes);
        const QString cause = refusal("short.tvd");
        EXPECT_TRUE(cause.contains(u"lines found: %1)"_s.arg(lines))) << qPrintable(cause);
        EXPECT_TRUE(cause.contains(u"19"_s)) << qPrintable(cause);
        EXPECT_EQ(readBack("short.tvd"), bytes);
    }
    EXPECT_EQ(folderContent(), "a.tvd short.tvd");
}

TEST_F(StipulationTableLoad, RefusesWhatIsNoOrdinaryFile)
{
    ASSERT_TRUE(QDir().mkdir(u"folder.tvd"_s));
    for (const char *unfit : {"", "folder.tvd", "missing/a.tvd"}) {
        EXPECT_FALSE(refusal(unfit).isEmpty());
    }
    EXPECT_EQ(folderContent(), "a.tvd folder.tvd");
}

} // namespace
} // namespace tarvold::testing
