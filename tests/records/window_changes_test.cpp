#include "controls/push_button.h"
#include "records/window_fixture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QHeaderView>
#include <QProgressBar>
#include <QTreeView>

namespace tarvold::testing {
namespace {

class WindowChangesTest : public RecordsWindowTest
{
protected:
    static constexpr int kFinisher = 15;
    static constexpr int kOtherFinisher = 25;

    static QByteArray withLine(const QByteArray &record, int number, const QByteArray &line)
    {
        QByteArrayList lines = record.split('\n');
        lines[number - 1] = line + '\r';
        return lines.join('\n');
    }

    static QByteArray withFinishers(const QByteArray &one, const QByteArray &other)
    {
        return withLine(withLine(ending("Ending 1"), kFinisher, one), kOtherFinisher, other);
    }

    /// Opens a file that takes long to check, and stops that by a click.
    void openAndStop(const QByteArray &bytes)
    {
        writeFile(kFile, bytes);
        openFile(kFile);
        auto &stop = part<PushButton>("stop");
        ASSERT_TRUE(stop.isVisible()) << "all was checked too soon";
        click(stop);
        EXPECT_EQ(stop.text(), u"Go On"_s);
        auto &progress = part<QProgressBar>("progress");
        const int checked = progress.value();
        ASSERT_LT(checked, progress.maximum());
        QTest::qWait(50);
        EXPECT_EQ(progress.value(), checked);
    }

    /// Presses the button as a screen reader does: the focus stays where it is.
    void pressRepair()
    {
        auto *button = QAccessible::queryAccessibleInterface(&part<PushButton>("repair"));
        ASSERT_TRUE(part<PushButton>("repair").isVisible());
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTest::qWait(300); // it is held down for a moment
    }
};

TEST_F(WindowChangesTest, ATypedTextIsKeptWhenAnotherRowIsClicked)
{
    open(endings(5));
    typeInto(kCommentary, u"Typed"_s);
    clickRow(3);
    EXPECT_EQ(fieldText(kCommentary), u"Ending 4"_s);
    EXPECT_EQ(cell(0, u"Change"_s), u"Edited"_s);
    EXPECT_TRUE(isChanged());
    clickRow(0);
    EXPECT_EQ(fieldText(kCommentary), u"Typed"_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(ending("Typed") + endings(4, 2)));
}

TEST_F(WindowChangesTest, ATypedTextIsKeptWhenAKeyGoesToAnotherRecord)
{
    open(endings(2) + faulty("Ending 3"));
    typeInto(kCommentary, u"Typed"_s);
    press(Qt::Key_F8);
    EXPECT_EQ(currentRow(), 2);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(ending("Typed") + ending("Ending 2") + faulty("Ending 3")));
}

TEST_F(WindowChangesTest, SaveWritesWhatIsTypedAndNotLeftYet)
{
    open(endings(2));
    typeInto(kCommentary, u"Typed"_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(ending("Typed") + ending("Ending 2")));
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(notice(), u"Saved 2 records to endings.tvd."_s);
}

TEST_F(WindowChangesTest, UndoBelongsToTheEditorAsLongAsItHasSomethingToUndo)
{
    open(endings(3));
    clickRow(2);
    list().setFocus();
    press(Qt::Key_Delete);
    EXPECT_EQ(cell(2, u"Change"_s), u"Deleted"_s);
    clickRow(0);
    typeInto(kCommentary, u"T"_s);
    EXPECT_EQ(fieldText(kCommentary), u"T"_s);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(fieldText(kCommentary), u"Ending 1"_s);
    EXPECT_EQ(cell(2, u"Change"_s), u"Deleted"_s);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(cell(2, u"Change"_s), QString());
    EXPECT_EQ(currentRow(), 2) << "what was undone is shown";
    for (const QKeySequence &redo :
         {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)}) {
        press(redo);
        EXPECT_EQ(cell(2, u"Change"_s), u"Deleted"_s);
        press(Qt::CTRL | Qt::Key_Z);
        EXPECT_EQ(cell(2, u"Change"_s), QString());
    }
    EXPECT_FALSE(isChanged());
}

