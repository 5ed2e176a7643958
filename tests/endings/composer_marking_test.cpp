#include "screens/commentary_screen.h"
#include "support/ending_test.h"
#include "support/spoken.h"

#include <QApplication>
#include <QImage>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QColor kWhite(0xFF, 0xFF, 0xFF);

class Marking : public EndingTest
{
protected:
    Marking()
    {
        goTo("Form7");
        expectActive(screen("Form7"));
    }

    static QByteArray line(int number) { return "Text" + QByteArray::number(number); }

    QWidget &lineBox(int number) { return control("Form7", line(number).constData()); }

    /// The numbers of the yellow lines; any other colour than yellow and white fails the test.
    QList<int> yellowLines()
    {
        QList<int> yellow;
        for (int number = 1; number <= 10; ++number) {
            const QColor background = lineBox(number).palette().color(QPalette::Base);
            EXPECT_TRUE(background == kWhite || background == kYellow) << number;
            if (background == kYellow) {
                yellow << number;
            }
        }
        return yellow;
    }

    QString lineText(int number) { return text("Form7", line(number).constData()); }
};

TEST_F(Marking, NoLineIsMarkedAfterEntry)
{
    EXPECT_EQ(yellowLines(), QList<int>());
    EXPECT_TRUE(control("Form7", "Combo1").hasFocus());
}

TEST_F(Marking, AClickMarksThatLineOnly)
{
    for (const int number : {3, 5, 1, 10, 5}) {
        click(lineBox(number));
        EXPECT_EQ(yellowLines(), QList<int>{number});
    }
}

TEST_F(Marking, AClickMarksALineThatAlreadyHasTheFocus)
{
    click(lineBox(4));
    qobject_cast<CommentaryScreen *>(&screen("Form7"))->whitenboxes();
    EXPECT_EQ(yellowLines(), QList<int>());
    EXPECT_TRUE(lineBox(4).hasFocus());
    click(lineBox(4));
    EXPECT_EQ(yellowLines(), QList<int>{4});
}

TEST_F(Marking, TabMarksTheLineItReaches)
{
    for (int number = 1; number <= 10; ++number) {
        QTest::keyClick(screen("Form7").windowHandle(), Qt::Key_Tab);
        EXPECT_EQ(yellowLines(), QList<int>{number});
    }
    QTest::keyClick(screen("Form7").windowHandle(), Qt::Key_Tab);
    QTest::keyClick(screen("Form7").windowHandle(), Qt::Key_Backtab);
    QTest::keyClick(screen("Form7").windowHandle(), Qt::Key_Backtab);
    EXPECT_EQ(yellowLines(), QList<int>{9});
}

/// Presses a key as the desktop reports it: at the window, which passes it on to the focus.
void hit(QWidget &screen, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(screen.windowHandle(), key, modifiers);
}

TEST_F(Marking, EnterAndDownGoToTheNextLineAndMarkIt)
{
    for (const auto &[key, modifiers] :
         {std::pair(Qt::Key_Return, Qt::NoModifier), std::pair(Qt::Key_Enter, Qt::KeypadModifier),
          std::pair(Qt::Key_Down, Qt::NoModifier), std::pair(Qt::Key_Down, Qt::KeypadModifier)}) {
        SCOPED_TRACE(key);
        click(lineBox(1));
        for (const int number : {2, 3, 4, 5, 6, 7, 8, 9, 10, 10, 10}) {
            hit(screen("Form7"), key, modifiers);
            EXPECT_EQ(yellowLines(), QList<int>{number});
            EXPECT_TRUE(lineBox(number).hasFocus()) << number;
        }
    }
    expectOnly("Form7"); // Enter pressed no button
    EXPECT_TRUE(lineText(1).isEmpty());
}

TEST_F(Marking, UpGoesToThePreviousLineAndMarksIt)
{
    click(lineBox(3));
    for (const int number : {2, 1, 1, 1}) {
        hit(screen("Form7"), Qt::Key_Up);
        EXPECT_EQ(yellowLines(), QList<int>{number});
        EXPECT_TRUE(lineBox(number).hasFocus()) << number;
    }
}

