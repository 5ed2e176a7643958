#include "datafiles/stipulation_table.h"
#include "support/folder_test.h"
#include "support/stipulation_records.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

StipulationTable::Record tableRecord(const std::array<QByteArray, 19> &lines)
{
    StipulationTable::Record record;
    for (std::size_t offset = 0; offset < lines.size(); ++offset) {
        record.at(offset) = lines.at(offset);
    }
    return record;
}

class StipulationTableTest : public FolderTest
{
protected:
    void fill(const QByteArray &bytes)
    {
        writeFile("a.tvd", bytes);
        ASSERT_TRUE(table.load(name()));
    }

    /// What a file holds that the table is written to now.
    QByteArray written()
    {
        EXPECT_TRUE(table.writeBack(name()));
        return readBack("a.tvd");
    }

    static QString name() { return u"a.tvd"_s; }

    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
    const QByteArray three = stipulation("Tag Team", "Three");
    const QByteArray four = stipulation("Tag Team", "Four", {{3, "Fourth"}});
    const StipulationTable::Record fourth =
        tableRecord(stipulationLines("Tag Team", "Four", {{3, "Fourth"}}));
    StipulationTable table;
};

using Indices = std::vector<int>;

TEST_F(StipulationTableTest, ReadsEmptyLinesPastTheEnd)
{
    EXPECT_EQ(table.line(0), "");
    fill(one);
    for (const int index : {19, 20, 38, 1000000}) {
        EXPECT_EQ(table.line(index), "");
    }
}

TEST_F(StipulationTableTest, ShowsMatchTypeAndNameJoined)
{
    fill(one + three);
    EXPECT_EQ(table.displayText(0), "Singles / One");
    EXPECT_EQ(table.displayText(19), "Tag Team / Three");
    EXPECT_EQ(table.displayText(38), " / ");
}

TEST_F(StipulationTableTest, FindsAStipulationByTheIndexOfItsFirstLine)
{
    fill(one + two + three);
    EXPECT_EQ(table.find("Singles / One"), Indices{0});
    EXPECT_EQ(table.find("Singles / Two"), Indices{19});
    EXPECT_EQ(table.find("Tag Team / Three"), Indices{38});
}

TEST_F(StipulationTableTest, FindsNothingForAnyOtherText)
{
    fill(one + stipulation("A", "B", {{3, "C"}}));
    for (const char *text : {"Singles / one", "Singles /One", "Singles / One ", "B / C", "", "A"}) {
        EXPECT_EQ(table.find(text), Indices{}) << text;
    }
}

TEST_F(StipulationTableTest, FindsAllOfSeveralWithTheSameTextInTheirOrder)
{
    fill(one + two + one + two);
    EXPECT_EQ(table.find("Singles / One"), (Indices{0, 38}));
}

TEST_F(StipulationTableTest, FindsAllWhenMatchTypesAndNamesHoldTheSeparator)
{
    fill(stipulation("a / b", "c") + stipulation("a", "b / c") + one);
    EXPECT_EQ(table.find("a / b / c"), (Indices{0, 19}));
    table.remove(19);
    EXPECT_EQ(table.find("a / b / c"), Indices{0});
}

TEST_F(StipulationTableTest, FindsNothingAfterTheLastLine)
{
    EXPECT_EQ(table.find(" / "), Indices{});
    fill(one);
    EXPECT_EQ(table.find(" / "), Indices{});
    fill(stipulation("", "") + one);
    EXPECT_EQ(table.find(" / "), Indices{0});
}

TEST_F(StipulationTableTest, ListsEveryRecordAfterLoadingAndNamedOnesAfterAChange)
{
    fill(one + stipulation("", "Two") + three + stipulation("Singles", ""));
    EXPECT_EQ(table.allRecords(), (Indices{0, 19, 38, 57}));
    EXPECT_EQ(table.namedRecords(), (Indices{0, 38, 57}));
}

TEST_F(StipulationTableTest, CountsAKeyAtEveryPlaceButOne)
{
    // "No" and "7" are lines 7 and 8 of every record here, "Yes" and the next match type stand at
    // the border of two records.
    fill(one + two + one);
    EXPECT_EQ(table.countKey("Singles", "One", -1), 2);
    EXPECT_EQ(table.countKey("Singles", "One", 0), 1);
    EXPECT_EQ(table.countKey("Singles", "One", 38), 1);
    EXPECT_EQ(table.countKey("Singles", "One", 19), 2);
    EXPECT_EQ(table.countKey("Singles", "Two", 19), 0);
    EXPECT_EQ(table.countKey("singles", "One", -1), 0);
    EXPECT_EQ(table.countKey("Singles", "One ", -1), 0);
    EXPECT_EQ(table.countKey("No", "7", 0), 3);
    EXPECT_EQ(table.countKey("No", "7", 6), 2);
    EXPECT_EQ(table.countKey("Yes", "Singles", 0), 2);
}

