#include "controls/announcement.h"
#include "endings/lines_test.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

#include <algorithm>
#include <memory>

/// Text of several lines that is pasted or dropped into a commentary line.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class PasteLines : public LinesTest
{
protected:
    /// Triggers an item of the line's context menu.
    void chooseInMenu(int number, const QString &item)
    {
        const std::unique_ptr<QMenu> menu(lineBox(number).createStandardContextMenu());
        const QList<QAction *> actions = menu->actions();
        const auto found =
            std::find_if(actions.begin(), actions.end(), [&item](const QAction *action) {
                return action->text().startsWith(item);
            });
        ASSERT_NE(found, actions.end());
        (*found)->trigger();
    }
};

TEST_F(PasteLines, EachLineGoesIntoALineOfItsOwn)
{
    pasteInto(1, u"One\r\nTwo\nThree"_s);
    expectLines({u"One"_s, u"Two"_s, u"Three"_s});
    EXPECT_TRUE(lineBox(1).hasFocus());
    EXPECT_EQ(lineBox(1).cursorPosition(), 3);
    EXPECT_EQ(lineBox(1).palette().color(QPalette::Base), kYellow);
}

TEST_F(PasteLines, TheFirstGoesWhereTheCursorIsAndReplacesTheSelection)
{
    write(2, u"ab"_s);
    click(lineBox(2));
    lineBox(2).setSelection(1, 1);
    paste(lineBox(2), u"One\nTwo"_s);
    expectLines({{}, u"aOne"_s, u"Two"_s});
    lineBox(2).setSelection(0, 2);
    paste(lineBox(2), u"1"_s);
    expectLines({{}, u"1ne"_s, u"Two"_s});
    undo(2);
    undo(2);
    expectLines({{}, u"ab"_s});
    EXPECT_EQ(lineBox(2).selectedText(), u"b"_s); // as the undo of any paste
}

TEST_F(PasteLines, TextBehindTheCursorComesBehindTheLastPastedLine)
{
    write(2, u"abcd"_s);
    click(lineBox(2));
    lineBox(2).setSelection(1, 1);
    paste(lineBox(2), u"One\nTwo\nThree"_s);
    expectLines({{}, u"aOne"_s, u"Two"_s, u"Threecd"_s});
    EXPECT_EQ(lineBox(2).cursorPosition(), 4);
    EXPECT_TRUE(lineBox(2).hasFocus());
    undo(2);
    expectLines({{}, u"abcd"_s});
    EXPECT_EQ(lineBox(2).cursorPosition(), 2);
    EXPECT_FALSE(lineBox(2).hasSelectedText()); // typing on must not replace it
    redo(2);
    expectLines({{}, u"aOne"_s, u"Two"_s, u"Threecd"_s});
    EXPECT_EQ(lineBox(2).cursorPosition(), 4);
    undo(4); // from any of its lines
    expectLines({{}, u"abcd"_s});
}

TEST_F(PasteLines, TextBehindTheCursorIsNeverLostAndNeverThereTwice)
{
    write(1, u"ab"_s);
    click(lineBox(1));
    lineBox(1).setCursorPosition(1);
    paste(lineBox(1), u"One\nTwo"_s);
    add(2, u"!"_s);
    undo(1);
    expectLines({u"aOne"_s, u"Twob!"_s});
    undo(2);
    undo(1);
    expectLines({u"ab"_s});
    write(2, u"new"_s);
    redo(1);
    expectLines({u"ab"_s, u"new"_s});
}

TEST_F(PasteLines, TextBehindTheCursorStaysThereIfTheLineBelowIsTaken)
{
    write(1, u"ab"_s);
    write(2, u"kept"_s);
    click(lineBox(1));
    lineBox(1).setCursorPosition(1);
    paste(lineBox(1), u"One\nTwo"_s);
    expectLines({u"aOne Twob"_s, u"kept"_s});
    undo(1);
    expectLines({u"ab"_s, u"kept"_s});
}

TEST_F(PasteLines, NoLineThatHoldsTextIsOverwritten)
{
    write(3, u"kept"_s);
    pasteInto(1, u"One\nTwo\nThree\nFour"_s);
    expectLines({u"One"_s, u"Two Three Four"_s, u"kept"_s});
}

TEST_F(PasteLines, WithTheLineBelowTakenAllIsJoinedBySpaces)
{
    write(2, u"kept"_s);
    pasteInto(1, u"One\nTwo"_s);
    expectLines({u"One Two"_s, u"kept"_s});
}

