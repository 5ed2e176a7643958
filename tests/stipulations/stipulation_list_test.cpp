#include "stipulations/stipulation_test.h"

#include <QAbstractButton>
#include <QFrame>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<std::string>;

const Notice kNothingSelected = {"Stipulation Editor",
                                 "Please select a match stipulation from the list."};

class StipulationList : public StipulationTest
{
protected:
    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
    const QByteArray three = stipulation("Tag Team", "Three");

    void expectRefused(const char *button)
    {
        boxes.expectNotice(utf8(kNothingSelected.title), utf8(kNothingSelected.text));
        press("Form16", button);
        expectOnly("Form16");
    }
};

TEST_F(StipulationList, HasItsCaptions)
{
    open("");
    EXPECT_EQ(screen("Form16").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form16", "Label3"), u"Stipulations Editor"_s);
    EXPECT_EQ(text("Form16", "Label4"), u"Choose a Stipulation to edit or create new..."_s);
    const std::pair<const char *, const char *> captions[] = {{"Command1", "Create New"},
                                                              {"Command2", "Edit"},
                                                              {"Command4", "Delete"},
                                                              {"Command3", "Back To Menu"}};
    for (const auto &[button, caption] : captions) {
        const auto &shown = screen("Form16").control<QAbstractButton>(button);
        EXPECT_EQ(shown.text(), utf8(caption));
        EXPECT_TRUE(shown.isVisible() && shown.isEnabled());
    }
}

TEST_F(StipulationList, ShowsALineUnderTheHeadingAndNoPosition)
{
    open("");
    const auto &line = screen("Form16").control<QFrame>("Line1");
    EXPECT_EQ(line.frameShape(), QFrame::HLine);
    EXPECT_TRUE(line.isVisible());
    const auto top = [](const QWidget &widget) { return widget.mapToGlobal(QPoint()).y(); };
    EXPECT_GT(top(line), top(control("Form16", "Label3")));
    EXPECT_LT(top(line), top(list()));
    EXPECT_FALSE(control("Form16", "listpos").isVisible());
    EXPECT_FALSE(list().accessibleName().isEmpty());
}

TEST_F(StipulationList, HasAnEntryForEveryRecord)
{
    open(one + two + three);
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Two", "Tag Team / Three"}));
}

TEST_F(StipulationList, HasTwoEntriesForOneNameUnderTwoMatchTypes)
{
    open(one + stipulation("Tag Team", "One"));
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Tag Team / One"}));
}

TEST_F(StipulationList, LeavesARecordWithoutAMatchTypeOutOnceItIsRebuilt)
{
    open(one + stipulation("", "Two") + three);
    EXPECT_EQ(listed(), (Texts{"Singles / One", " / Two", "Tag Team / Three"}));
    edit(0);
    save();
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Tag Team / Three"}));
    EXPECT_EQ(readBack(kFile), one + stipulation("", "Two") + three);
}

TEST_F(StipulationList, AsksForASelectionBeforeItEdits)
{
    open(one);
    expectRefused("Command2");
}

TEST_F(StipulationList, AsksForASelectionBeforeItDeletes)
{
    open(one);
    expectRefused("Command4");
    EXPECT_EQ(readBack(kFile), one);
}

TEST_F(StipulationList, StaysWhenTheUserCopiesAndNothingIsSelected)
{
    open(one);
    list().setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(anySelected());
    QTest::keySequence(screen("Form16").windowHandle(), QKeySequence::Copy);
    expectOnly("Form16");
}

TEST_F(StipulationList, KeepsTheStartIndexOfTheEditedRecord)
{
    open(one + two + three);
    const char *indices[] = {"0", "19", "38"};
    for (int row = 0; row < 3; ++row) {
        edit(row);
        EXPECT_EQ(listPosition(), utf8(indices[row]));
        cancel();
    }
}

TEST_F(StipulationList, KeepsTheWordNewWhileOneIsCreated)
{
    open(one);
    createNew();
    expectOnly("Form3");
    EXPECT_EQ(listPosition(), u"NEW"_s);
}

TEST_F(StipulationList, KeepsItsPositionWhenItIsEnteredAgain)
{
    open(one + two);
    edit(1);
    cancel();
    press("Form16", "Command3");
    press("Form1", "Command1");
    EXPECT_EQ(listPosition(), u"19"_s);
}

TEST_F(StipulationList, OpensTheLaterOfTwoRecordsThatLookTheSame)
{
    open(one + two + stipulation("Singles", "One", {{3, "Later"}}));
    edit(0);
    EXPECT_EQ(listPosition(), u"38"_s);
    EXPECT_EQ(shown("matchshowsas"), u"Later"_s);
}

TEST_F(StipulationList, CopiesAllThatLookTheSameSoThatAnUnknownQualityKeepsTheEarlierOne)
{
    const auto ofQuality = [](const char *word) {
        return stipulation("Singles", "One", {{18, word}});
    };
    const std::pair<QByteArray, const char *> cases[] = {
        {ofQuality("Yes") + ofQuality("odd"), "Just Hardcore Ability"},
        {ofQuality("No") + ofQuality("Both") + two + ofQuality("") + ofQuality("odd"),
         "50% Standard, 50% Hardcore"},
        {ofQuality("Both") + ofQuality("odd") + ofQuality("No"), "Just Standard Ability"}};
    for (const auto &[file, expected] : cases) {
        open(file);
        createNew();
        put("matchquality", "By heart");
        cancel();
        edit(0);
        EXPECT_EQ(shown("matchquality"), utf8(expected));
        EXPECT_EQ(listPosition().toInt(), file.count("\r\n") - 19);
        cancel();
        press("Form16", "Command3");
    }
}

TEST_F(StipulationList, EditsARecordWithoutMatchTypeAndNameAsAnyOther)
{
    open(stipulation("", "", {{3, "Nameless"}}) + one);
    edit(0);
    EXPECT_EQ(listPosition(), u"0"_s);
    EXPECT_EQ(shown("matchshowsas"), u"Nameless"_s);
    put("matchtype", "Lucha");
    put("stipulation", "Named");
    save();
    EXPECT_EQ(readBack(kFile), stipulation("Lucha", "Named", {{3, "Nameless"}}) + one);
}

TEST_F(StipulationList, KeepsItsSelectionAfterTheFormWasCancelled)
{
    open(one + two);
    edit(1);
    cancel();
    EXPECT_TRUE(list().selectionModel()->isRowSelected(1));
    press("Form16", "Command2");
    expectOnly("Form3");
    EXPECT_EQ(shown("stipulation"), u"Two"_s);
}

TEST_F(StipulationList, HasNoSelectionAfterASave)
{
    open(one + two);
    edit(1);
    save();
    EXPECT_FALSE(anySelected());
    expectRefused("Command2");
}

TEST_F(StipulationList, WorksByKeyboardAlone)
{
    open(one + two);
    expectReachable(list());
    EXPECT_TRUE(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_End);
    QWidget &button = control("Form16", "Command2");
    for (int step = 0; step < 10 && !button.hasFocus(); ++step) {
        QTest::keyClick(screen("Form16").windowHandle(), Qt::Key_Tab);
    }
    ASSERT_TRUE(button.hasFocus());
    QTest::keyClick(&button, Qt::Key_Space);
    expectOnly("Form3");
    EXPECT_EQ(shown("stipulation"), u"Two"_s);
}

TEST_F(StipulationList, GoesBackToTheMenuWithoutAQuestion)
{
    open(one);
    press("Form16", "Command3");
    expectOnly("Form1");
    EXPECT_EQ(readBack(kFile), one);
}

TEST_F(StipulationList, GoesBackToTheMenuWhenItsWindowIsClosed)
{
    open(one);
    screen("Form16").close();
    expectOnly("Form1");
    EXPECT_EQ(readBack(kFile), one);
}

TEST_F(StipulationList, ReadsTheFileAgainOnEveryEntry)
{
    open(one);
    press("Form16", "Command3");
    open(three + two);
    EXPECT_EQ(listed(), (Texts{"Tag Team / Three", "Singles / Two"}));
    EXPECT_FALSE(anySelected());
}

TEST_F(StipulationList, ShowsBytesBeyondAsciiAsTheCharactersOfTheCodePage)
{
    open(stipulation("Caf\xE9", "\x80 100"));
    EXPECT_EQ(listed(), Texts{"Caf\xC3\xA9 / \xE2\x82\xAC 100"});
}

} // namespace
} // namespace tarvold::testing
