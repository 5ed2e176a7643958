#include "endings/ending_refusals.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

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

TEST_F(TurnCommentary, HasItsFixedTextsAndStartsEmptyAndWhite)
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
    EXPECT_EQ(line("Combo1"), u"Attacker 1 Full Name"_s);
    EXPECT_EQ(combo("Form11", "Combo1").itemText(0), u"Wrestler 1"_s);
    EXPECT_EQ(pending(), QString());
    for (const char *name : {"Text1", "Text5", "Text10"}) {
        EXPECT_EQ(line(name), QString());
    }
}

TEST_F(TurnCommentary, EntryInsertsNoTagIntoALineThatStayedMarked)
{
    typeLine("Text2", u"Marked."_s);
    goBack(kTurnPath);
    goToCommentary(kTurnPath);
    EXPECT_EQ(line("Combo1"), u"Attacker 1 Full Name"_s);
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
    EXPECT_EQ(text("Form4", "Combo12"), u"Singles"_s);
    EXPECT_EQ(insertedBy("Wrestler 3"), u"<wrestler3>"_s);
    EXPECT_EQ(insertedBy("Wrestler 4"), u"<wrestler4>"_s);
    EXPECT_EQ(insertedBy("Tag Team 2"), u"<tagteam2>"_s);
}

TEST_F(TurnCommentary, ASecondAttackerNeedsAnyOrTwoNames)
{
    given("Form5", "Text2", u"Any"_s);
    typeLine("Text1", {});
    chooseTag("Attacker 2 Full Name");
    given("Form5", "Text2", u"Rocco Vance,Dex Vance"_s);
    chooseTag("Attacker 2 Full Name");
    EXPECT_EQ(line("Text1"), u"<att2fullname><att2fullname>"_s);
    given("Form5", "Text2", u"Rocco Vance"_s);
    expectRefusal(kSecondAttacker);
    chooseTag("Attacker 2 Full Name");
    EXPECT_EQ(line("Text1"), u"<att2fullname><att2fullname><att2fullname>"_s);
}

TEST_F(TurnCommentary, ARefusalInsertsNothingWhenNoTagWasEverAccepted)
{
    given("Form5", "Text2", u"Rocco Vance"_s);
    expectRefusal(kSecondAttacker);
    EXPECT_EQ(insertedBy("Attacker 2 Full Name"), QString());
}

TEST_F(TurnCommentary, ATagChosenBeforeALineWasClickedIsReplacedByTheNextOne)
{
    expectRememberedWhenNothingIsMarked(kTags[2], kTags[5]);
}

TEST_F(TurnCommentary, RefusesToSaveWithoutAFirstLine)
{
    expectEmptyFirstLineIsRefused();
}

TEST_F(TurnCommentary, AnsweringNoWritesNothingAndKeepsTheScreen)
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

TEST_F(TurnCommentary, TheFileNameIsReadWhenSaving)
{
    expectTheFileBoxCountsWhenSaving();
}

TEST_F(TurnCommentary, TheButtonResetsTheValuesAgainAfterASave)
{
    press("Form11", "Command2");
    fill("Form10", {{"Combo1", u"Face"_s}, {"Combo5", u"Losing Side"_s}});
    press("Form10", "Command2");
    typeLine("Text1", u"The end."_s);
    chooseTag("Tag Team 1");
    save(kTurnPath);
    goToCommentary(kTurnPath);
    expectTexts("Form10", {{"Combo1", u"N/A"_s}, {"Combo5", u"Winning Side"_s}});
    expectTexts("Form11", {{"Text1", {}}, {"Combo1", u"Attacker 1 Full Name"_s}});
    EXPECT_EQ(pending(), u"<tagteam1>"_s);
}

TEST_F(TurnCommentary, BackReturnsToTheTurnWithoutAQuestionAndKeepsTheLines)
{
    typeLine("Text3", u"Third."_s);
    press("Form11", "Command2");
    expectOnly("Form10");
    press("Form10", "Command2");
    EXPECT_EQ(line("Text3"), u"Third."_s);
}

} // namespace
} // namespace tarvold::testing
