// The search box and "Only With Problems".

#include "record_list_test.h"

#include <QSignalSpy>

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;

TEST_F(RecordListTest, ShowsTheRecordsInWhichATextStands)
{
    list.setSearch(u"TWO"_s);
    EXPECT_EQ(numbers(), "2");
    list.setSearch(u"o"_s);
    EXPECT_EQ(numbers(), "1 2 3"); // also in other lines
    list.setSearch(u"one of none"_s);
    EXPECT_EQ(numbers(), "");
    list.setSearch({});
    EXPECT_EQ(numbers(), "1 2 3");
}

TEST_F(RecordListTest, SearchesInItsOrder)
{
    load({talkShow("Zoe Two"), talkShow("b"), talkShow("Ann Two")});
    list.sort(RecordListModel::Telling);
    list.setSearch(u"two"_s);
    EXPECT_EQ(numbers(), "3 1");
    list.sort(-1);
    EXPECT_EQ(numbers(), "1 3");
}

/// A file that is not searched in one go, and hits near both ends.
class LongSearch : public RecordListTest
{
protected:
    static constexpr int kCount = 30'000;

    void SetUp() override
    {
        QByteArray bytes;
        bytes.reserve(kCount * (two.size() + 10));
        bytes += talkShow("Needle one");
        for (int count = 2; count < kCount; ++count) {
            bytes += two;
        }
        bytes += talkShow("Needle two");
        writeFile(kFile, bytes);
        open();
        scan.stop();
    }
};

TEST_F(LongSearch, ShowsTheFirstHitsAtOnceAndAllInTheEnd)
{
    list.setSearch(u"needle"_s);
    EXPECT_GE(list.rowCount(), 1);
    EXPECT_EQ(list.indexAt(0), 0);
    waitForSearch();
    EXPECT_EQ(numbers(), "1 30000");
}

TEST_F(LongSearch, GoesOnWhenALetterIsAppended)
{
    list.setSearch(u"needle "_s);
    list.setSearch(u"needle t"_s);
    list.setSearch(u"needle two"_s);
    waitForSearch();
    EXPECT_EQ(numbers(), "30000");
}

TEST_F(LongSearch, NeverComesBackAfterItWasReplacedOrCleared)
{
    list.setSearch(u"needle"_s);
    list.setSearch(u"nothing like it"_s);
    list.setSearch({});
    waitForSearch();
    EXPECT_EQ(list.rowCount(), kCount);
    QSignalSpy changes(&list, &QAbstractItemModel::rowsInserted);
    QTest::qWait(50);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(list.rowCount(), kCount);
}

TEST_F(LongSearch, FindsWhatIsEditedMeanwhile)
{
    list.setSearch(u"needle"_s);
    document.replace(kCount - 2, talkShow("Needle new"), u"Edit"_s);
    document.duplicate(kCount - 1);
    document.remove({0});
    ASSERT_TRUE(document.save({}));
    waitForSearch();
    EXPECT_EQ(numbers(), "29998 29999 30000");
}

TEST_F(RecordListTest, ShowsOnlyRecordsWithProblems)
{
    load({one, damaged("A"), two, damaged("Bruno")});
    list.setOnlyProblems(true);
    EXPECT_EQ(numbers(), "2 4");
    list.setSearch(u"bruno"_s);
    EXPECT_EQ(numbers(), "4");
    list.setOnlyProblems(false);
    list.setSearch({});
    EXPECT_EQ(numbers(), "1 2 3 4");
}

TEST_F(RecordListTest, KeepsDeletedRecordsAmongThoseWithProblemsUntilTheSave)
{
    load({one, damaged("A"), two, damaged("Bruno")});
    list.setOnlyProblems(true);
    document.remove({1, 3});
    EXPECT_EQ(numbers(), "2 4");
    EXPECT_EQ(textAt(0, RecordListModel::State), u"Deleted");
    list.setSearch(u"bruno"_s);
    EXPECT_EQ(numbers(), "4");
    list.setSearch({});
    document.restore({1});
    EXPECT_EQ(numbers(), "2 4");
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(numbers(), "2");
}

TEST_F(RecordListTest, ShowsRecordsWithProblemsAsTheyAreFound)
{
    list.setOnlyProblems(true);
    EXPECT_EQ(numbers(), "");
    load({damaged("A"), two, damaged("B")});
    EXPECT_EQ(numbers(), "1 3");
}

TEST_F(RecordListTest, FollowsEachChangeOfProblemsAtOnce)
{
    load({damaged("A"), two, damaged("B")});
    list.setOnlyProblems(true);
    document.replace(1, damaged("Two"), u"Edit"_s);
    EXPECT_EQ(numbers(), "1 2 3");
    document.replace({{0, talkShow("A")}, {1, two}}, u"Repair All"_s);
    EXPECT_EQ(numbers(), "3");
    undo();
    EXPECT_EQ(numbers(), "1 2 3");
}

TEST_F(RecordListTest, KeepsTheChosenRecordUntilAnotherIsChosen)
{
    load({damaged("A"), two, damaged("B")});
    list.setOnlyProblems(true);
    list.setChosen(0);
    document.replace(0, talkShow("A"), u"Repair"_s);
    EXPECT_EQ(numbers(), "1 3");
    EXPECT_EQ(textAt(0, list.problemColumn()), u"");
    list.setChosen(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(numbers(), "3");
    EXPECT_EQ(steps(), 1); // the change is not lost
    list.setOnlyProblems(false);
    EXPECT_EQ(textAt(0, RecordListModel::State), u"Edited");
}

TEST_F(RecordListTest, KeepsARecordThatIsEditedSoThatItIsNoHit)
{
    list.setSearch(u"two"_s);
    list.setChosen(1);
    document.replace(1, talkShow("Another"), u"Edit"_s);
    EXPECT_EQ(numbers(), "2");
    list.setSearch(u"tw"_s);
    EXPECT_EQ(numbers(), "");
    EXPECT_TRUE(document.isChanged());
}

TEST_F(RecordListTest, ShowsAChosenRecordThatWasHidden)
{
    list.setSearch(u"two"_s);
    list.setChosen(2);
    EXPECT_EQ(numbers(), "2 3");
    EXPECT_EQ(list.rowOf(2), 1);
}

} // namespace
} // namespace tarvold::testing
