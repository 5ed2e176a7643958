#include "controls/push_button.h"
#include "record_list_test.h"
#include "records/records_repair.h"
#include "records/window_fixture.h"

#include <QCheckBox>
#include <QProgressBar>

namespace tarvold::testing {
namespace {

/// Repairs that take so long that the user can do something meanwhile.
class WindowRepairTest : public RecordsWindowTest
{
protected:
    static constexpr int kMany = 20'000;

    static QByteArray withLf(QByteArray records) { return records.replace("\r\n", "\n"); }

    void startRepairs()
    {
        action("repairAll").trigger();
        ASSERT_TRUE(isRepairing()) << "it was done too soon";
    }

    bool isRepairing()
    {
        auto &progress = part<QProgressBar>("progress");
        return progress.isVisible() && progress.format().startsWith(u"Repairing"_s);
    }

    void waitForRepairs()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !isRepairing(); }, 60'000));
    }

    void save()
    {
        press(Qt::CTRL | Qt::Key_S);
        ASSERT_FALSE(isChanged());
    }
};

TEST_F(WindowRepairTest, ManyRepairsAreOneStepToUndo)
{
    const QByteArray lf = withLf(endings(kMany));
    open(lf);
    startRepairs();
    EXPECT_FALSE(action("repairAll").isEnabled());
    EXPECT_FALSE(isChanged()) << "all come at once";
    waitForRepairs();
    EXPECT_TRUE(action("repairAll").isEnabled());
    EXPECT_EQ(notice(), u"Repaired 20000 records."_s);
    EXPECT_EQ(cell(kMany - 1, u"Change"_s), u"Edited"_s);
    save();
    EXPECT_TRUE(onDisk() == endings(kMany));
    press(Qt::CTRL | Qt::Key_Z);
    save();
    EXPECT_TRUE(onDisk() == lf);
    EXPECT_FALSE(action("undo").isEnabled());
}

TEST_F(WindowRepairTest, StoppedRepairsChangeNothing)
{
    open(withLf(endings(kMany)));
    startRepairs();
    click(part<PushButton>("stop"));
    EXPECT_FALSE(isRepairing());
    EXPECT_EQ(notice(), u"Stopped. Nothing was repaired."_s);
    QTest::qWait(50);
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(action("undo").isEnabled());
    startRepairs();
    waitForRepairs();
    EXPECT_EQ(notice(), u"Repaired 20000 records."_s);
}

TEST_F(WindowRepairTest, ChangesMadeDuringRepairsStayAsTheyAre)
{
    open(withLf(endings(kMany)));
    list().setFocus();
    clickRow(1);
    startRepairs();
    press(Qt::Key_Delete);
    clickRow(2);
    press(Qt::CTRL | Qt::Key_D);
    ASSERT_TRUE(isRepairing());
    waitForRepairs();
    EXPECT_EQ(notice(), u"Repaired 19999 records."_s);
    EXPECT_EQ(cell(1, u"Change"_s), u"Deleted"_s);
    save();
    EXPECT_TRUE(onDisk() ==
                endings(1) + endings(1, 3) + withLf(endings(1, 3)) + endings(kMany - 3, 4));
    for (int steps = 0; steps < 3; ++steps) {
        press(Qt::CTRL | Qt::Key_Z);
    }
    EXPECT_FALSE(action("undo").isEnabled());
    save();
    EXPECT_TRUE(onDisk() == withLf(endings(kMany)));
}

TEST_F(WindowRepairTest, ATextTypedDuringRepairsIsKept)
{
    open(withLf(endings(kMany)));
    typeInto(kCommentary, {});
    startRepairs();
    QTest::keyClicks(QApplication::focusWidget(), u"Typed"_s);
    ASSERT_TRUE(isRepairing());
    waitForRepairs();
    EXPECT_EQ(fieldText(kCommentary), u"Typed"_s);
    save();
    EXPECT_TRUE(onDisk() == ending("Typed") + endings(kMany - 1, 2));
}

TEST_F(WindowRepairTest, AReloadEndsRepairsWithNothingRepaired)
{
    open(withLf(endings(kMany)));
    startRepairs();
    writeFile(kFile, withLf(endings(3)));
    press(Qt::Key_F5);
    EXPECT_FALSE(isRepairing());
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(list().model()->rowCount(), 3);
}

TEST_F(WindowRepairTest, AWindowCanBeClosedDuringRepairs)
{
    open(withLf(endings(kMany)));
    startRepairs();
    press(Qt::CTRL | Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_TRUE(onDisk() == withLf(endings(kMany)));
}

TEST_F(WindowRepairTest, ManyScatteredDeletionsAreUndoneAfterASave)
{
    constexpr int kPairs = 150;
    QByteArray all;
    QByteArray sound;
    for (int number = 0; number < kPairs; ++number) {
        sound += endings(1, number);
        all += endings(1, number) + faulty("Faulty " + QByteArray::number(number));
    }
    open(all);
    auto &only = part<QCheckBox>("onlyProblems");
    click(only);
    ASSERT_EQ(list().model()->rowCount(), kPairs);
    list().setFocus();
    press(QKeySequence::SelectAll);
    press(Qt::Key_Delete);
    click(only);
    list().setFocus();
    save();
    EXPECT_TRUE(onDisk() == sound);
    ASSERT_EQ(list().model()->rowCount(), kPairs);
    clickRow(0);
    press(Qt::CTRL | Qt::Key_Z);
    ASSERT_EQ(list().model()->rowCount(), 2 * kPairs);
    EXPECT_EQ(currentRow(), 1) << "the first that came back is shown";
    EXPECT_EQ(cell(1, u"Change"_s), u"Added"_s);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    ASSERT_EQ(list().model()->rowCount(), kPairs);
    press(Qt::CTRL | Qt::Key_Z);
    save();
    EXPECT_TRUE(onDisk() == all);
}

TEST_F(WindowRepairTest, AScatteredSelectionIsKeptWhenTheFileIsReadAgain)
{
    open(endings(12));
    list().setFocus();
    clickRow(1);
    for (const int row : {3, 4, 7}) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list().visualRect(list().model()->index(row, 0)).center());
    }
    changeOnDisk(endings(1) + endings(11, 2) + endings(1, 13));
    EXPECT_EQ(list().model()->rowCount(), 13);
    EXPECT_EQ(selectedRows(), std::vector<int>({1, 3, 4, 7}));
}

class RecordsRepairTest : public RecordListTest
{
};

TEST_F(RecordsRepairTest, WaitsAsLongAsItMust)
{
    load({one, damaged("A"), two});
    bool mustWait = true;
    records::RecordsRepair repair(document, scan, {[] { return true; }, [] { return false; }});
    repair.setMustWait([&mustWait] { return mustWait; });
    repair.start({0, 1, 2}, u"Repair"_s);
    QTest::qWait(250);
    EXPECT_TRUE(repair.isRunning());
    EXPECT_FALSE(document.isChanged());
    mustWait = false;
    ASSERT_TRUE(QTest::qWaitFor([&repair] { return !repair.isRunning(); }, 60'000));
    EXPECT_TRUE(document.isChanged());
}

} // namespace
} // namespace tarvold::testing
