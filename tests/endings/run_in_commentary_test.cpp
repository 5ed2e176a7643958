#include "endings/ending_refusals.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const TagRow kTags[] = {
    {"Attacker 1 Full Name", "<att1fullname>"},
    {"Attacker 1 Short Name", "<att1shortname>"},
    {"Attacker 2 Full Name", "<att2fullname>", &kSecondAttacker},
    {"Attacker 2 Short Name", "<att2shortname>", &kSecondAttacker},
    {"Receiver Full Name", "<recfullname>"},
    {"Receiver Short Name", "<recshortname>"},
    {"Attacker's Manager Name", "<attmanager>", &kAttackersManager},
    {"Receiver's Manager Name", "<recmanager>", &kReceiversManager},
    {"Attacker's Stable Name", "<attstable>", &kAttackersStable},
    {"Receiver's Stable Name", "<recstable>", &kReceiversStable},
    {"Attacker's Stable Member 1", "<attstablemem1>", &kAttackersStable},
    {"Attacker's Stable Member 2", "<attstablemem2>", &kAttackersStable},
    {"Receiver's Stable Member 1", "<recstablemem1>", &kReceiversStable},
    {"Receiver's Stable Member 2", "<recstablemem2>", &kReceiversStable},
    {"Attacker's Finisher Name", "<attfinisher>"},
    {"Receiver's Finisher Name", "<recfinisher>"},
    {"Title Name (eg. XWL Title)", "<titlename>"},
    {"Title of Holder (eg. XWL Champion)", "<titleholder>"},
    {"Interfering Wrestler 1", "<feudname1>"},
    {"Interfering Wrestler 2", "<feudname2>", &kSecondInterferer},
    {"Interfering Team Name", "<feudteam>", &kInterferingTeam},
    {"Interfering's Finisher Name", "<feudfinisher>"},
};

class RunInCommentary : public CommentaryTest
{
protected:
    RunInCommentary() : CommentaryTest(kRunInPath) {}
};

TEST_F(RunInCommentary, HasItsFixedTextsAndStartsEmptyAndWhite)
{
    expectFixedTexts("THE MATCH FINISH", kFinishInstructions, "Add This Finish");
}

TEST_F(RunInCommentary, OffersItsTwentyTwoItemsInOrder)
{
    ASSERT_EQ(std::size(kTags), 22U);
    expectList(kTags);
    EXPECT_EQ(line("Combo1"), u"Attacker 1 Full Name"_s);
}

TEST_F(RunInCommentary, EveryItemInsertsItsTagWheneverTheDecidingFieldAllowsIt)
{
    expectEveryTagInserted(kTags);
}

TEST_F(RunInCommentary, EveryRefusalHasItsMessageAndTitleAndInsertsThePendingTagAgain)
{
    expectEveryRefusal(kTags);
}

TEST_F(RunInCommentary, ASinglesFeudRefusesTheSecondInterfererAndTheTeamUnderTheShortTitle)
{
    EXPECT_EQ(text("Form8", "Combo3"), u"Singles"_s);
    typeLine("Text1", u"In comes "_s);
    boxes.expectNotice(u"Tarvold"_s,
                       u"Interfering Wrestler 2 can only be involved if the feud type is Tag "
                       "Team."_s);
    chooseTag("Interfering Wrestler 2");
    boxes.expectNotice(u"Tarvold"_s,
                       u"Interfering Team Name can only be used if the feud type is Tag Team."_s);
    chooseTag("Interfering Team Name");
    EXPECT_EQ(line("Text1"), u"In comes "_s);
}

TEST_F(RunInCommentary, ATagTeamFeudAllowsTheSecondInterfererAndTheTeam)
{
    press("Form9", "Command2");
    fill("Form8", {{"Combo3", u"Tag Team"_s}});
    press("Form8", "Command2");
    EXPECT_EQ(insertedBy("Interfering Wrestler 2"), u"<feudname2>"_s);
    EXPECT_EQ(insertedBy("Interfering Team Name"), u"<feudteam>"_s);
}

TEST_F(RunInCommentary, ATypedFeudTypeAllowsThemToo)
{
    press("Form9", "Command2");
    type("Form8", "Combo3", u"Stable war"_s);
    press("Form8", "Command2");
    EXPECT_EQ(insertedBy("Interfering Wrestler 2"), u"<feudname2>"_s);
    EXPECT_EQ(insertedBy("Interfering Team Name"), u"<feudteam>"_s);
}

TEST_F(RunInCommentary, TheFirstInterfererAndHisFinisherAreAllowedWhateverTheFeudType)
{
    for (const char *feud : {"Singles", "Tag Team", ""}) {
        given("Form8", "Combo3", QLatin1StringView(feud));
        EXPECT_EQ(insertedBy("Interfering Wrestler 1"), u"<feudname1>"_s);
        EXPECT_EQ(insertedBy("Interfering's Finisher Name"), u"<feudfinisher>"_s);
    }
}

TEST_F(RunInCommentary, AManagerOfNoneIsRefusedAndTheSameWordInLowerCaseIsAccepted)
{
    given("Form5", "Text1", u"None"_s);
    expectRefusal(kAttackersManager);
    EXPECT_EQ(insertedBy("Attacker's Manager Name"), QString());
    given("Form5", "Text1", u"none"_s);
    EXPECT_EQ(insertedBy("Attacker's Manager Name"), u"<attmanager>"_s);
}

TEST_F(RunInCommentary, ATagChosenWhileNoLineIsMarkedIsOnlyRemembered)
{
    expectRememberedWhenNothingIsMarked(kTags[0], kTags[4]);
}

TEST_F(RunInCommentary, RefusesToSaveWithoutAFirstLine)
{
    expectEmptyFirstLineIsRefused();
}

TEST_F(RunInCommentary, AnsweringNoWritesNothingAndKeepsTheScreen)
{
    expectNoWritesNothing();
}

TEST_F(RunInCommentary, AFirstLineOfOneSpaceIsSaved)
{
    expectOneSpaceIsSaved();
}

TEST_F(RunInCommentary, NothingIsClearedByASave)
{
    expectNothingIsClearedByASave();
}

TEST_F(RunInCommentary, TheFileNameIsReadWhenSaving)
{
    expectTheFileBoxCountsWhenSaving();
}

TEST_F(RunInCommentary, BackReturnsToTheFeudWithoutAQuestionAndKeepsTheLines)
{
    typeLine("Text3", u"Third."_s);
    press("Form9", "Command2");
    expectOnly("Form8");
    press("Form8", "Command2");
    EXPECT_EQ(line("Text3"), u"Third."_s);
}

} // namespace
} // namespace tarvold::testing
