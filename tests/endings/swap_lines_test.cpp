#include "support/ending_test.h"

#include <QLineEdit>

/// Swapping commentary lines by Ctrl+Shift+Up and Ctrl+Shift+Down.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class SwapLines : public EndingTest
{
protected:
    SwapLines()
    {
        goTo("Form7");
        type("Form7", "Text1", u"One"_s);
        type("Form7", "Text2", u"Two"_s);
    }

    QLineEdit &swapLine(int number)
    {
        return screen("Form7").control<QLineEdit>(qPrintable(u"Text%1"_s.arg(number)));
    }

    void swapBy(int number, Qt::Key key)
    {
        swapLine(number).setFocus(Qt::OtherFocusReason);
        QTest::keyClick(screen("Form7").windowHandle(), key,
                        Qt::ControlModifier | Qt::ShiftModifier);
    }

    void undo(bool redoes = false)
    {
        QTest::keySequence(screen("Form7").windowHandle(),
                           redoes ? QKeySequence::Redo : QKeySequence::Undo);
    }

    void expectFirstLines(const QStringList &texts)
    {
        for (int number = 1; number <= texts.size(); ++number) {
            EXPECT_EQ(swapLine(number).text(), texts[number - 1]) << number;
        }
    }
};

TEST_F(SwapLines, DownMovesTheLineWithItsCursorAndMark)
{
    swapLine(1).setCursorPosition(2);
    swapBy(1, Qt::Key_Down);
    expectFirstLines({u"Two"_s, u"One"_s});
    EXPECT_TRUE(swapLine(2).hasFocus());
    EXPECT_EQ(swapLine(2).cursorPosition(), 2);
    EXPECT_EQ(swapLine(2).palette().color(QPalette::Base), kYellow);
    EXPECT_NE(swapLine(1).palette().color(QPalette::Base), kYellow);
    swapBy(2, Qt::Key_Down);
    expectFirstLines({u"Two"_s, {}, u"One"_s});
}

TEST_F(SwapLines, UpMovesTheLineAbove)
{
    swapBy(2, Qt::Key_Up);
    expectFirstLines({u"Two"_s, u"One"_s});
    EXPECT_TRUE(swapLine(1).hasFocus());
}

TEST_F(SwapLines, TheFirstAndTheLastLineStay)
{
    swapBy(1, Qt::Key_Up);
    expectFirstLines({u"One"_s, u"Two"_s});
    EXPECT_TRUE(swapLine(1).hasFocus());
    type("Form7", "Text10", u"Ten"_s);
    swapBy(10, Qt::Key_Down);
    EXPECT_EQ(swapLine(10).text(), u"Ten"_s);
}

TEST_F(SwapLines, OneUndoSwapsBackAndOneRedoSwapsAgain)
{
    for (const auto &[from, key] : {std::pair(1, Qt::Key_Down), std::pair(2, Qt::Key_Up)}) {
        swapBy(from, key);
        expectFirstLines({u"Two"_s, u"One"_s});
        undo();
        expectFirstLines({u"One"_s, u"Two"_s});
        undo(true);
        expectFirstLines({u"Two"_s, u"One"_s});
        undo();
        expectFirstLines({u"One"_s, u"Two"_s});
    }
}

TEST_F(SwapLines, UndoLeavesANeighbourThatWasChangedSince)
{
    swapBy(1, Qt::Key_Down);
    type("Form7", "Text1", u"Changed"_s);
    swapLine(2).setFocus(Qt::OtherFocusReason);
    undo();
    expectFirstLines({u"Changed"_s, u"Two"_s});
}

} // namespace
} // namespace tarvold::testing
