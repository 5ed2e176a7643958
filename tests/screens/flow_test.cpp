#include "support/editor_test.h"
#include "support/window_watch.h"

#include <QSignalSpy>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QString kReturnQuestion =
    u"This will return you to the main menu and lose any changes you haven't saved. Continue?"_s;

/// The screens of the normal flow after the first, each with the number of ">>" presses to it.
struct Later
{
    const char *screen;
    int steps;
};
constexpr Later kScreens[] = {{"Form4", 0}, {"Form5", 1}, {"Form6", 2}, {"Form7", 3}};

class FlowScreens : public EditorTest
{
protected:
    /// Starts the normal flow and presses ">>" this many times.
    void goTo(int steps)
    {
        press("Form1", "Command3");
        for (int step = 0; step < steps; ++step) {
            press(kScreens[step].screen, "Command2");
        }
    }
};

TEST_F(FlowScreens, ScreensAreCreatedOnlyWhenNeeded)
{
    EXPECT_FALSE(editor.screens().exists("Form4"));
    goTo(0);
    EXPECT_TRUE(editor.screens().exists("Form4"));
    EXPECT_FALSE(editor.screens().exists("Form9"));
    EXPECT_FALSE(editor.screens().exists("Form11"));
}

TEST_F(FlowScreens, ExactlyOneScreenIsVisibleAtATime)
{
    goTo(0);
    expectOnly("Form4");
    press("Form4", "Command2");
    expectOnly("Form5");
    press("Form5", "Command2");
    expectOnly("Form6");
    press("Form6", "Command2");
    expectOnly("Form7");
    press("Form7", "Command2");
    expectOnly("Form6");
    press("Form6", "Command1");
    expectOnly("Form5");
    press("Form5", "Command1");
    expectOnly("Form4");
}

TEST_F(FlowScreens, AWindowIsAlwaysOnScreenWhileScreensChange)
{
    const WindowWatch watch;
    goTo(3);
    press("Form7", "Command2");
    press("Form6", "Command1");
    press("Form5", "Command1");
    boxes.expectQuestion(title(), kReturnQuestion, Answer::Yes);
    press("Form4", "Command1");
    EXPECT_FALSE(watch.sawNone());
    EXPECT_TRUE(watch.sawTwo());
}

TEST_F(FlowScreens, EachScreenHasThePositionAndSizeOfTheOneBefore)
{
    screen("Form1").move(33, 44);
    screen("Form1").resize(screen("Form1").size() + QSize(50, 60));
    const QRect place = screen("Form1").geometry();
    goTo(0);
    EXPECT_EQ(screen("Form4").geometry(), place);
    press("Form4", "Command2");
    EXPECT_EQ(screen("Form5").geometry(), place);
    press("Form5", "Command2");
    EXPECT_EQ(screen("Form6").geometry(), place);
    press("Form6", "Command2");
    EXPECT_EQ(screen("Form7").geometry(), place);
}

TEST_F(FlowScreens, BackOnTheFirstScreenAsksAndNoKeepsItOpen)
{
    for (const Answer answer : {Answer::No, Answer::Enter, Answer::Escape, Answer::Close}) {
        press("Form1", "Command3");
        type("Form4", "Text2", u"Ladder Match"_s);
        boxes.expectQuestion(title(), kReturnQuestion, answer);
        press("Form4", "Command1");
        expectOnly("Form4");
        EXPECT_EQ(text("Form4", "Text2"), u"Ladder Match"_s);
        boxes.expectQuestion(title(), kReturnQuestion, Answer::Yes);
        press("Form4", "Command1");
    }
}

TEST_F(FlowScreens, BackOnTheFirstScreenAndYesShowsTheMenuAndTheNextEntryResets)
{
    goTo(0);
    type("Form4", "Text2", u"Ladder Match"_s);
    boxes.expectQuestion(title(), kReturnQuestion, Answer::Yes);
    press("Form4", "Command1");
    expectOnly("Form1");
    EXPECT_EQ(text("Form4", "Text2"), u"Ladder Match"_s);
    press("Form1", "Command3");
    EXPECT_EQ(text("Form4", "Text2"), u"Any"_s);
}

TEST_F(FlowScreens, BackOnLaterScreensAsksNothing)
{
    goTo(3);
    press("Form7", "Command2");
    press("Form6", "Command1");
    press("Form5", "Command1");
    expectOnly("Form4");
}

TEST_F(FlowScreens, ClosingAnyScreenOfTheFlowAsksAndNoKeepsItOpen)
{
    for (const Later &later : kScreens) {
        SCOPED_TRACE(later.screen);
        goTo(later.steps);
        boxes.expectQuestion(title(), kReturnQuestion, Answer::No);
        screen(later.screen).close();
        boxes.checkAllCame();
        expectOnly(later.screen);
        boxes.expectQuestion(title(), kReturnQuestion, Answer::Yes);
        screen(later.screen).close();
        boxes.checkAllCame();
        expectOnly("Form1");
    }
}

TEST_F(FlowScreens, ClosingAScreenOfTheFlowDoesNotEndTheProgram)
{
    const QSignalSpy ended(&editor, &Editor::exitRequested);
    goTo(2);
    boxes.expectQuestion(title(), kReturnQuestion, Answer::Yes);
    screen("Form6").close();
    EXPECT_EQ(ended.count(), 0);
}

TEST_F(FlowScreens, EveryWindowHasTheSameTitle)
{
    goTo(3);
    for (const Later &later : kScreens) {
        EXPECT_EQ(screen(later.screen).windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    }
}

} // namespace
} // namespace tarvold::testing
