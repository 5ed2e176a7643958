#include "controls/scroll_pane.h"
#include "endings/ear.h"
#include "support/ending_test.h"
#include "support/tool_tips.h"

#include <QAccessible>
#include <QLineEdit>
#include <QScrollBar>

/// The hints about tags, below the lines of commentary.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class TagHints : public EndingTest
{
protected:
    TagHints() { goTo("Form7"); }

    QLineEdit &lineBox(int number)
    {
        return screen("Form7").control<QLineEdit>(qPrintable(u"Text%1"_s.arg(number)));
    }

    void write(int number, const QString &text)
    {
        type("Form7", qPrintable(u"Text%1"_s.arg(number)), text);
    }

    /// The whole hint, also where the line elides it.
    QString hint() { return control("Form7", "taghint").accessibleName(); }

    const QString kShort = u"Line 3: <recshrtname> is not a tag. Did you mean <recshortname>?"_s;
};

TEST_F(TagHints, TheLineIsEmptyAtFirst)
{
    EXPECT_EQ(text("Form7", "taghint"), QString());
    write(1, u"<recshortname> wins."_s);
    EXPECT_EQ(text("Form7", "taghint"), QString());
}

TEST_F(TagHints, AMistypedTagIsHintedAtAsSoonAsItIsComplete)
{
    write(3, u"<recshrtname"_s);
    EXPECT_EQ(hint(), QString());
    QTest::keyClicks(&lineBox(3), u">"_s);
    EXPECT_EQ(hint(), kShort);
    EXPECT_EQ(text("Form7", "taghint"), kShort); // there is room for it
    QTest::keyClicks(&lineBox(3), u" wins"_s);
    EXPECT_EQ(hint(), kShort);
    write(3, u"<recshortname>"_s);
    EXPECT_EQ(hint(), QString());
}

TEST_F(TagHints, AnUnclosedTagIsHintedAtWhenTheCursorHasLeftIt)
{
    const QString unclosed = u"Line 2: \"<\" is not closed."_s;
    write(2, u"He <recsh"_s);
    EXPECT_EQ(hint(), QString());
    QTest::keyClick(&lineBox(2), Qt::Key_Home);
    EXPECT_EQ(hint(), unclosed);
    QTest::keyClick(&lineBox(2), Qt::Key_End);
    EXPECT_EQ(hint(), QString());
    QTest::keyClick(&lineBox(2), Qt::Key_Down);
    EXPECT_EQ(hint(), unclosed);
}

TEST_F(TagHints, ARefusedTagIsHintedAtWithItsReason)
{
    write(1, u"<attmanager>"_s);
    const QString reason = u"You have the attacker's manager name as 'N/A' or 'None', which means "
                           "you can't involve the attacker's manager in this finish."_s;
    EXPECT_EQ(hint(), QString(u"Line 1: <attmanager>: "_s + reason));
    press("Form7", "Command2");
    press("Form6", "Command1");
    type("Form5", "Text1", u"Any"_s);
    press("Form5", "Command2");
    press("Form6", "Command2");
    expectOnly("Form7");
    EXPECT_EQ(hint(), QString());
}

TEST_F(TagHints, TheYellowLineComesFirstAndTheTooltipHasAll)
{
    write(1, u"<nobody>"_s);
    write(3, u"<recshrtname>"_s);
    EXPECT_EQ(hint(), QString(kShort + u" (1 more)"_s));
    EXPECT_EQ(toolTipOf(control("Form7", "taghint")),
              QString(kShort + u"\nLine 1: <nobody> is not a tag."_s));
    click(lineBox(1));
    EXPECT_EQ(hint(), u"Line 1: <nobody> is not a tag. (1 more)"_s);
    click(lineBox(5));
    EXPECT_EQ(hint(), u"Line 1: <nobody> is not a tag. (1 more)"_s);
}