TEST_F(WindowChangesTest, RecordsAreDeletedMovedAndDuplicatedByKeys)
{
    open(endings(4));
    list().setFocus();
    clickRow(1);
    press(Qt::Key_Delete);
    EXPECT_EQ(column(u"Change"_s), QStringList({{}, u"Deleted"_s, {}, {}}));
    clickRow(2);
    press(Qt::CTRL | Qt::Key_D);
    EXPECT_EQ(currentRow(), 3);
    EXPECT_EQ(cell(3, u"Change"_s), u"Added"_s);
    clickRow(4);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Up);
    EXPECT_EQ(currentRow(), 3);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Up);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Down);
    EXPECT_EQ(currentRow(), 3);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(endings(1) + endings(1, 3) + endings(1, 4) + endings(1, 3)));
    EXPECT_EQ(list().model()->rowCount(), 4) << "deleted records are gone after the save";
}

TEST_F(WindowChangesTest, ADeletedRecordIsRestoredByItsEntry)
{
    open(endings(2));
    list().setFocus();
    clickRow(1);
    EXPECT_FALSE(action("restore").isEnabled());
    press(Qt::Key_Delete);
    EXPECT_FALSE(action("delete").isEnabled());
    action("restore").trigger();
    EXPECT_EQ(cell(1, u"Change"_s), QString());
}

TEST_F(WindowChangesTest, DeleteInATextBoxDeletesNoRecord)
{
    open(endings(2));
    part<QLineEdit>("search").setFocus();
    press(Qt::Key_Delete);
    typeInto(kCommentary, u"Typed"_s);
    press(Qt::Key_Delete);
    EXPECT_EQ(column(u"Change"_s).join(QString()), QString());
}

TEST_F(WindowChangesTest, ChangesOutliveSearchFilterAndSort)
{
    open(endings(6) + faulty("Ending 7"));
    typeInto(kCommentary, u"Typed"_s);
    clickRow(2);
    list().setFocus();
    press(Qt::Key_Delete);

    auto &search = part<QLineEdit>("search");
    click(search);
    QTest::keyClicks(&search, u"ending 5"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return list().model()->rowCount() <= 2; }));
    search.clear();
    part<QCheckBox>("onlyProblems").click();
    part<QCheckBox>("onlyProblems").click();
    auto &heads = part<QHeaderView>("heads");
    for (int times = 0; times < 3; ++times) {
        QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, QPoint(10, heads.height() / 2));
    }
    ASSERT_TRUE(QTest::qWaitFor([this] { return list().model()->rowCount() == 7; }));
    EXPECT_EQ(column(u"Change"_s), QStringList({u"Edited"_s, {}, u"Deleted"_s, {}, {}, {}, {}}));
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(),
              QByteArray(ending("Typed") + endings(1, 2) + endings(3, 4) + faulty("Ending 7")));
}

TEST_F(WindowChangesTest, ProblemsFollowEachChangeAtOnce)
{
    open(endings(2) + faulty("Ending 3"));
    auto &only = part<QCheckBox>("onlyProblems");
    EXPECT_EQ(only.text(), u"Only With Problems (1)"_s);
    typeInto(kCommentary, u"<alsounknown>"_s);
    clickRow(1);
    EXPECT_EQ(only.text(), u"Only With Problems (2)"_s);
    EXPECT_FALSE(cell(0, u"Problems"_s).isEmpty());
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(only.text(), u"Only With Problems (1)"_s);
    EXPECT_TRUE(cell(0, u"Problems"_s).isEmpty());
}

