// Where a records window leads: to the line that a repair changed, to the lines that a search
// finds; and what is in sight when it opens.

#include "controls/push_button.h"
#include "records/window_fixture.h"
#include "support/mouse.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>

namespace tarvold::testing {
namespace {

class WindowPlacesTest : public RecordsWindowTest
{
protected:
    static constexpr int kFinisher = 15;

    /// An ending with another text in a line, from 1.
    static QByteArray withLine(int number, const QByteArray &text)
    {
        QByteArrayList lines = ending("Ending").chopped(2).replace("\r\n", "\n").split('\n');
        lines[number - 1] = text;
        return lines.join("\r\n") + "\r\n";
    }
    static QByteArray withoutFinisher()
    {
        return withLine(kFinisher, "gone").replace("gone\r\n", "");
    }

    void clickRepair()
    {
        auto &repair = part<PushButton>("repair");
        ASSERT_TRUE(repair.isVisible());
        click(repair);
        QTest::qWait(20);
    }

    QWidget &editor(int number) { return part<QWidget>(qPrintable(u"field%1"_s.arg(number))); }

    /// Whether a line is in the visible part of the record as written.
    bool isInSight(int number)
    {
        return editor(number).isVisible() && !editor(number).visibleRegion().isEmpty();
    }

    /// The lines that are marked as holding the text of the search.
    std::vector<int> marked()
    {
        std::vector<int> numbers;
        for (int number = 1; number <= 36; ++number) {
            const auto &label = part<QLabel>(qPrintable(u"caption%1"_s.arg(number)));
            const bool isTold =
                editor(number).accessibleDescription().contains(u"Holds the text of the search."_s);
            EXPECT_EQ(label.font().underline(), isTold) << number;
            if (isTold) {
                numbers.push_back(number);
            }
        }
        return numbers;
    }

    void search(const QString &text)
    {
        press(Qt::CTRL | Qt::Key_F);
        QTest::keyClicks(&part<QLineEdit>("search"), text);
        QTest::qWait(20);
    }
};

TEST_F(WindowPlacesTest, ARepairLeadsToTheLineThatItPutThere)
{
    open(endings(1) + withoutFinisher() + endings(1, 3));
    clickRow(1);
    press(Qt::CTRL | Qt::Key_1);
    clickRepair();
    EXPECT_TRUE(editor(kFinisher).hasFocus() ||
                editor(kFinisher).isAncestorOf(QApplication::focusWidget()));
    EXPECT_TRUE(isInSight(kFinisher));
    EXPECT_EQ(fieldText(kFinisher), u"Any"_s);
    EXPECT_EQ(notice(), u"Repaired line 15, Attacker(s) Finisher Type."_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), endings(1) + withLine(kFinisher, "Any") + endings(1, 3));
}

TEST_F(WindowPlacesTest, ARepairLeadsToTheLineThatItChanged)
{
    open(withLine(kCommentary + 5, "<recshortnam> is down."));
    clickRepair();
    EXPECT_TRUE(editor(kCommentary + 5).hasFocus());
    EXPECT_TRUE(isInSight(kCommentary + 5));
    EXPECT_EQ(fieldText(kCommentary + 5), u"<recshortname> is down."_s);
}

TEST_F(WindowPlacesTest, ARepairThatChangesNoTextStaysWhereOneIs)
{
    open(endings(1).replace("\r\n", "\n"));
    press(Qt::CTRL | Qt::Key_1);
    clickRepair();
    EXPECT_EQ(notice(), u"Repaired."_s);
    EXPECT_FALSE(isInSight(1)) << "the view is another one still";
}

TEST_F(WindowPlacesTest, ChoosingARecordScrollsToTheLineThatWasFound)
{
    open(endings(2) + withLine(34, "Ringside, and <att1fullname>.") + withLine(36, "At ringside!") +
         endings(1, 5));
    press(Qt::CTRL | Qt::Key_2);
    ASSERT_FALSE(isInSight(34));
    search(u"ringside"_s);
    ASSERT_EQ(column(u"Number"_s), QStringList({u"3"_s, u"4"_s}));
    press(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isInSight(34); }));
    EXPECT_EQ(marked(), std::vector<int>({34}));
    EXPECT_TRUE(list().hasFocus()) << "the focus stays";
    press(Qt::Key_Down);
    ASSERT_EQ(currentRow(), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isInSight(36); }));
    EXPECT_EQ(marked(), std::vector<int>({36}));
    press(Qt::CTRL | Qt::Key_F);
    press(Qt::Key_Escape);
    EXPECT_EQ(marked(), std::vector<int>());
}

