#include "endings/ear.h"
#include "endings/lines_test.h"

#include <QApplication>
#include <QInputMethodEvent>

#include <utility>

/// Swapping commentary lines by Ctrl+Shift+Up and Ctrl+Shift+Down.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class SwapLines : public LinesTest
{
protected:
    SwapLines()
    {
        write(1, u"One"_s);
        write(2, u"Two"_s);
    }

    bool isMarked(int number) { return lineBox(number).palette().color(QPalette::Base) == kYellow; }

    /// What screen readers were told since the lines were shown.
    QStringList told() { return m_ear.told; }

    /// What is shown below the lines.
    QString hint() { return control("Form7", "taghint").accessibleName(); }

private:
    const Ear m_ear{screen("Form7")};
};

TEST_F(SwapLines, DownMovesTheLineWithItsCursorAndMark)
{
    lineBox(1).setFocus(Qt::OtherFocusReason);
    lineBox(1).setCursorPosition(2);
    swapDown(1);
    expectLines({u"Two"_s, u"One"_s});
    EXPECT_TRUE(lineBox(2).hasFocus());
    EXPECT_EQ(lineBox(2).cursorPosition(), 2);
    EXPECT_TRUE(isMarked(2));
    EXPECT_FALSE(isMarked(1));
    swapDown(2);
    expectLines({u"Two"_s, {}, u"One"_s});
    EXPECT_TRUE(lineBox(3).hasFocus());
    EXPECT_EQ(lineBox(3).cursorPosition(), 2);
}

TEST_F(SwapLines, UpMovesTheLineAbove)
{
    swapUp(2);
    expectLines({u"Two"_s, u"One"_s});
    EXPECT_TRUE(lineBox(1).hasFocus());
    EXPECT_TRUE(isMarked(1));
}

TEST_F(SwapLines, TheFirstAndTheLastLineStay)
{
    swapUp(1);
    expectLines({u"One"_s, u"Two"_s});
    EXPECT_TRUE(lineBox(1).hasFocus());
    write(10, u"Ten"_s);
    swapDown(10);
    EXPECT_EQ(lineBox(10).text(), u"Ten"_s);
    EXPECT_TRUE(lineBox(10).hasFocus());
}

TEST_F(SwapLines, LinesWithTheSameTextNeedNoUndo)
{
    write(2, u"One"_s);
    swapDown(1);
    expectLines({u"One"_s, u"One"_s});
    EXPECT_TRUE(lineBox(2).hasFocus());
    undo(1); // of what was typed
    expectLines({{}, u"One"_s});
}

TEST_F(SwapLines, OneUndoSwapsBackAndOneRedoSwapsAgain)
{
    for (const auto &[from, to] : {std::pair(1, 2), std::pair(2, 1)}) {
        for (const int at : {to, from}) {
            from < to ? swapDown(from) : swapUp(from);
            expectLines({u"Two"_s, u"One"_s});
            undo(at);
            expectLines({u"One"_s, u"Two"_s});
            redo(at);
            expectLines({u"Two"_s, u"One"_s});
            undo(at);
            expectLines({u"One"_s, u"Two"_s});
        }
    }
    undo(1);
    undo(2);
    expectLines({});
}

TEST_F(SwapLines, UndoPutsTheCursorBackAndSelectsNothing)
{
    lineBox(1).setFocus(Qt::OtherFocusReason);
    lineBox(1).setCursorPosition(1);
    swapDown(1);
    undo(2);
    EXPECT_TRUE(lineBox(2).hasFocus());
    EXPECT_FALSE(lineBox(2).hasSelectedText());
    EXPECT_EQ(lineBox(2).cursorPosition(), 1);
    EXPECT_EQ(lineBox(1).cursorPosition(), 0); // shows its beginning
    lineBox(1).setFocus(Qt::OtherFocusReason);
    EXPECT_FALSE(lineBox(1).hasSelectedText());
    EXPECT_EQ(lineBox(1).cursorPosition(), 1);
}

TEST_F(SwapLines, TypingAfterARedoReplacesNothing)
{
    swapDown(1);
    undo(2);
    undo(2);
    expectLines({u"One"_s});
    redo(2); // of what was typed; the next step is the swap
    EXPECT_FALSE(lineBox(2).hasSelectedText());
    QTest::keyClicks(&lineBox(2), u"!"_s);
    expectLines({u"One"_s, u"Two!"_s});
}

