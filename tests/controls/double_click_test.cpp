#include "support/flow_test.h"
#include "support/mouse.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

const FlowPath *const kFlows[] = {&kNormalPath, &kRunInPath, &kTurnPath, &kInterviewPath,
                                  &kTalkShowPath};

/// Double clicks as the desktop reports them: the second press goes to whatever window is then
/// under the pointer.
class DoubleClick : public FlowTest
{
protected:
    QPoint placeOf(const char *screen, const char *name)
    {
        expectReachable(control(screen, name));
        return mouse::middleOf(control(screen, name));
    }

    void doubleClick(const char *screen, const char *name)
    {
        mouse::doubleClick(placeOf(screen, name));
        boxes.checkAllCame();
    }
};

TEST_F(DoubleClick, OnNextGoesForwardOneScreen)
{
    for (const FlowPath *flow : kFlows) {
        press("Form1", flow->button);
        for (std::size_t step = 0; step + 1 < flow->screens.size(); ++step) {
            doubleClick(flow->screens[step], "Command2");
            expectOnly(flow->screens[step + 1]);
        }
        goBack(*flow);
    }
}

TEST_F(DoubleClick, OnBackGoesBackOneScreen)
{
    goToCommentary(kTurnPath);
    doubleClick("Form11", "Command2");
    expectOnly("Form10");
    doubleClick("Form10", "Command1");
    expectOnly("Form6");
    doubleClick("Form6", "Command1");
    expectOnly("Form5");
}

TEST_F(DoubleClick, OnCancelInTheImportStaysOnTheImportScreen)
{
    press("Form1", "Command8");
    mouse::pass(1s); // the buttons that reappear have been visible long enough
    press("Form2", "Command3");
    ASSERT_TRUE(control("Form2", "Command9").isVisible());
    doubleClick("Form2", "Command9");
    expectOnly("Form2");
    EXPECT_TRUE(control("Form2", "Command1").isVisible());
}

TEST_F(DoubleClick, DoesNotAnswerTheQuestionThatItBringsUp)
{
    goTo(kNormalPath, "Form4");
    const QPoint back = placeOf("Form4", "Command1");
    bool stayed = false;
    expectReturnQuestion(Answer::No);
    boxes.beforeItsAnswer([&](QMessageBox &box) {
        // Put "Yes" exactly where "<<" was clicked.
        QAbstractButton *yes = box.button(QMessageBox::Yes);
        box.move(box.pos() + back - mouse::middleOf(*yes));
        QCoreApplication::processEvents();
        EXPECT_TRUE(yes->rect().contains(yes->mapFromGlobal(back)));
        mouse::clickAgain(back);
        stayed = box.isVisible();
    });
    mouse::click(back);
    boxes.checkAllCame();
    EXPECT_TRUE(stayed);
    expectOnly("Form4");
}

TEST_F(DoubleClick, AClickAnswersAQuestionThatHasBeenVisible)
{
    goTo(kNormalPath, "Form4");
    const QPoint back = placeOf("Form4", "Command1");
    expectReturnQuestion(Answer::Close); // already closed by the click below
    boxes.beforeItsAnswer([&](QMessageBox &box) {
        box.move(box.pos() + back - mouse::middleOf(*box.button(QMessageBox::Yes)));
        QCoreApplication::processEvents();
        mouse::pass(250ms);
        mouse::clickAgain(back);
    });
    mouse::click(back);
    boxes.checkAllCame();
    expectOnly("Form1");
}

TEST_F(DoubleClick, ClicksAQuarterOfASecondApartAllCount)
{
    goTo(kRunInPath, "Form4");
    const QPoint next = placeOf("Form4", "Command2");
    mouse::click(next);
    for (const char *screen : {"Form5", "Form6", "Form8"}) {
        expectOnly(screen);
        mouse::pass(250ms);
        mouse::clickAgain(next);
    }
    expectOnly("Form9");
}

TEST_F(DoubleClick, ClicksBackToScreensShownBeforeAllCount)
{
    goTo(kRunInPath, "Form8");
    const QPoint back = placeOf("Form8", "Command1");
    mouse::click(back);
    for (const char *screen : {"Form6", "Form5"}) {
        expectOnly(screen);
        mouse::pass(250ms);
        mouse::clickAgain(back);
    }
    expectOnly("Form4");
}