TEST_F(WindowPlacesTest, TheLineIsInSightWhenTheViewIsOpenedLater)
{
    open(endings(1) + withLine(36, "At ringside!"));
    press(Qt::CTRL | Qt::Key_1);
    search(u"RINGSIDE"_s);
    press(Qt::Key_Down);
    press(Qt::CTRL | Qt::Key_2);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isInSight(36); }));
}

TEST_F(WindowPlacesTest, WhatAScreenShowsAnotherWayIsMarkedByWhatItShows)
{
    open(withLine(kFinisher, "t"));
    press(Qt::CTRL | Qt::Key_2);
    search(u"top rope"_s);
    EXPECT_EQ(marked(), std::vector<int>({kFinisher}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return isInSight(kFinisher); }));
}

TEST_F(WindowPlacesTest, F3GoesFromLineToLine)
{
    QByteArray bytes = withLine(30, "Bell, bell");
    bytes.replace("Ending", "The bell");
    open(bytes);
    EXPECT_FALSE(action("findNext").isEnabled());
    search(u"bell"_s);
    for (const int line : {kCommentary, 30, kCommentary}) {
        press(Qt::Key_F3);
        EXPECT_TRUE(editor(line).hasFocus()) << line;
        EXPECT_TRUE(isInSight(line));
    }
    press(Qt::CTRL | Qt::Key_F);
    part<QLineEdit>("search").setText(u"nowhere"_s);
    QTest::qWait(20);
    if (action("findNext").isEnabled()) {
        press(Qt::Key_F3);
        EXPECT_EQ(notice(), u"No line of this record holds the text of the search."_s);
    }
}

TEST_F(WindowPlacesTest, MarksFollowWhatIsEdited)
{
    open(withLine(30, "Bell"));
    press(Qt::CTRL | Qt::Key_2);
    search(u"bell"_s);
    ASSERT_EQ(marked(), std::vector<int>({30}));
    typeInto(30, u"Gong"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(marked(), std::vector<int>());
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(marked(), std::vector<int>({30}));
}

TEST_F(WindowPlacesTest, ATextThatIsBeingTypedIsAChangeAlready)
{
    open(endings(3));
    action("duplicate").trigger();
    press(Qt::CTRL | Qt::Key_S);
    ASSERT_EQ(notice(), u"Saved 4 records to endings.tvd."_s);
    ASSERT_FALSE(isChanged());
    typeInto(kCommentary, u"Typed"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isChanged(); }));
    EXPECT_EQ(notice(), QString()) << "it is not all saved";
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isChanged(); }));
    typeInto(kCommentary, u"Typed"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(isChanged());
    press(Qt::CTRL | Qt::Key_S);
    QTest::qWait(20);
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(notice(), u"Saved 4 records to endings.tvd."_s);
    clickRow(2);
    QTest::qWait(20);
    EXPECT_FALSE(isChanged()) << "another record is no change";
}

TEST_F(WindowPlacesTest, TheNamesAreInSightWhenTheWindowOpens)
{
    writeFile(kFile, withLine(7, "Rocco Vance,Dex Vance,Kit Sample") + endings(3));
    records::RecordsWindow wide{QLatin1StringView(kFile)};
    wide.resize(wide.fontMetrics().averageCharWidth() * 170, 600); // not cut by this display
    wide.show();
    expectActive(wide);
    auto &tree = *wide.findChild<QTreeView *>(u"list"_s);
    const auto logical = [&tree](const QString &head) {
        for (int column = 0; column < tree.model()->columnCount(); ++column) {
            if (tree.model()->headerData(column, Qt::Horizontal).toString() == head) {
                return column;
            }
        }
        return -1;
    };
    for (const QString &head : {u"Match Type"_s, u"Attacker"_s, u"Receiver"_s}) {
        const int column = logical(head);
        ASSERT_GE(column, 0) << head.toStdString();
        EXPECT_LE(tree.columnViewportPosition(column) + tree.columnWidth(column),
                  tree.viewport()->width())
            << head.toStdString();
    }
    for (int column = 0; column < tree.model()->columnCount(); ++column) {
        const QString head = tree.model()->headerData(column, Qt::Horizontal).toString();
        EXPECT_GT(tree.columnWidth(column), tree.header()->fontMetrics().horizontalAdvance(head))
            << head.toStdString() << " is cut";
        tree.sortByColumn(column, Qt::AscendingOrder);
        EXPECT_GE(tree.columnWidth(column), tree.header()->sectionSizeHint(column))
            << head.toStdString() << " is cut by the mark of the order";
    }
}

TEST_F(WindowPlacesTest, TheMessageOfAMissingFileHasNoTextCursor)
{
    openFile("missing.tvd");
    auto &message = part<QLabel>("failure");
    ASSERT_TRUE(message.isVisible());
    EXPECT_FALSE(message.textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
    EXPECT_TRUE(part<PushButton>("reload").hasFocus());
}

} // namespace
} // namespace tarvold::testing