TEST_F(SwapLines, UndoChangesNothingIfTheOtherLineWasChangedSince)
{
    swapDown(1);
    add(1, u"!"_s);
    undo(2);
    expectLines({u"Two!"_s, u"One"_s});
    const QString message =
        u"Nothing was undone, as line 1 was changed since. Press Ctrl+Z there first."_s;
    EXPECT_TRUE(told().contains(message));
    EXPECT_EQ(hint(), message);
    undo(1);
    EXPECT_EQ(hint(), QString());
    undo(2);
    expectLines({u"One"_s, u"Two"_s});
}

TEST_F(SwapLines, TheSameTextTypedAgainIsNoReasonToSwapBack)
{
    swapDown(1);
    write(1, u"Two"_s);
    undo(2);
    expectLines({u"Two"_s, u"One"_s});
    EXPECT_EQ(hint(),
              u"Nothing was undone, as line 1 was changed since. Press Ctrl+Z there first."_s);
}

TEST_F(SwapLines, RedoChangesNothingIfTheOtherLineWasChangedSince)
{
    swapDown(1);
    undo(2);
    write(1, u"new"_s);
    redo(2);
    expectLines({u"new"_s, u"Two"_s});
    EXPECT_TRUE(told().contains(u"Nothing was redone, as line 1 was changed since."_s));
}

TEST_F(SwapLines, EachLineKeepsItsOwnUndoHistory)
{
    add(1, u" more"_s);
    swapDown(1);
    add(2, u"x"_s);
    undo(2);
    undo(2);
    expectLines({u"One more"_s, u"Two"_s});
    undo(1);
    expectLines({u"One"_s, u"Two"_s});
    redo(1);
    redo(2);
    redo(2);
    expectLines({u"Two"_s, u"One morex"_s});
}

TEST_F(SwapLines, ALineThatWasEmptiedByCutSwapsAsAnyOther)
{
    hit(1, QKeySequence::SelectAll);
    hit(1, QKeySequence::Cut);
    swapUp(2);
    expectLines({u"Two"_s});
    undo(1);
    expectLines({{}, u"Two"_s});
    undo(1);
    expectLines({u"One"_s, u"Two"_s});
}

TEST_F(SwapLines, AHeldKeyMovesALineThroughAll)
{
    for (int number = 1; number < 10; ++number) {
        swapDown(number);
    }
    EXPECT_EQ(lineBox(10).text(), u"One"_s);
    EXPECT_EQ(lineBox(1).text(), u"Two"_s);
    for (int number = 10; number > 1; --number) {
        undo(number);
    }
    expectLines({u"One"_s, u"Two"_s});
}

TEST_F(SwapLines, ScreenReadersHearWhichLinesWereSwapped)
{
    swapDown(1);
    EXPECT_TRUE(told().contains(u"Line 1 swapped with line 2."_s));
    swapUp(2);
    EXPECT_TRUE(told().contains(u"Line 2 swapped with line 1."_s));
}

TEST_F(SwapLines, UndoAndRedoBringNothingIntoANewRecord)
{
    swapDown(1);
    undo(2);
    swapDown(1);
    save();
    goTo("Form7");
    for (int number = 1; number <= 10; ++number) {
        undo(number);
        redo(number);
        EXPECT_FALSE(lineBox(number).isUndoAvailable()) << number;
        EXPECT_FALSE(lineBox(number).isRedoAvailable()) << number;
    }
    expectLines({});
    write(1, u"Two"_s);
    write(2, u"One"_s);
    undo(2);
    expectLines({u"Two"_s});
}

TEST_F(SwapLines, AnUnfinishedCompositionShowsNoMarkAndLosesNoLine)
{
    lineBox(1).setFocus(Qt::OtherFocusReason);
    lineBox(1).setCursorPosition(1);
    QInputMethodEvent composing(u"xyz"_s, {});
    QApplication::sendEvent(&lineBox(1), &composing);
    swapDown(1);
    expectLines({u"Two"_s, u"One"_s});
    undo(2);
    expectLines({u"One"_s, u"Two"_s});
    QApplication::sendEvent(&lineBox(2), &composing);
    redo(2);
    expectLines({u"Two"_s, u"One"_s});
}

} // namespace
} // namespace tarvold::testing
