// Records that are added to the file of a window with changes, by the editor itself and by others.

#include "datafiles/record_fields.h"
#include "records/records_window.h"
#include "records/window_fixture.h"
#include "screens/main_menu.h"
#include "support/events.h"
#include "support/flow_test.h"

#include <QMessageBox>

namespace tarvold::testing {
namespace {

class WindowGrowthTest : public RecordsWindowTest
{
};

TEST_F(WindowGrowthTest, RecordsThatAreAddedJoinTheChanges)
{
    open(endings(3));
    typeInto(kCommentary, u"Typed"_s);
    clickRow(1);
    changeOnDisk(endings(5));
    EXPECT_EQ(column(u"Number"_s).size(), 5);
    EXPECT_EQ(currentRow(), 1);
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(cell(4, u"Change"_s), QString());
    EXPECT_EQ(notice(), u"The file got 2 records more at its end. Your changes are still here; "
                        "Save writes all."_s);
    EXPECT_FALSE(part<QWidget>("reload").isVisible());
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), ending("Typed") + endings(4, 2));
    EXPECT_FALSE(isChanged());
}

TEST_F(WindowGrowthTest, ATextThatIsBeingTypedStays)
{
    open(endings(3));
    typeInto(kCommentary, u"Typ"_s);
    QPointer<QWidget> editor = QApplication::focusWidget();
    changeOnDisk(endings(4));
    EXPECT_EQ(column(u"Number"_s).size(), 4);
    ASSERT_EQ(QApplication::focusWidget(), editor);
    QTest::keyClicks(editor, u"ed"_s);
    EXPECT_EQ(fieldText(kCommentary), u"Typed"_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), ending("Typed") + endings(3, 2));
}

TEST_F(WindowGrowthTest, WhatCanBeDoneAgainStaysWhenNothingIsChanged)
{
    open(endings(3));
    typeInto(kCommentary, u"Typed"_s);
    press(Qt::CTRL | Qt::Key_Z);
    ASSERT_FALSE(isChanged());
    changeOnDisk(endings(4));
    EXPECT_EQ(column(u"Number"_s).size(), 4);
    EXPECT_EQ(notice(), u"Read the file again: 4 records."_s);
    press(Qt::CTRL | Qt::Key_Y);
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(fieldText(kCommentary), u"Typed"_s);
}

TEST_F(WindowGrowthTest, APartOfARecordDoesNotJoinTheChanges)
{
    const QByteArray more = ending("Written in two parts");
    open(endings(3));
    typeInto(kCommentary, u"Typed"_s);
    changeOnDisk(endings(3) + more.first(more.indexOf("Normal")));
    EXPECT_EQ(column(u"Number"_s).size(), 3);
    EXPECT_TRUE(part<QWidget>("reload").isVisible());
    changeOnDisk(endings(3) + more);
    EXPECT_EQ(column(u"Number"_s).size(), 4);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), ending("Typed") + endings(2, 2) + more);
    EXPECT_EQ(cell(3, u"Problems"_s), QString());
}

/// The editor and a window of its file.
class OwnFlow : public FlowTest
{
public:
    OwnFlow() = default;
    ~OwnFlow() override { qDeleteAll(RecordsWindow::all()); }
    Q_DISABLE_COPY_MOVE(OwnFlow)

protected:
    using RecordsWindow = records::RecordsWindow;

    /// Adds an ending by the screens, with this first line of commentary.
    void addEnding(const QString &text)
    {
        goToCommentary(kNormalPath);
        type(kNormalPath.screens.back(), "Text1", text);
        save(kNormalPath);
    }

    /// The same with a finisher type that is in no list, for which the screens write no line.
    void addEndingWithoutFinisher(const QString &text)
    {
        goTo(kNormalPath, "Form5");
        typeOver(source(kNormalPath, fields::kAttackerFinisher), u"Moonsault"_s);
        for (const char *screen : {"Form5", "Form6"}) {
            press(screen, "Command2");
        }
        type(kNormalPath.screens.back(), "Text1", text);
        save(kNormalPath);
    }

    /// Opens the file's window and duplicates its first record, without a save.
    RecordsWindow &changedWindow()
    {
        emit editor.screens().get<Form1>().lookThrough(DataFileKind::NormalEndings,
                                                       u"normreports.tvd"_s);
        RecordsWindow &window = *RecordsWindow::all().front();
        trigger(window, "duplicate");
        EXPECT_TRUE(window.isWindowModified());
        return window;
    }

