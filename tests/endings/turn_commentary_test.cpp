#include "endings/ending_refusals.h"

namespace tarvold::testing {
namespace {

const TagRow kTags[] = {
    {"Wrestler 1", "<wrestler1>"},
    {"Wrestler 2", "<wrestler2>"},
    {"Wrestler 3", "<wrestler3>"},
    {"Wrestler 4", "<wrestler4>"},
    {"Tag Team 1", "<tagteam1>"},
    {"Tag Team 2", "<tagteam2>"},
    {"Attacker 1 Full Name", "<att1fullname>"},
    {"Attacker 1 Short Name", "<att1shortname>"},
    {"Attacker 2 Full Name", "<att2fullname>", &kSecondAttacker},
    {"Attacker 2 Short Name", "<att2shortname>", &kSecondAttacker},
    {"Receiver Full Name", "<recfullname>"},
    {"Receiver Short Name", "<recshortname>"},
    {"Attacker's Finisher Name", "<attfinisher>"},
    {"Receiver's Finisher Name", "<recfinisher>"},
    {"Title Name (eg. XWL Title)", "<titlename>"},
    {"Title of Holder (eg. XWL Champion)", "<titleholder>"},
};

class TurnCommentary : public CommentaryTest
{
protected:
    TurnCommentary() : CommentaryTest(kTurnPath) {}
};

TEST_F(TurnCommentary, BearsItsFixedTextsAndStartsEmptyAndWhite)
{
    expectFixedTexts("THE MATCH FINISH", kFinishInstructions, "Add This Finish");
}

TEST_F(TurnCommentary, OffersItsSixteenItemsInOrder)
{
    ASSERT_EQ(std::size(kTags), 16U);
    expectList(kTags);
}

TEST_F(TurnCommentary, EntryShowsATagThatIsNotTheFirstOfItsListAndInsertsNone)
{
    EXPECT_EQ(line("Combo1"), QStringLiteral("Attacker 1 Full Name"));
    EXPECT_EQ(combo("Form11", "Combo1").itemText(0), QStringLiteral("Wrestler 1"));
    EXPECT_EQ(pending(), QString());
    for (const char *name : {"Text1", "Text5", "Text10"}) {
        EXPECT_EQ(line(name), QString());
    }
}

TEST_F(TurnCommentary, EntryInsertsNoTagIntoALineThatStayedMarked)
{
    typeLine("Text2", QStringLiteral("Marked."));
    goBack(kTurnPath);
    goToCommentary(kTurnPath);
    EXPECT_EQ(line("Combo1"), QStringLiteral("Attacker 1 Full Name"));
    EXPECT_EQ(line("Text2"), QString());
    EXPECT_EQ(pending(), QString());
}

TEST_F(TurnCommentary, EveryItemInsertsItsTagWheneverTheDecidingFieldAllowsIt)
{
    expectEveryTagInserted(kTags);
}

TEST_F(TurnCommentary, EveryRefusalHasItsMessageAndTitleAndInsertsThePendingTagAgain)
{
    expectEveryRefusal(kTags);
}

TEST_F(TurnCommentary, AllWrestlersAndTeamsAreAllowedInASinglesMatch)
{
    EXPECT_EQ(text("Form4", "Combo12"), QStringLiteral("Singles"));
    EXPECT_EQ(insertedBy("Wrestler 3"), QStringLiteral("<wrestler3>"));
    EXPECT_EQ(insertedBy("Wrestler 4"), QStringLiteral("<wrestler4>"));
    EXPECT_EQ(insertedBy("Tag Team 2"), QStringLiteral("<tagteam2>"));
}

TEST_F(TurnCommentary, ASecondAttackerNeedsAnyOrTwoNames)
{
    given("Form5", "Text2", QStringLiteral("Any"));
    typeLine("Text1", {});
    chooseTag("Attacker 2 Full Name");
    given("Form5", "Text2", QStringLiteral("Rocco Vance,Dex Vance"));
    chooseTag("Attacker 2 Full Name");
    EXPECT_EQ(line("Text1"), QStringLiteral("<att2fullname><att2fullname>"));
    given("Form5", "Text2", QStringLiteral("Rocco Vance"));
    expectRefusal(kSecondAttacker);
    chooseTag("Attacker 2 Full Name");
    EXPECT_EQ(line("Text1"), QStringLiteral("<att2fullname><att2fullname><att2fullname>"));
}

TEST_F(TurnCommentary, ARefusalInsertsNothingWhenNoTagWasEverAccepted)
{
    given("Form5", "Text2", QStringLiteral("Rocco Vance"));
    expectRefusal(kSecondAttacker);
    EXPECT_EQ(insertedBy("Attacker 2 Full Name"), QString());
}

TEST_F(TurnCommentary, ATagChosenBeforeALineWasClickedGivesWayToTheNextOne)
{
    expectRememberedWhenNothingIsMarked(kTags[2], kTags[5]);
}

TEST_F(TurnCommentary, RefusesToAddWithoutAFirstLine)
{
    expectEmptyFirstLineIsRefused();
}

TEST_F(TurnCommentary, DecliningTheQuestionWritesNothingAndLeavesTheScreenAsItWas)
{
    expectNoWritesNothing();
}

TEST_F(TurnCommentary, AFirstLineOfOneSpaceIsSaved)
{
    expectOneSpaceIsSaved();
}

TEST_F(TurnCommentary, NothingIsClearedByASave)
{
    expectNothingIsClearedByASave();
}

TEST_F(TurnCommentary, TheFileIsTheOneNamedAtTheMomentOfSaving)
{
    expectTheFileBoxCountsWhenSaving();
}

TEST_F(TurnCommentary, TheButtonStartsFromTheResetValuesAgainAfterASave)
{
    press("Form11", "Command2");
    fill("Form10", {{"Combo1", QStringLiteral("Face")}, {"Combo5", QStringLiteral("Losing Side")}});
    press("Form10", "Command2");
    typeLine("Text1", QStringLiteral("The end."));
    chooseTag("Tag Team 1");
    save(kTurnPath);
    goToCommentary(kTurnPath);
    expectTexts("Form10",
                {{"Combo1", QStringLiteral("N/A")}, {"Combo5", QStringLiteral("Winning Side")}});
    expectTexts("Form11", {{"Text1", {}}, {"Combo1", QStringLiteral("Attacker 1 Full Name")}});
    EXPECT_EQ(pending(), QStringLiteral("<tagteam1>"));
}

TEST_F(TurnCommentary, BackLeadsToTheTurnWithoutAQuestionAndKeepsTheLines)
{
    typeLine("Text3", QStringLiteral("Third."));
    press("Form11", "Command2");
    expectOnly("Form10");
    press("Form10", "Command2");
    EXPECT_EQ(line("Text3"), QStringLiteral("Third."));
}

} // namespace
} // namespace tarvold::testing