TEST_F(PasteLines, WhatDoesNotFitIsJoinedInTheLastLine)
{
    pasteInto(9, u"One\nTwo\nThree"_s);
    EXPECT_EQ(lineBox(9).text(), u"One"_s);
    EXPECT_EQ(lineBox(10).text(), u"Two Three"_s);
    pasteInto(1, u"1\n2\n3\n4\n5\n6\n7\n8\n9\n10"_s);
    expectLines({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8 9 10"_s, u"One"_s,
                 u"Two Three"_s});
}

TEST_F(PasteLines, BlankLinesStayBetweenLinesButNotAroundThem)
{
    pasteInto(1, u"\nOne\n\nThree\n\n"_s);
    expectLines({u"One"_s, {}, u"Three"_s});
    EXPECT_FALSE(lineBox(2).isUndoAvailable()); // nothing happened there
    hit(5, QKeySequence::Paste);
    EXPECT_EQ(lineBox(5).text(), u"One"_s);
    pasteInto(4, u"\r\n\r\n"_s); // only line breaks: nothing
    EXPECT_EQ(lineBox(4).text(), QString());
}

TEST_F(PasteLines, TheContextMenuPastesUndoesAndRedoesLikewise)
{
    QApplication::clipboard()->setText(u"One\nTwo"_s);
    click(lineBox(4));
    chooseInMenu(4, u"&Paste"_s);
    EXPECT_EQ(lineBox(4).text(), u"One"_s);
    EXPECT_EQ(lineBox(5).text(), u"Two"_s);
    chooseInMenu(4, u"&Undo"_s);
    expectLines({});
    chooseInMenu(4, u"&Redo"_s);
    EXPECT_EQ(lineBox(5).text(), u"Two"_s);
}

TEST_F(PasteLines, TheMiddleButtonPastesLikewise)
{
    if (!QApplication::clipboard()->supportsSelection()) {
        GTEST_SKIP() << "this platform has no selection to paste with the middle button";
    }
    QApplication::clipboard()->setText(u"One\nTwo"_s, QClipboard::Selection);
    QTest::mouseClick(&lineBox(1), Qt::MiddleButton);
    expectLines({u"One"_s, u"Two"_s});
}

TEST_F(PasteLines, ADropSpreadsAndIsUndoneLikewise)
{
    write(1, u"ab"_s);
    lineBox(1).setCursorPosition(1);
    const QPointF place = lineBox(1).inputMethodQuery(Qt::ImCursorRectangle).toRectF().center();
    lineBox(1).setCursorPosition(2);
    QMimeData data;
    data.setText(u"One\nTwo"_s);
    QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&lineBox(1), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&lineBox(1), &event);
    EXPECT_TRUE(event.isAccepted());
    expectLines({u"aOne"_s, u"Twob"_s});
    hit(1, QKeySequence::Undo);
    expectLines({u"ab"_s});
}

TEST_F(PasteLines, IsSavedAsSeparateLines)
{
    pasteInto(1, u"One\r\nTwo\r\n"_s);
    save();
    const QByteArray lines = "\r\nOne\r\nTwo\r\n" + QByteArray("-BLANK-\r\n").repeated(8);
    EXPECT_TRUE(bytesOf(u"normreports.tvd"_s).endsWith(lines));
}

TEST_F(PasteLines, ScreenReadersHearWhichLinesWereFilled)
{
    const Announcement &announcement = *screen("Form7").findChild<Announcement *>();
    pasteInto(3, u"One"_s);
    EXPECT_EQ(announcement.accessibleName(), QString());
    write(3, {});
    pasteInto(3, u"One\nTwo\nThree"_s);
    EXPECT_EQ(announcement.accessibleName(), u"Pasted into lines 3 to 5."_s);
}

TEST_F(PasteLines, UndoAndRedoBringNothingOfAPasteIntoANewRecord)
{
    pasteInto(1, u"One\nTwo"_s);
    save();
    goTo("Form7");
    for (const int number : {1, 2}) {
        undo(number);
        redo(number);
    }
    expectLines({});
    write(2, u"Two"_s);
    pasteInto(1, u"One"_s);
    hit(1, QKeySequence::Undo);
    expectLines({{}, u"Two"_s});
}

} // namespace
} // namespace tarvold::testing