TEST_F(DoubleClick, ClicksWithLongPressesAllCount)
{
    goTo(kRunInPath, "Form4");
    const QPoint next = placeOf("Form4", "Command2");
    mouse::press(next);
    for (const char *screen : {"Form5", "Form6", "Form8"}) {
        mouse::pass(80ms);
        mouse::release(next);
        expectOnly(screen);
        mouse::pass(170ms);
        mouse::pressAgain(next);
    }
    mouse::release(next);
    expectOnly("Form9");
}

TEST_F(DoubleClick, ATripleClickGoesForwardOneScreen)
{
    goTo(kRunInPath, "Form4");
    const QPoint next = placeOf("Form4", "Command2");
    mouse::click(next);
    for (int more = 0; more < 2; ++more) {
        mouse::pass(97ms); // just under 100 ms with the press and release
        mouse::clickAgain(next);
        expectOnly("Form5");
    }
    mouse::pass(10ms); // now it has been visible for 200 ms
    mouse::clickAgain(next);
    expectOnly("Form6");
}

TEST_F(DoubleClick, ALatePressMadeBeforeTheScreenWasShownDoesNotCount)
{
    goTo(kRunInPath, "Form4");
    const QPoint next = placeOf("Form4", "Command2");
    mouse::click(next);
    mouse::keepBusy(500ms);
    mouse::clickAgain(next);
    mouse::clickAgain(next);
    expectOnly("Form5");
    mouse::keepBusy(0ms);
    mouse::pass(200ms);
    mouse::clickAgain(next);
    expectOnly("Form6");
}

TEST_F(DoubleClick, ClickingCancelThenBackLeavesTheImport)
{
    press("Form1", "Command8");
    press("Form2", "Command3");
    const QPoint cancel = placeOf("Form2", "Command9");
    mouse::click(cancel);
    expectOnly("Form2");
    EXPECT_TRUE(control("Form2", "Command1")
                    .rect()
                    .contains(control("Form2", "Command1").mapFromGlobal(cancel)));
    mouse::pass(250ms);
    mouse::clickAgain(cancel);
    expectOnly("Form1");
}

TEST_F(DoubleClick, AClickAfterADoubleClickCounts)
{
    goTo(kRunInPath, "Form4");
    const QPoint next = placeOf("Form4", "Command2");
    mouse::doubleClick(next);
    mouse::click(next);
    expectOnly("Form6");
}

TEST_F(DoubleClick, SlowClicksAllCount)
{
    goTo(kRunInPath, "Form4");
    const QPoint next = placeOf("Form4", "Command2");
    mouse::click(next);
    mouse::click(next);
    mouse::click(next);
    expectOnly("Form8");
}

TEST_F(DoubleClick, AKeyRightAfterAClickCounts)
{
    goTo(kRunInPath, "Form4");
    mouse::click(placeOf("Form4", "Command2"));
    expectOnly("Form5");
    expectActive(screen("Form5"));
    control("Form5", "Command2").setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen("Form5").windowHandle(), Qt::Key_Space);
    expectOnly("Form6");
}

TEST_F(DoubleClick, StillSelectsAWord)
{
    goTo(kNormalPath, "Form4");
    type("Form4", "Text2", u"Ladder Match"_s);
    auto &box = screen("Form4").control<QLineEdit>("Text2");
    mouse::doubleClick(box.mapToGlobal(QPoint(12, box.height() / 2)));
    EXPECT_EQ(box.selectedText(), u"Ladder"_s);
}

TEST_F(DoubleClick, StillPressesOneButtonTwice)
{
    press("Form1", "Command1");
    int pressed = 0;
    auto &button = screen("Form16").control<QPushButton>("Command2"); // shows a notice each time
    QObject::connect(&button, &QPushButton::clicked, &button, [&pressed] { ++pressed; });
    boxes.expectNotice(u"Stipulation Editor"_s,
                       u"Please select a match stipulation from the list."_s);
    boxes.expectNotice(u"Stipulation Editor"_s,
                       u"Please select a match stipulation from the list."_s);
    doubleClick("Form16", "Command2");
    EXPECT_EQ(pressed, 2);
}

} // namespace
} // namespace tarvold::testing
