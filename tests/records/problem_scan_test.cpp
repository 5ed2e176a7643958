#include "record_list_test.h"

#include <QSignalSpy>

#include <algorithm>
#include <functional>

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;
using records::Problem;

TEST_F(RecordListTest, IsSearchedForProblemsBetweenEvents)
{
    QSignalSpy finished(&scan, &ProblemScan::finished);
    load({one, damaged("A"), two, damaged("B")});
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(scan.checked(), 4);
    EXPECT_EQ(scan.total(), 2);
    EXPECT_GT(scan.countAt(1), 0);
    EXPECT_EQ(scan.countAt(2), 0);
}

TEST_F(RecordListTest, HasItsProblemsWithTheirTexts)
{
    load({one, damaged("A"), two});
    const std::vector<Problem> problems = scan.problemsAt(1);
    EXPECT_EQ(int(problems.size()), scan.countAt(1));
    EXPECT_TRUE(std::any_of(problems.begin(), problems.end(), [](const Problem &problem) {
        return problem.type == Problem::Type::BareLineEnd && !problem.text.isEmpty();
    }));
}

TEST_F(RecordListTest, TellsOfRecordsThatStandTwice)
{
    load({one, two, three});
    document.duplicate(0);
    waitForScan();
    EXPECT_EQ(scan.countAt(0), 0);
    EXPECT_EQ(scan.countAt(1), 1);
    EXPECT_EQ(scan.problemsAt(1).front().type, Problem::Type::SameRecord);
    document.replace(0, talkShow("New"), u"Edit"_s);
    waitForScan();
    EXPECT_EQ(scan.total(), 0);
    document.replace(0, one, u"Edit"_s);
    document.remove({0});
    waitForScan();
    EXPECT_EQ(scan.total(), 0); // the other one goes with the save
}

TEST_F(RecordListTest, IsCheckedAtOnceWhenItChanges)
{
    load({one, two, three});
    document.replace(1, damaged("A"), u"Edit"_s);
    EXPECT_GT(scan.countAt(1), 0);
    EXPECT_EQ(scan.total(), 1);
    document.remove({1});
    EXPECT_EQ(scan.total(), 0);
    undo();
    EXPECT_EQ(scan.total(), 1);
    undo();
    EXPECT_EQ(scan.total(), 0);
}

TEST_F(RecordListTest, KnowsTheLastRecordWhoseLineEndIsMissing)
{
    load({one, two.chopped(2)});
    EXPECT_EQ(scan.countAt(1), 1);
    document.duplicate(1);
    EXPECT_EQ(scan.countAt(1), 0);
    undo();
    EXPECT_EQ(scan.countAt(1), 1);
}

TEST_F(RecordListTest, CanBeStoppedAndGoesOnLater)
{
    writeFile(kFile, QByteArray(one + damaged("A")).repeated(2'000));
    open();
    QCoreApplication::processEvents();
    scan.stop();
    const int checked = scan.checked();
    QTest::qWait(30);
    EXPECT_EQ(scan.checked(), checked);
    EXPECT_FALSE(scan.isRunning());
    ASSERT_LT(checked, 4'000);
    document.replace(3'999, one, u"Edit"_s);
    EXPECT_EQ(scan.countAt(3'999), 0);
    EXPECT_FALSE(scan.isRunning());
    scan.start();
    waitForScan();
    EXPECT_EQ(scan.checked(), 4'000);
    EXPECT_EQ(scan.total(), 3'999); // all but the first stand twice
}

TEST_F(RecordListTest, SortsByProblemsAgainWhenAStoppedScanHasGoneOnToTheEnd)
{
    QByteArrayList all;
    for (int number = 1; number < 4'000; ++number) {
        all << talkShow("Host " + QByteArray::number(number));
    }
    writeFile(kFile, all.join() + damaged("A"));
    open();
    scan.stop();
    ASSERT_LT(scan.checked(), 4'000);
    list.sort(list.problemColumn());
    EXPECT_EQ(list.indexAt(0), 0);
    scan.start();
    waitForScan();
    EXPECT_EQ(list.indexAt(0), 3'999);
}

TEST_F(RecordListTest, KeepsNoComparisonThatMayBeWrongWhileItIsStopped)
{
    const auto stopAmongMany = [this] {
        writeFile(kFile, one + one + two + QByteArray(three + damaged("A")).repeated(3'000));
        open();
        ASSERT_TRUE(QTest::qWaitFor([this] { return scan.checked() >= 3; }));
        scan.stop();
        ASSERT_LT(scan.checked(), document.count());
        ASSERT_EQ(scan.countAt(1), 1) << "the same as the first";
    };
    const std::function<void()> changes[] = {
        [this] { document.replace(1, two, u"Edit"_s); }, [this] { document.remove({0}); },
        [this] { document.duplicate(2); }, [this] { document.move(1, 1); }};
    for (const auto &change : changes) {
        stopAmongMany();
        change();
        QTest::qWait(10);
        int known = 0;
        for (int index = 0; index < 4; ++index) {
            EXPECT_EQ(scan.countAt(index), 0) << index;
        }
        for (int index = 0; index < document.count(); ++index) {
            known += scan.countAt(index) > 0 ? 1 : 0;
        }
        EXPECT_EQ(scan.total(), known);
    }
}

TEST_F(RecordListTest, GoesOnAfterASaveWithWhatItKnows)
{
    load({one, damaged("A"), two, damaged("B")});
    document.remove({0});
    ASSERT_TRUE(document.save({}));
    EXPECT_EQ(scan.checked(), 3);
    EXPECT_EQ(scan.total(), 2);
    EXPECT_EQ(scan.countAt(1), 0);
    document.undoStack().undo();
    EXPECT_EQ(scan.checked(), 4);
}

} // namespace
} // namespace tarvold::testing