TEST_F(WindowChangesTest, AllRepairsAreOneStepToUndo)
{
    const QByteArray lf = endings(1).replace("\r\n", "\n");
    open(lf + endings(1, 2) + lf);
    EXPECT_EQ(part<QCheckBox>("onlyProblems").text(), u"Only With Problems (2)"_s);
    action("repairAll").trigger();
    EXPECT_EQ(column(u"Change"_s), QStringList({u"Edited"_s, {}, u"Edited"_s}));
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(endings(2) + endings(1)));
    press(Qt::CTRL | Qt::Key_Z);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), QByteArray(lf + endings(1, 2) + lf));
}

TEST_F(WindowChangesTest, AllRepairsReachRecordsThatAreNotCheckedYet)
{
    constexpr int kSound = 20'000;
    const QByteArray lf = endings(1, kSound + 1).replace("\r\n", "\n");
    openAndStop(endings(kSound) + lf);
    press(Qt::Key_F8);
    EXPECT_EQ(notice(), u"No problem found so far."_s);
    action("repairAll").trigger();
    EXPECT_TRUE(QTest::qWaitFor([this] { return notice() == u"Repaired 1 record."_s; }, 60'000))
        << notice().toStdString();
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), endings(kSound + 1));
}

TEST_F(WindowChangesTest, TheSelectedRepairsReachRecordsThatAreNotCheckedYet)
{
    constexpr int kSound = 20'000;
    openAndStop(endings(kSound) + faulty("Ending"));
    list().setFocus();
    press(Qt::Key_End);
    action("repairSelected").trigger();
    EXPECT_EQ(notice(), u"Nothing was repaired. 1 record with problems that only you can "
                        "decide."_s);
    click(part<PushButton>("stop")); // goes on
    auto &progress = part<QWidget>("progress");
    ASSERT_TRUE(QTest::qWaitFor([&progress] { return !progress.isVisible(); }, 60'000));
    EXPECT_EQ(part<QCheckBox>("onlyProblems").text(), u"Only With Problems (1)"_s);
}

TEST_F(WindowChangesTest, ARepairKeepsWhatIsTypedAndNotLeftYet)
{
    open(QByteArray(endings(1)).replace("\r\n", "\n") + endings(1, 2));
    typeInto(kCommentary, u"Typed"_s);
    pressRepair();
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), ending("Typed") + endings(1, 2));
}

TEST_F(WindowChangesTest, ARepairOfWhatTheTypedTextRepairedDoesNothing)
{
    open(withFinishers("Top Rope", "Any"));
    typeInto(kFinisher, u"s"_s);
    pressRepair();
    EXPECT_FALSE(part<PushButton>("repair").isVisible());
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), withFinishers("s", "Any"));
}

TEST_F(WindowChangesTest, AClickOnRepairRepairsNothingElse)
{
    open(withFinishers("Top Rope", "Top Rope"));
    typeInto(kFinisher, u"s"_s);
    auto &repair = part<PushButton>("repair");
    click(repair);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), withFinishers("s", "Top Rope"));
    ASSERT_TRUE(repair.isVisible()) << "the other problem is there still";
    click(repair);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), withFinishers("s", "t"));
}

TEST_F(WindowChangesTest, OnlyRecordsThatWereThereAreToldAsDeleted)
{
    open(endings(4));
    list().setFocus();
    clickRow(1);
    press(Qt::Key_Delete);
    clickRow(0);
    press(QKeySequence::SelectAll);
    press(Qt::Key_Delete);
    EXPECT_TRUE(notice().startsWith(u"Deleted 3 records."_s)) << notice().toStdString();
}

TEST_F(WindowChangesTest, ProblemKeysGoRoundTheList)
{
    open(faulty("Ending 1") + endings(1, 2) + faulty("Ending 3"));
    list().setFocus();
    press(Qt::Key_F8);
    EXPECT_EQ(currentRow(), 2);
    EXPECT_TRUE(notice().contains(u"nobodyknows"_s)) << notice().toStdString();
    press(Qt::Key_F8);
    EXPECT_EQ(currentRow(), 0);
    press(Qt::SHIFT | Qt::Key_F8);
    EXPECT_EQ(currentRow(), 2);
}

} // namespace
} // namespace tarvold::testing