TEST_F(StipulationTableTest, TakesTheLineAfterTheLastAsEmptyWhenItCountsAKey)
{
    fill(one);
    EXPECT_EQ(table.countKey("Yes", "", 0), 1);
    EXPECT_EQ(table.countKey("", "", -1), 0);
    EXPECT_EQ(StipulationTable().countKey("", "", -1), 0);
}

TEST_F(StipulationTableTest, AppendsAtTheEnd)
{
    fill(one + two);
    table.append(fourth);
    EXPECT_EQ(written(), one + two + four);
}

TEST_F(StipulationTableTest, AppendsAMissingLineAsNoLineAtAll)
{
    StipulationTable::Record record = fourth;
    record.at(17).reset();
    fill(one);
    table.append(record);
    EXPECT_EQ(table.lineCount(), 19 + 18);
    EXPECT_EQ(written(), one + QByteArray(four).replace("Both\r\n", ""));
}

TEST_F(StipulationTableTest, ReplacesOneStipulationInItsPlace)
{
    fill(one + two + three);
    table.replace(19, fourth);
    EXPECT_EQ(written(), one + four + three);
}

TEST_F(StipulationTableTest, KeepsTheOldLineWhereTheReplacingRecordHasNone)
{
    StipulationTable::Record record = fourth;
    record.at(17).reset();
    fill(one + stipulation("Singles", "Two", {{18, "odd"}}) + three);
    table.replace(19, record);
    EXPECT_EQ(written(),
              one + stipulation("Tag Team", "Four", {{3, "Fourth"}, {18, "odd"}}) + three);
}

TEST_F(StipulationTableTest, GrowsWhenThePlaceAfterTheLastLineIsReplaced)
{
    fill(one);
    table.replace(19, fourth);
    EXPECT_EQ(written(), one + four);
}

TEST_F(StipulationTableTest, RemovesTheLinesOfOneStipulation)
{
    struct Case
    {
        int index;
        QByteArray rest;
    };
    for (const auto &[index, rest] : {Case{0, two + three}, Case{19, one + three},
                                      Case{38, one + two}, Case{57, one + two + three}}) {
        fill(one + two + three);
        table.remove(index);
        EXPECT_EQ(written(), rest) << index;
    }
}

TEST_F(StipulationTableTest, IsEmptyWithoutItsOnlyStipulation)
{
    fill(one);
    table.remove(0);
    EXPECT_EQ(table.lineCount(), 0);
    EXPECT_EQ(written(), "");
}

TEST_F(StipulationTableTest, IsNotChangedByWhatHappensToACopy)
{
    fill(one + two);
    table.append(fourth);
    StipulationTable copy = table;
    copy.replace(38, tableRecord(stipulationLines("Battle Royal", "Other")));
    copy.remove(0);
    EXPECT_EQ(copy.displayText(19), "Battle Royal / Other");
    EXPECT_EQ(written(), one + two + four);
    const QByteArray other = stipulation("Battle Royal", "Other");
    EXPECT_TRUE(copy.writeBack(u"copy.tvd"_s));
    EXPECT_EQ(readBack("copy.tvd"), two + other);
}

TEST_F(StipulationTableTest, WritesEveryByteValueBackAsItWasRead)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    OtherLines lines;
    for (int line = 1; line <= 19; ++line) {
        lines[line] = all;
    }
    const QByteArray odd = stipulation({}, {}, lines);
    fill(odd + one);
    EXPECT_EQ(written(), odd + one);
    table.replace(19, fourth);
    EXPECT_EQ(written(), odd + four);
}

TEST_F(StipulationTableTest, WritesVeryLongLinesBackWhole)
{
    const QByteArray line(100000, 'x');
    const QByteArray longOne = stipulation(line, line, {{3, line}, {17, line}, {19, line}});
    fill(longOne + one);
    table.replace(19, fourth);
    EXPECT_EQ(written(), longOne + four);
}

TEST_F(StipulationTableTest, EndsTheLastLineWhenTheFileDidNot)
{
    fill(one + two.chopped(2));
    EXPECT_EQ(written(), one + two);
}

} // namespace
} // namespace tarvold::testing
