#include "endings/ending_refusals.h"

namespace tarvold::testing {
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

TEST_F(RunInCommentary, BearsItsFixedTextsAndStartsEmptyAndWhite)
{
    expectFixedTexts("THE MATCH FINISH", kFinishInstructions, "Add This Finish");
}

TEST_F(RunInCommentary, OffersItsTwentyTwoItemsInOrder)
{
    ASSERT_EQ(std::size(kTags), 22U);
    expectList(kTags);
    EXPECT_EQ(line("Combo1"), QStringLiteral("Attacker 1 Full Name"));
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
    EXPECT_EQ(text("Form8", "Combo3"), QStringLiteral("Singles"));
    typeLine("Text1", QStringLiteral("In comes "));
    boxes.expectNotice(
        QStringLiteral("Tarvold"),
        QStringLiteral("Interfering Wrestler 2 can only be involved if the feud type is Tag "
                       "Team."));
    chooseTag("Interfering Wrestler 2");
    boxes.expectNotice(
        QStringLiteral("Tarvold"),
        QStringLiteral("Interfering Team Name can only be used if the feud type is Tag Team."));
    chooseTag("Interfering Team Name");
    EXPECT_EQ(line("Text1"), QStringLiteral("In comes "));
}

TEST_F(RunInCommentary, ATagTeamFeudAllowsTheSecondInterfererAndTheTeam)
{
    press("Form9", "Command2");
    fill("Form8", {{"Combo3", QStringLiteral("Tag Team")}});
    press("Form8", "Command2");
    EXPECT_EQ(insertedBy("Interfering Wrestler 2"), QStringLiteral("<feudname2>"));
    EXPECT_EQ(insertedBy("Interfering Team Name"), QStringLiteral("<feudteam>"));
}

TEST_F(RunInCommentary, AFeudTypeOfTheAuthorsOwnAllowsThemToo)
{
    press("Form9", "Command2");
    type("Form8", "Combo3", QStringLiteral("Stable war"));
    press("Form8", "Command2");
    EXPECT_EQ(insertedBy("Interfering Wrestler 2"), QStringLiteral("<feudname2>"));
    EXPECT_EQ(insertedBy("Interfering Team Name"), QStringLiteral("<feudteam>"));
}

TEST_F(RunInCommentary, TheFirstInterfererAndHisFinisherAreAllowedWhateverTheFeudType)
{
    for (const char *feud : {"Singles", "Tag Team", ""}) {
        given("Form8", "Combo3", QLatin1StringView(feud));
        EXPECT_EQ(insertedBy("Interfering Wrestler 1"), QStringLiteral("<feudname1>"));
        EXPECT_EQ(insertedBy("Interfering's Finisher Name"), QStringLiteral("<feudfinisher>"));
    }
}

TEST_F(RunInCommentary, AManagerOfNoneIsRefusedAndTheSameWordInLowerCaseIsAccepted)
{
    given("Form5", "Text1", QStringLiteral("None"));
    expectRefusal(kAttackersManager);
    EXPECT_EQ(insertedBy("Attacker's Manager Name"), QString());
    given("Form5", "Text1", QStringLiteral("none"));
    EXPECT_EQ(insertedBy("Attacker's Manager Name"), QStringLiteral("<attmanager>"));
}

TEST_F(RunInCommentary, ATagChosenWhileNoLineIsMarkedIsOnlyRemembered)
{
    expectRememberedWhenNothingIsMarked(kTags[0], kTags[4]);
}

TEST_F(RunInCommentary, RefusesToAddWithoutAFirstLine)
{
    expectEmptyFirstLineIsRefused();
}

TEST_F(RunInCommentary, DecliningTheQuestionWritesNothingAndLeavesTheScreenAsItWas)
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

TEST_F(RunInCommentary, TheFileIsTheOneNamedAtTheMomentOfSaving)
{
    expectTheFileBoxCountsWhenSaving();
}

TEST_F(RunInCommentary, BackLeadsToTheFeudWithoutAQuestionAndKeepsTheLines)
{
    typeLine("Text3", QStringLiteral("Third."));
    press("Form9", "Command2");
    expectOnly("Form8");
    press("Form8", "Command2");
    EXPECT_EQ(line("Text3"), QStringLiteral("Third."));
}

} // namespace
} // namespace tarvold::testing