    static void trigger(RecordsWindow &window, const char *name)
    {
        QCoreApplication::processEvents();
        auto *action = window.findChild<QAction *>(QLatin1StringView(name));
        ASSERT_TRUE(action != nullptr && action->isEnabled());
        action->trigger();
    }

    static int rows(const RecordsWindow &window)
    {
        return window.findChild<QAbstractItemView *>(u"list"_s)->model()->rowCount();
    }

    void expectSave(Answer answer)
    {
        boxes.expectSave(title(),
                         u"The file \"normreports.tvd\" has changes that are not saved.\n\nSave "
                         "them before you write a similar record?"_s,
                         answer);
    }
};

TEST_F(OwnFlow, AnEndingThatIsAddedMeanwhileIsNotLostBySave)
{
    addEnding(u"One"_s);
    const QByteArray one = readBack("normreports.tvd");
    RecordsWindow &window = changedWindow();
    addEnding(u"Two"_s);
    const QByteArray both = readBack("normreports.tvd");
    ASSERT_TRUE(both.startsWith(one) && both.size() > one.size());
    EXPECT_TRUE(QTest::qWaitFor([&window] { return rows(window) == 3; }));
    EXPECT_TRUE(window.isWindowModified());
    trigger(window, "save");
    EXPECT_EQ(readBack("normreports.tvd"), one + both);
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(OwnFlow, AnEndingWithoutItsFinisherTypeJoinsTheChangesToo)
{
    addEnding(u"One"_s);
    const QByteArray one = readBack("normreports.tvd");
    RecordsWindow &window = changedWindow();
    addEndingWithoutFinisher(u"Two"_s);
    const QByteArray two = readBack("normreports.tvd").sliced(one.size());
    ASSERT_EQ(two.count("\r\n"), 35);
    EXPECT_TRUE(QTest::qWaitFor([&window] { return rows(window) == 3; }));
    trigger(window, "save");
    EXPECT_EQ(readBack("normreports.tvd"), one + one + two);
}

TEST_F(OwnFlow, SaveRightAfterTheEndingWasAddedKeepsIt)
{
    addEnding(u"One"_s);
    const QByteArray one = readBack("normreports.tvd");
    RecordsWindow &window = changedWindow();
    addEnding(u"Two"_s);
    const QByteArray two = readBack("normreports.tvd").sliced(one.size());
    window.findChild<QAction *>(u"save"_s)->trigger(); // the window has not looked yet
    EXPECT_EQ(readBack("normreports.tvd"), one + one + two);
}

TEST_F(OwnFlow, WriteSimilarAsksToSaveFirst)
{
    addEnding(u"One"_s);
    const QByteArray one = readBack("normreports.tvd");
    RecordsWindow &window = changedWindow();
    for (const Answer answer : {Answer::Cancel, Answer::Escape, Answer::Close}) {
        expectSave(answer);
        trigger(window, "writeSimilar");
        boxes.checkAllCame();
        expectOnly("Form1");
        EXPECT_TRUE(window.isWindowModified());
        EXPECT_EQ(readBack("normreports.tvd"), one);
    }
    expectSave(Answer::Enter);
    trigger(window, "writeSimilar");
    boxes.checkAllCame();
    EXPECT_EQ(readBack("normreports.tvd"), one + one);
    EXPECT_FALSE(window.isWindowModified());
    expectOnly(kNormalPath.screens.front());
}

TEST_F(OwnFlow, TheQuestionBlocksOnlyItsWindowAndWhatBeganMeanwhileStays)
{
    addEnding(u"One"_s);
    RecordsWindow &window = changedWindow();
    expectSave(Answer::Save);
    boxes.beforeItsAnswer([this](const QMessageBox &box) {
        EXPECT_EQ(box.windowModality(), Qt::WindowModal);
        QTest::mouseClick(&control("Form1", "Command6"), Qt::LeftButton);
    });
    boxes.expectNotice(u"Write A Similar One"_s,
                       u"Finish or leave the interview segment that you are writing first."_s);
    trigger(window, "writeSimilar");
    boxes.checkAllCame();
    expectOnly("Form12");
}

TEST_F(OwnFlow, WhatCannotBeginIsRefusedBeforeTheQuestion)
{
    addEnding(u"One"_s);
    RecordsWindow &window = changedWindow();
    press("Form1", "Command6");
    boxes.expectNotice(u"Write A Similar One"_s,
                       u"Finish or leave the interview segment that you are writing first."_s);
    trigger(window, "writeSimilar");
    boxes.checkAllCame();
    EXPECT_TRUE(window.isWindowModified());
}

} // namespace
} // namespace tarvold::testing
