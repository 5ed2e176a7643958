#include "support/flow_test.h"

#include <QAbstractButton>
#include <QMessageBox>

/// Alt+Left and Alt+Right press "<<" and ">>", and Ctrl+S saves, wherever a screen has them.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class Keys : public FlowTest, public ::testing::WithParamInterface<const FlowPath *>
{
protected:
    const FlowPath &flow() const { return *GetParam(); }
    const char *first() const { return flow().screens.front(); }
    const char *last() const { return flow().screens.back(); }

    /// Presses keys on the window, wherever the focus is.
    void hit(const char *screen, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QWidget &window = this->screen(screen);
        expectActive(window);
        QTest::keyClick(window.windowHandle(), key, modifiers);
        boxes.checkAllCame();
    }

    void goOn(const char *screen) { hit(screen, Qt::Key_Right, Qt::AltModifier); }
    void goBackFrom(const char *screen) { hit(screen, Qt::Key_Left, Qt::AltModifier); }
};

TEST_P(Keys, GoToTheCommentaryAndBackToTheMainMenu)
{
    press("Form1", flow().button);
    for (const char *each : flow().screens) {
        expectOnly(each);
        goOn(each); // does nothing on the last one, which has no ">>"
    }
    expectOnly(last());
    for (auto each = flow().screens.rbegin(); each + 1 != flow().screens.rend(); ++each) {
        goBackFrom(*each);
        expectOnly(*(each + 1));
    }
    expectReturnQuestion(Answer::Yes);
    goBackFrom(first());
    expectOnly("Form1");
}

TEST_P(Keys, LoseNothingWithoutTheQuestion)
{
    press("Form1", flow().button);
    expectReturnQuestion(Answer::No);
    goBackFrom(first());
    expectOnly(first());
}

TEST_P(Keys, ActOnOneScreenOnlyWhileHeldDown)
{
    press("Form1", flow().button);
    expectActive(screen(first()));
    for (const bool isRepeated : {false, true, true, true}) {
        QWindow *window = QGuiApplication::focusWindow();
        ASSERT_NE(window, nullptr);
        qt_handleKeyEvent(window, QEvent::KeyPress, Qt::Key_Right, Qt::AltModifier, {}, isRepeated);
        QCoreApplication::processEvents();
    }
    expectOnly(flow().screens.at(1));
}

TEST_P(Keys, AskOnceWhenEnterIsHeldOnTheSaveButton)
{
    goToCommentary(flow());
    type(last(), "Text1", u"The end."_s);
    control(last(), "Command1").setFocus();
    expectActive(screen(last()));
    boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::No);
    boxes.beforeItsAnswer([](QMessageBox &box) {
        for (int count = 0; count < 5; ++count) {
            qt_handleKeyEvent(box.windowHandle(), QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
            QCoreApplication::processEvents();
        }
        EXPECT_TRUE(box.isVisible()) << "a held key answered the question";
    });
    QTest::keyClick(screen(last()).windowHandle(), Qt::Key_Return);
    boxes.checkAllCame();
    qt_handleKeyEvent(screen(last()).windowHandle(), QEvent::KeyPress, Qt::Key_Return, {}, {},
                      true);
    QCoreApplication::processEvents();
    expectOnly(last());
}

TEST_P(Keys, SaveTheRecord)
{
    goToCommentary(flow());
    type(last(), "Text1", u"The end."_s);
    boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::Yes);
    boxes.expectNotice(title(), u"Saved OK."_s);
    hit(last(), Qt::Key_S, Qt::ControlModifier);
    expectOnly("Form1");
    EXPECT_TRUE(bytesOf(QLatin1StringView(flow().file)).contains("The end.\r\n"));
}

TEST_P(Keys, SaveNothingThatTheButtonWouldRefuse)
{
    goToCommentary(flow());
    boxes.expectNotice(title(), QLatin1StringView(flow().missing));
    hit(last(), Qt::Key_S, Qt::ControlModifier);
    expectOnly(last());
}

TEST_P(Keys, AreShownInTheToolTipsOfTheirButtons)
{
    goToCommentary(flow());
    const auto hint = [this](const char *screen, const char *button) {
        return control(screen, button).toolTip();
    };
    EXPECT_EQ(hint(first(), "Command1"), u"Back (Alt+Left)"_s);
    EXPECT_EQ(hint(first(), "Command2"), u"Next (Alt+Right)"_s);
    EXPECT_EQ(hint(last(), "Command2"), u"Back (Alt+Left)"_s);
    EXPECT_TRUE(hint(last(), "Command1").contains(u"(Ctrl+S)"_s));
    EXPECT_EQ(control(first(), "Command2").accessibleDescription(), u"Alt+Right"_s);
}

class KeysOfTheCriteria : public FlowTest
{
};

TEST_F(KeysOfTheCriteria, FillEmptyBoxesAsTheButtonDoes)
{
    goTo(kNormalPath, "Form4");
    type("Form4", "Text2", {});
    QTest::keyClick(screen("Form4").windowHandle(), Qt::Key_Right, Qt::AltModifier);
    expectOnly("Form5");
    EXPECT_EQ(text("Form4", "Text2"), u"Any"_s);
}

INSTANTIATE_TEST_SUITE_P(Flows, Keys,
                         ::testing::Values(&kNormalPath, &kRunInPath, &kTurnPath, &kInterviewPath,
                                           &kTalkShowPath),
                         [](const auto &path) { return path.param->button; });

} // namespace
} // namespace tarvold::testing