TEST_F(TagHints, ALongHintIsElidedAndNothingMoves)
{
    const QWidget &label = control("Form7", "taghint");
    const QRect place = label.geometry();
    const QRect last = lineBox(10).geometry();
    const int wide = screen("Form7").width();
    const int least = screen("Form7").minimumSizeHint().width();
    write(1, u"<attmanager>"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(label.geometry(), place);
    EXPECT_EQ(lineBox(10).geometry(), last);
    EXPECT_EQ(screen("Form7").width(), wide);
    EXPECT_EQ(screen("Form7").minimumSizeHint().width(), least);
    const QString shown = text("Form7", "taghint");
    EXPECT_TRUE(shown.endsWith(u'\u2026')) << shown.toStdString();
    EXPECT_LE(label.fontMetrics().horizontalAdvance(shown), label.width());
    EXPECT_GT(label.height(), 0);
    write(2, u"<nobody>"_s);
    click(lineBox(1));
    EXPECT_TRUE(text("Form7", "taghint").endsWith(u"\u2026 (1 more)"_s));
    EXPECT_LE(label.fontMetrics().horizontalAdvance(text("Form7", "taghint")), label.width());
}

TEST_F(TagHints, TheHintStaysInSightInALowWindow)
{
    QWidget &form = screen("Form7");
    const QScrollBar &scrollBar = *form.findChild<ScrollPane *>()->verticalScrollBar();
    constexpr int kFrame = 48; // of a window
    form.resize(form.width(), 600 - kFrame);
    QCoreApplication::processEvents();
    EXPECT_EQ(scrollBar.maximum(), 0); // nothing scrolls yet
    form.resize(form.width(), 400);
    QCoreApplication::processEvents();
    EXPECT_GT(scrollBar.maximum(), 0);
    lineBox(1).setFocus(Qt::OtherFocusReason);
    const QWidget &label = control("Form7", "taghint");
    EXPECT_EQ(label.visibleRegion().boundingRect(), label.rect());
}

TEST_F(TagHints, ScreenReadersHearAHintOnce)
{
    const Ear ear(screen("Form7"));
    write(3, u"<recshrtname> wins it here"_s);
    EXPECT_EQ(ear.told, QStringList(kShort));
    click(lineBox(4));
    QTest::keyClicks(&lineBox(4), u"And more."_s);
    EXPECT_EQ(ear.told, QStringList(kShort));
    write(4, u"<nobody>"_s);
    EXPECT_EQ(ear.told, (QStringList{kShort, u"Line 4: <nobody> is not a tag."_s}));
}

TEST_F(TagHints, ScreenReadersHearTheSameHintOfEachLineThatHasIt)
{
    const Ear ear(screen("Form7"));
    write(1, u"A <nobody> x"_s);
    write(2, u"B <nobody> y"_s);
    write(3, u"C <nobody> z"_s);
    for (const int line : {1, 2, 3}) {
        click(lineBox(line));
        EXPECT_TRUE(ear.told.contains(u"Line %1: <nobody> is not a tag."_s.arg(line))) << line;
        lineBox(line).selectAll();
        QTest::keyClicks(&lineBox(line), u"right"_s);
    }
    EXPECT_EQ(ear.told.size(), 3);
}

TEST_F(TagHints, ScreenReadersHearNothingWhileATagIsCorrected)
{
    write(3, u"<recshrtname> wins"_s);
    const Ear ear(screen("Form7"));
    QLineEdit &box = lineBox(3);
    box.setCursorPosition(6);
    EXPECT_EQ(hint(), QString());
    QTest::keyClicks(&box, u"xy"_s);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClicks(&box, u"o"_s);
    EXPECT_EQ(hint(), QString());
    QTest::keyClick(&box, Qt::Key_End);
    EXPECT_EQ(box.text(), u"<recshortname> wins"_s);
    EXPECT_EQ(ear.told, QStringList());
    box.setCursorPosition(6);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(ear.told, QStringList());
    QTest::keyClick(&box, Qt::Key_End);
    EXPECT_EQ(ear.told.size(), 1);
}

TEST_F(TagHints, ScreenReadersHearNothingWhenTheCursorGoesThroughATag)
{
    write(3, u"<recshrtname> wins"_s);
    const Ear ear(screen("Form7"));
    QTest::keyClick(&lineBox(3), Qt::Key_Home);
    for (int times = 0; times < 16; ++times) {
        QTest::keyClick(&lineBox(3), Qt::Key_Right);
    }
    EXPECT_EQ(hint(), kShort);
    EXPECT_EQ(ear.told, QStringList());
}

TEST_F(TagHints, ScreenReadersHearEachOfTwoHintsOnce)
{
    const QString other = u"Line 5: <nobody> is not a tag."_s;
    write(5, u"<nobody>"_s);
    write(3, u"<recshrtname>"_s);
    const Ear ear(screen("Form7"));
    for (int times = 0; times < 3; ++times) {
        lineBox(3).setCursorPosition(5);
        EXPECT_EQ(hint(), other);
        QTest::keyClick(&lineBox(3), Qt::Key_End);
        EXPECT_EQ(hint(), QString(kShort + u" (1 more)"_s));
    }
    EXPECT_EQ(ear.told, QStringList());
    write(3, u"<recshortname>"_s);
    write(3, u"<recshrtname>"_s); // made again
    EXPECT_EQ(ear.told, QStringList(kShort));
}

TEST_F(TagHints, ScreenReadersHearEveryHintOfALine)
{
    const Ear ear(screen("Form7"));
    write(1, u"<nobody> and "_s);
    QTest::keyClicks(&lineBox(1), u"<noone> here "_s);
    QTest::keyClicks(&lineBox(1), u"<attmanager> x"_s);
    ASSERT_EQ(ear.told.size(), 3);
    EXPECT_EQ(ear.told[0], u"Line 1: <nobody> is not a tag."_s);
    EXPECT_EQ(ear.told[1], u"Line 1: <noone> is not a tag."_s);
    EXPECT_TRUE(ear.told[2].startsWith(u"Line 1: <attmanager>: You have the"_s));
    EXPECT_TRUE(hint().endsWith(u"(2 more)"_s));
}

TEST_F(TagHints, ScreenReadersHearAllHintsOfAPasteAtOnce)
{
    const Ear ear(screen("Form7"));
    click(lineBox(2));
    paste(lineBox(2), u"<nobody> and <noone> here"_s);
    EXPECT_EQ(ear.told,
              QStringList(u"Line 2: <nobody> is not a tag. Line 2: <noone> is not a tag."_s));
}

TEST_F(TagHints, ScreenReadersHearNoHintAgainWhenLinesAreSwapped)
{
    write(1, u"<nobody>"_s);
    write(2, u"<recshrtname>"_s);
    const Ear ear(screen("Form7"));
    lineBox(1).setFocus(Qt::OtherFocusReason);
    for (int times = 0; times < 2; ++times) {
        QTest::keyClick(screen("Form7").focusWidget(), Qt::Key_Down,
                        Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(lineBox(3).text(), u"<nobody>"_s);
    EXPECT_EQ(ear.told,
              (QStringList{u"Line 1 swapped with line 2."_s, u"Line 2 swapped with line 3."_s}));
    QTest::keySequence(&lineBox(3), QKeySequence::Undo);
    EXPECT_EQ(lineBox(2).text(), u"<nobody>"_s);
    EXPECT_EQ(ear.told.size(), 2);
    write(3, u"<nobody>"_s); // another one
    EXPECT_EQ(ear.told.size(), 3);
    EXPECT_EQ(ear.told.last(), u"Line 3: <nobody> is not a tag."_s);
}

TEST_F(TagHints, TheOtherHintsAreTheDescriptionInPlainWords)
{
    const QWidget &label = control("Form7", "taghint");
    const auto description = [&label] {
        return QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&label))
            ->text(QAccessible::Description);
    };
    EXPECT_EQ(description(), QString());
    write(1, u"<nobody> here"_s);
    EXPECT_EQ(description(), QString());
    QTest::keyClicks(&lineBox(1), u" <noone> or <recshrtname>"_s);
    EXPECT_EQ(description(), u"Line 1: <noone> is not a tag.\n"
                             "Line 1: <recshrtname> is not a tag. Did you mean <recshortname>?"_s);
}

TEST_F(TagHints, AHintKeepsNothingFromBeingSaved)
{
    write(1, u"<nobody> <"_s);
    save();
    EXPECT_TRUE(bytesOf(u"normreports.tvd"_s).contains("\r\n<nobody> <\r\n"));
    goTo("Form7");
    EXPECT_EQ(hint(), QString());
}

TEST_F(TagHints, ATagOfAnotherKindOfEndingIsNotKnown)
{
    write(1, u"<feudname1>"_s); // only endings with run-ins have it
    EXPECT_TRUE(hint().startsWith(u"Line 1: <feudname1> is not a tag."_s));
}

} // namespace
} // namespace tarvold::testing