TEST_F(Marking, TheKeysFromLineToLineKeepTextCursorAndUndo)
{
    type("Form7", "Text1", u"One"_s);
    hit(screen("Form7"), Qt::Key_Return);
    QTest::keyClicks(&lineBox(2), u"Two"_s);
    hit(screen("Form7"), Qt::Key_Left);
    hit(screen("Form7"), Qt::Key_Up);
    QTest::keyClicks(&lineBox(1), u"!"_s);
    hit(screen("Form7"), Qt::Key_Down);
    QTest::keyClicks(&lineBox(2), u"-"_s);
    EXPECT_EQ(lineText(1), u"One!"_s);
    EXPECT_EQ(lineText(2), u"Tw-o"_s);
    hit(screen("Form7"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lineText(2), u"Two"_s);
    EXPECT_EQ(lineText(1), u"One!"_s);
}

TEST_F(Marking, WithAModifierTheKeysLeaveTheLineToNone)
{
    click(lineBox(4));
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return}) {
        for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::ShiftModifier}) {
            hit(screen("Form7"), key, modifier);
            EXPECT_TRUE(lineBox(4).hasFocus()) << key << modifier;
        }
    }
    EXPECT_EQ(yellowLines(), QList<int>{4});
}

TEST_F(Marking, AHeldEnterGoesOneLineOnAndAHeldDownToTheLast)
{
    const auto hold = [this](Qt::Key key) {
        for (const bool isRepeated : {false, true, true}) {
            qt_handleKeyEvent(screen("Form7").windowHandle(), QEvent::KeyPress, key, {}, {},
                              isRepeated);
            QCoreApplication::processEvents();
        }
    };
    click(lineBox(1));
    hold(Qt::Key_Return);
    EXPECT_EQ(yellowLines(), QList<int>{2});
    hold(Qt::Key_Down);
    EXPECT_EQ(yellowLines(), QList<int>{5});
}

TEST_F(Marking, ThePickByEnterStaysInItsLine)
{
    click(lineBox(6));
    control("Form7", "Combo1").setFocus(Qt::TabFocusReason);
    pickByKeyboard(combo("Form7", "Combo1"), u"Receiver Full Name"_s);
    EXPECT_EQ(lineText(6), u"<recfullname>"_s);
    EXPECT_TRUE(lineBox(6).hasFocus());
    EXPECT_EQ(yellowLines(), QList<int>{6});
}

TEST_F(Marking, TheMarkStaysWhenTheFocusLeavesTheLines)
{
    click(lineBox(10));
    tabTo(screen("Form7"), "Command1");
    EXPECT_EQ(yellowLines(), QList<int>{10});
    tabTo(screen("Form7"), "Combo1");
    EXPECT_EQ(yellowLines(), QList<int>{10});
}

TEST_F(Marking, ShowingTheWindowMarksNothing)
{
    lineBox(2).setFocus(Qt::OtherFocusReason);
    qobject_cast<CommentaryScreen *>(&screen("Form7"))->whitenboxes();
    QWidget other;
    other.show();
    other.activateWindow();
    expectActive(other);
    screen("Form7").activateWindow();
    expectActive(screen("Form7"));
    EXPECT_TRUE(lineBox(2).hasFocus());
    EXPECT_EQ(yellowLines(), QList<int>());
}

TEST_F(Marking, ClosingAMessageBoxMarksNothing)
{
    lineBox(2).setFocus(Qt::OtherFocusReason);
    qobject_cast<CommentaryScreen *>(&screen("Form7"))->whitenboxes();
    boxes.expectQuestion(title(), kReturnQuestion, Answer::No);
    screen("Form7").close();
    boxes.checkAllCame();
    expectActive(screen("Form7"));
    EXPECT_TRUE(lineBox(2).hasFocus());
    EXPECT_EQ(yellowLines(), QList<int>());
}

