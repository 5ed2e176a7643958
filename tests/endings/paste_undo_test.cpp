#include "endings/lines_test.h"

/// Undo and redo of a text of several lines that was pasted into commentary lines.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class PasteUndo : public LinesTest
{
protected:
    /// What is shown below the lines.
    QString hint() { return control("Form7", "taghint").accessibleName(); }
};

TEST_F(PasteUndo, OneUndoUndoesThePasteAndOneRedoRepeatsIt)
{
    write(1, u"ab"_s);
    pasteInto(1, u"One\nTwo\nThree"_s);
    hit(1, QKeySequence::Undo);
    expectLines({u"ab"_s});
    hit(1, QKeySequence::Redo);
    expectLines({u"abOne"_s, u"Two"_s, u"Three"_s});
    hit(1, QKeySequence::Undo);
    hit(1, QKeySequence::Undo);
    expectLines({});
}

TEST_F(PasteUndo, UndoKeepsLinesThatWereChangedSince)
{
    pasteInto(1, u"One\nTwo\nThree"_s);
    click(lineBox(2));
    QTest::keyClicks(&lineBox(2), u"!"_s);
    hit(1, QKeySequence::Undo);
    expectLines({{}, u"Two!"_s});
    EXPECT_EQ(hint(), u"Line 2 was changed since, so it stays."_s);
    write(3, u"new"_s);
    hit(1, QKeySequence::Redo);
    expectLines({u"One"_s, u"Two!"_s, u"new"_s});
}

TEST_F(PasteUndo, UndoOfOtherTypingLeavesTheOtherLines)
{
    pasteInto(1, u"One\nTwo"_s);
    QTest::keyClicks(&lineBox(1), u"!"_s);
    hit(1, QKeySequence::Undo);
    expectLines({u"One"_s, u"Two"_s});
    hit(1, QKeySequence::SelectAll);
    QTest::keyClick(&lineBox(1), Qt::Key_Delete);
    QTest::keyClicks(&lineBox(1), u"One"_s);
    hit(1, QKeySequence::Undo); // of what was typed anew, though it reads the same
    EXPECT_EQ(lineBox(2).text(), u"Two"_s);
}

TEST_F(PasteUndo, UndoLeavesWhatWasCutBelowBeforeThePaste)
{
    write(2, u"kept"_s);
    hit(2, QKeySequence::SelectAll);
    hit(2, QKeySequence::Cut);
    pasteInto(1, u"One\nTwo"_s);
    expectLines({u"One"_s, u"Two"_s});
    undo(1);
    expectLines({});
    undo(2);
    expectLines({{}, u"kept"_s});
}

TEST_F(PasteUndo, UndoLeavesTheSameTextTypedAgainBelow)
{
    pasteInto(1, u"One\nTwo"_s);
    write(2, u"Two"_s);
    undo(1);
    expectLines({{}, u"Two"_s});
    redo(1);
    expectLines({u"One"_s, u"Two"_s});
}

TEST_F(PasteUndo, RedoLeavesALineThatIsEmptyForAnotherReason)
{
    pasteInto(1, u"One\nTwo"_s);
    undo(1);
    write(2, u"x"_s);
    hit(2, Qt::Key_Backspace);
    redo(1);
    expectLines({u"One"_s});
}

TEST_F(PasteUndo, UndoOfAPasteOfTheSameTextTwiceTakesOneAtATime)
{
    pasteInto(1, u"One\nTwo"_s);
    hit(1, QKeySequence::SelectAll);
    paste(lineBox(1), u"One\nTwo"_s); // the line below is taken now
    expectLines({u"One Two"_s, u"Two"_s});
    undo(1);
    expectLines({u"One"_s, u"Two"_s});
    undo(1);
    expectLines({});
}

TEST_F(PasteUndo, UndoInALineBelowUndoesOnlyItsOwnPart)
{
    pasteInto(1, u"One\nTwo\nThree"_s);
    hit(2, QKeySequence::Undo);
    expectLines({u"One"_s, {}, u"Three"_s});
    hit(2, QKeySequence::Redo);
    expectLines({u"One"_s, u"Two"_s, u"Three"_s});
    undo(2);
    undo(1);
    expectLines({});
    EXPECT_EQ(hint(), QString()); // nothing stays
}

TEST_F(PasteUndo, AllLinesThatStayAreTold)
{
    pasteInto(1, u"One\nTwo\nThree"_s);
    add(2, u"!"_s);
    add(3, u"!"_s);
    undo(1);
    expectLines({{}, u"Two!"_s, u"Three!"_s});
    EXPECT_EQ(hint(), u"Line 2 was changed since, so it stays. "
                      "Line 3 was changed since, so it stays."_s);
}

} // namespace
} // namespace tarvold::testing
