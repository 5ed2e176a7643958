#include "endings/composer_expected.h"
#include "support/ending_test.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class Composer : public EndingTest
{
protected:
    Composer() { goTo("Form7"); }

    void chooseTag(const char *item) { choose("Form7", "Combo1", QLatin1StringView(item)); }

    void expectRefusal(const char *message)
    {
        boxes.expectNotice(title(), QLatin1StringView(message));
    }

    /// Sets a field of another screen.
    void given(const char *screen, const char *box, const QString &text)
    {
        editor.screens().setText({screen, box}, text);
    }

    /// Clears the first line, marks it, chooses the tag, and returns the text of the line.
    QString insertedBy(const ExpectedTag &tag)
    {
        type("Form7", "Text1", QString());
        chooseTag(tag.item);
        return text("Form7", "Text1");
    }

    QString pending() { return text("Form7", "hiddenlabel"); }
};

TEST_F(Composer, HasItsTitleHeadingInstructionsAndButtons)
{
    EXPECT_EQ(screen("Form7").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form7", "Label1"), u"THE MATCH FINISH"_s);
    EXPECT_EQ(text("Form7", "Label3"),
              u"Here you have up to 10 lines of commentary which you can type in for "
              "this match ending. Where specific details are needed, such as a "
              "wrestler's name, click on the list above to insert the relevant "
              "code."_s);
    EXPECT_EQ(screen("Form7").control<QPushButton>("Command1").text(), u"Add This Finish"_s);
    EXPECT_EQ(screen("Form7").control<QPushButton>("Command2").text(), u"<<"_s);
}

TEST_F(Composer, TheTagListIsAboveItsInstructionsAndTheLinesFollowFromTopToBottom)
{
    const auto topOf = [this](const char *name) {
        return control("Form7", name).mapTo(&screen("Form7"), QPoint()).y();
    };
    int above = topOf("Label3");
    EXPECT_LT(topOf("Combo1"), above);
    for (int line = 1; line <= 10; ++line) {
        const QByteArray name = "Text" + QByteArray::number(line);
        const int top = topOf(name.constData());
        EXPECT_GT(top, above) << line;
        above = top;
    }
}

TEST_F(Composer, TheTagListOffersItsItemsInOrder)
{
    const ComboBox &list = combo("Form7", "Combo1");
    ASSERT_EQ(std::size_t(list.count()), std::size(kTags));
    for (int row = 0; row < list.count(); ++row) {
        EXPECT_EQ(list.itemText(row), QLatin1StringView(kTags[row].item));
    }
    EXPECT_EQ(list.currentText(), u"Attacker 1 Full Name"_s);
}

TEST_F(Composer, ThePendingTagIsHiddenAndStartsEmpty)
{
    EXPECT_EQ(pending(), QString());
    EXPECT_FALSE(control("Form7", "hiddenlabel").isVisible());
}

TEST_F(Composer, EveryAcceptedTagIsInserted)
{
    for (const ExpectedTag &tag : kTags) {
        SCOPED_TRACE(tag.item);
        if (tag.box != nullptr) {
            given(tag.screen, tag.box, u"Any"_s);
        }
        EXPECT_EQ(insertedBy(tag), QLatin1StringView(tag.tag));
        EXPECT_EQ(pending(), QLatin1StringView(tag.tag));
    }
}

TEST_F(Composer, ATagIsAcceptedWithEveryAllowedText)
{
    for (const ExpectedTag &tag : kTags) {
        if (tag.box == nullptr) {
            continue;
        }
        const bool isName = tag.message == kSecondAttackerMessage;
        for (const QString &fitting : isName ? kAcceptedNames : kAcceptedOthers) {
            SCOPED_TRACE(std::string(tag.item) + ": " + fitting.toStdString());
            given(tag.screen, tag.box, fitting);
            EXPECT_EQ(insertedBy(tag), QLatin1StringView(tag.tag));
        }
    }
}

TEST_F(Composer, ATagIsRefusedWithItsMessageAndThePendingTagIsInsertedInstead)
{
    chooseTag("Title Name (eg. XWL Title)");
    for (const ExpectedTag &tag : kTags) {
        if (tag.box == nullptr) {
            continue;
        }
        const bool isName = tag.message == kSecondAttackerMessage;
        for (const QString &excluded : isName ? kRefusedNames : kRefusedOthers) {
            SCOPED_TRACE(std::string(tag.item) + ": " + excluded.toStdString());
            given(tag.screen, tag.box, excluded);
            expectRefusal(tag.message);
            EXPECT_EQ(insertedBy(tag), u"<titlename>"_s);
            EXPECT_EQ(pending(), u"<titlename>"_s);
        }
    }
}

TEST_F(Composer, OnlyOneFieldDecides)
{
    for (const ExpectedTag &tag : kTags) {
        SCOPED_TRACE(tag.item);
        for (const char *screen : {"Form5", "Form6"}) {
            given(screen, "Text2", u"Rocco Vance"_s);
            given(screen, "Text1", u"None"_s);
            given(screen, "Text3", u"N/A"_s);
        }
        if (tag.box != nullptr) {
            given(tag.screen, tag.box, u"Any"_s);
        }
        EXPECT_EQ(insertedBy(tag), QLatin1StringView(tag.tag));
    }
}

TEST_F(Composer, AfterARefusalNothingIsInsertedIfNoTagWasEverAccepted)
{
    type("Form7", "Text2", u"By "_s);
    expectRefusal(kAttackersManagerMessage);
    chooseTag("Attacker's Manager Name");
    EXPECT_EQ(text("Form7", "Text2"), u"By "_s);
    EXPECT_EQ(pending(), QString());
}

TEST_F(Composer, TheSecondAttackerNeedsTwoNames)
{
    press("Form7", "Command2");
    press("Form6", "Command1");
    type("Form5", "Text2", u"Rocco Vance,Dex Vance"_s);
    press("Form5", "Command2");
    press("Form6", "Command2");
    type("Form7", "Text1", u"And "_s);
    chooseTag("Attacker 2 Full Name");
    EXPECT_EQ(text("Form7", "Text1"), u"And <att2fullname>"_s);
    given("Form5", "Text2", u"Rocco Vance"_s);
    expectRefusal(kSecondAttackerMessage);
    chooseTag("Attacker 2 Short Name");
    EXPECT_EQ(text("Form7", "Text1"), u"And <att2fullname><att2fullname>"_s);
}

TEST_F(Composer, AStableMemberNeedsAStable)
{
    type("Form7", "Text1", QString());
    expectRefusal(kAttackersStableMessage);
    chooseTag("Attacker's Stable Member 1");
    given("Form5", "Text3", u"Any"_s);
    chooseTag("Attacker's Stable Member 1");
    EXPECT_EQ(text("Form7", "Text1"), u"<attstablemem1>"_s);
}

TEST_F(Composer, ATagIsAppendedWhereverTheCursorIs)
{
    type("Form7", "Text4", u"Pinned by "_s);
    QTest::keyClick(&control("Form7", "Text4"), Qt::Key_Home);
    chooseTag("Receiver Full Name");
    EXPECT_EQ(text("Form7", "Text4"), u"Pinned by <recfullname>"_s);
}

TEST_F(Composer, ATagDoesNotReplaceTheSelection)
{
    type("Form7", "Text4", u"Pinned by "_s);
    screen("Form7").control<QLineEdit>("Text4").selectAll();
    chooseTag("Receiver Full Name");
    EXPECT_EQ(text("Form7", "Text4"), u"Pinned by <recfullname>"_s);
}

TEST_F(Composer, AnInsertedTagCanBeUndone)
{
    type("Form7", "Text4", u"Pinned by "_s);
    chooseTag("Receiver Full Name");
    QTest::keyClicks(QApplication::focusWidget(), u", late"_s);
    EXPECT_EQ(text("Form7", "Text4"), u"Pinned by <recfullname>, late"_s);
    for (const char *left : {"Pinned by <recfullname>", "Pinned by "}) {
        QTest::keySequence(screen("Form7").windowHandle(), QKeySequence::Undo);
        EXPECT_EQ(text("Form7", "Text4"), QLatin1StringView(left));
    }
}

TEST_F(Composer, ChoosingTheItemAlreadyShownInsertsItAgain)
{
    type("Form7", "Text1", QString());
    chooseTag("Attacker 1 Full Name");
    chooseTag("Attacker 1 Full Name");
    EXPECT_EQ(text("Form7", "Text1"), u"<att1fullname><att1fullname>"_s);
}

TEST_F(Composer, WheelAndArrowKeysOnTheClosedTagListChooseNothing)
{
    type("Form7", "Text1", u"Line"_s);
    QWidget &list = control("Form7", "Combo1");
    list.setFocus();
    turnWheel(list, -1);
    turnWheel(list, 1);
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_PageDown);
    EXPECT_EQ(text("Form7", "Text1"), u"Line"_s);
    EXPECT_EQ(text("Form7", "Combo1"), u"Attacker 1 Full Name"_s);
    EXPECT_EQ(pending(), QString());
}

TEST_F(Composer, ThePendingTagSurvivesASaveAndTheNextEntry)
{
    type("Form7", "Text1", u"The end."_s);
    chooseTag("Receiver's Finisher Name");
    save();
    EXPECT_EQ(pending(), u"<recfinisher>"_s);
    goTo("Form7");
    EXPECT_EQ(pending(), u"<recfinisher>"_s);
    type("Form7", "Text1", QString());
    expectRefusal(kReceiversManagerMessage);
    chooseTag("Receiver's Manager Name");
    EXPECT_EQ(text("Form7", "Text1"), u"<recfinisher>"_s);
}

} // namespace
} // namespace tarvold::testing