TEST_F(Marking, TheMarkStaysThroughBackAndNext)
{
    click(lineBox(7));
    press("Form7", "Command2");
    press("Form6", "Command2");
    expectActive(screen("Form7"));
    EXPECT_EQ(yellowLines(), QList<int>{7});
    EXPECT_TRUE(lineBox(7).hasFocus());
}

TEST_F(Marking, ReturningToTheScreenMarksNothing)
{
    press("Form7", "Command2");
    press("Form6", "Command2");
    expectActive(screen("Form7"));
    EXPECT_EQ(yellowLines(), QList<int>());
    EXPECT_TRUE(control("Form7", "Combo1").hasFocus());
}

TEST_F(Marking, WhitenboxesWhitensAllLines)
{
    click(lineBox(8));
    qobject_cast<CommentaryScreen *>(&screen("Form7"))->whitenboxes();
    EXPECT_EQ(yellowLines(), QList<int>());
}

TEST_F(Marking, TheNextEntryUnmarksEveryLine)
{
    click(lineBox(8));
    press("Form7", "Command2");
    press("Form6", "Command1");
    press("Form5", "Command1");
    leave();
    goTo("Form7");
    EXPECT_EQ(yellowLines(), QList<int>());
}

TEST_F(Marking, WithoutAMarkATagOnlyBecomesPending)
{
    choose("Form7", "Combo1", u"Receiver Full Name"_s);
    EXPECT_EQ(text("Form7", "hiddenlabel"), u"<recfullname>"_s);
    for (int number = 1; number <= 10; ++number) {
        EXPECT_EQ(lineText(number), QString()) << number;
    }
}

TEST_F(Marking, ATagGoesOnlyIntoTheLineMarkedLast)
{
    click(lineBox(3));
    click(lineBox(5));
    choose("Form7", "Combo1", u"Receiver Full Name"_s);
    for (int number = 1; number <= 10; ++number) {
        EXPECT_EQ(lineText(number), number == 5 ? u"<recfullname>"_s : QString());
    }
    EXPECT_EQ(yellowLines(), QList<int>{5});
}

TEST_F(Marking, TwoTagsInTwoLinesStayWhereTheyWereInserted)
{
    click(lineBox(1));
    choose("Form7", "Combo1", u"Receiver Full Name"_s);
    click(lineBox(2));
    choose("Form7", "Combo1", u"Attacker 1 Short Name"_s);
    EXPECT_EQ(lineText(1), u"<recfullname>"_s);
    EXPECT_EQ(lineText(2), u"<att1shortname>"_s);
}

/// The whole program on a desktop with light text on dark windows.
class DarkMarking : public ::testing::Test
{
public:
    DarkMarking() : m_light(QApplication::palette())
    {
        QPalette dark(QColor(0x20, 0x20, 0x20), QColor(0x20, 0x20, 0x20));
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
    }
    ~DarkMarking() override { QApplication::setPalette(m_light); }

private:
    QPalette m_light;
};

/// The most frequent colour of the picture.
QColor backgroundOf(QWidget &box)
{
    const QImage picture = box.grab().toImage();
    return picture.pixelColor(picture.width() - 20, picture.height() / 2);
}

TEST_F(DarkMarking, LinesStayBlackOnWhiteAndYellow)
{
    Editor editor;
    editor.start();
    Screens &screens = editor.screens();
    click(screens["Form1"].control("Command3"));
    for (const char *step : {"Form4", "Form5", "Form6"}) {
        click(screens[step].control("Command2"));
    }
    QWidget &marked = screens["Form7"].control("Text2");
    QWidget &other = screens["Form7"].control("Text3");
    click(marked);
    click(other);
    click(marked);
    for (QWidget *line : {&marked, &other}) {
        EXPECT_EQ(line->palette().color(QPalette::Text), QColor(Qt::black));
    }
    EXPECT_EQ(backgroundOf(marked), kYellow);
    EXPECT_EQ(backgroundOf(other), kWhite);
}

} // namespace
} // namespace tarvold::testing
