#include "support/commentary_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// A refusal that only a singles feud causes.
RefusalRow singlesRefusal(const char *message)
{
    return {{"Form12", "Combo3"},
            message,
            "Tarvold Data Editor",
            {u"Singles"_s},
            {u"Tag Team"_s, u"singles"_s, u"Singles "_s, {}}};
}

const RefusalRow kThird =
    singlesRefusal("Wrestler 3 can only be involved if the Feud Type is Tag Team.");
const RefusalRow kFourth =
    singlesRefusal("Wrestler 4 can only be involved if the Feud Type is Tag Team.");
const RefusalRow kTeams =
    singlesRefusal("Tag Teams can only be involved if the Feud Type is Tag Team.");

const TagRow kInterviewTags[] = {
    {"Wrestler 1 Long Name", "<wrestler1longname>"},
    {"Wrestler 1 Short Name", "<wrestler1shortname>"},
    {"Wrestler 2 Long Name", "<wrestler2longname>"},
    {"Wrestler 2 Short Name", "<wrestler2shortname>"},
    {"Wrestler 3 Long Name", "<wrestler3longname>", &kThird},
    {"Wrestler 3 Short Name", "<wrestler3shortname>", &kThird},
    {"Wrestler 4 Long Name", "<wrestler4longname>", &kFourth},
    {"Wrestler 4 Short Name", "<wrestler4shortname>", &kFourth},
    {"Tag Team 1", "<tagteam1>", &kTeams},
    {"Tag Team 2", "<tagteam2>", &kTeams},
    {"Interviewer Name", "<interviewer>"},
    {"Town Name", "<town>"},
};

class InterviewCommentary : public CommentaryTest
{
protected:
    InterviewCommentary() : CommentaryTest(kInterviewPath) {}
};

TEST_F(InterviewCommentary, HasItsFixedTextsAndStartsEmptyAndWhite)
{
    expectFixedTexts("THE INTERVIEW SEGMENT",
                     "Here you have up to 10 lines of commentary which you can type in for this "
                     "interview segment. Where specific details are needed, such as a wrestler's "
                     "name, click on the list above to insert the relevant code.",
                     "Add This Interview Segment");
}

TEST_F(InterviewCommentary, OffersItsTwelveItemsInOrder)
{
    ASSERT_EQ(std::size(kInterviewTags), 12U);
    expectList(kInterviewTags);
    EXPECT_EQ(line("Combo1"), u"Wrestler 1 Long Name"_s);
}

TEST_F(InterviewCommentary, EveryItemInsertsItsTagUnlessTheFeudIsSingles)
{
    expectEveryTagInserted(kInterviewTags);
}

TEST_F(InterviewCommentary, ATagTeamFeudAllowsAllTwelveItems)
{
    press("Form13", "Command2");
    fill("Form12", {{"Combo3", u"Tag Team"_s}});
    press("Form12", "Command2");
    for (const TagRow &row : kInterviewTags) {
        EXPECT_EQ(insertedBy(row.item), QLatin1StringView(row.tag));
    }
}

TEST_F(InterviewCommentary, ASinglesFeudRefusesSixItemsAndInsertsThePendingTagAgain)
{
    expectEveryRefusal(kInterviewTags);
}

TEST_F(InterviewCommentary, ARefusedTeamInsertsNothingWhenNoTagWasEverChosen)
{
    EXPECT_EQ(text("Form12", "Combo3"), u"Singles"_s);
    typeLine("Text6", u"Here come "_s);
    expectRefusal(kTeams);
    chooseTag("Tag Team 2");
    EXPECT_EQ(line("Text6"), u"Here come "_s);
    chooseTag("Town Name");
    expectRefusal(kTeams);
    chooseTag("Tag Team 2");
    EXPECT_EQ(line("Text6"), u"Here come <town><town>"_s);
}

TEST_F(InterviewCommentary, TheInterviewerIsAllowedEvenIfThereIsNone)
{
    press("Form13", "Command2");
    fill("Form12", {{"Combo1", u"No"_s}});
    press("Form12", "Command2");
    EXPECT_EQ(insertedBy("Interviewer Name"), u"<interviewer>"_s);
}

TEST_F(InterviewCommentary, ATagChosenWhileNoLineIsMarkedIsOnlyRemembered)
{
    expectRememberedWhenNothingIsMarked(kInterviewTags[0], kInterviewTags[11]);
}

TEST_F(InterviewCommentary, RefusesToSaveWithoutAFirstLine)
{
    expectEmptyFirstLineIsRefused();
}

TEST_F(InterviewCommentary, AnsweringNoWritesNothingAndKeepsTheScreen)
{
    expectNoWritesNothing();
}

TEST_F(InterviewCommentary, AFirstLineOfOneSpaceIsSaved)
{
    expectOneSpaceIsSaved();
}

TEST_F(InterviewCommentary, NothingIsClearedByASave)
{
    expectNothingIsClearedByASave();
}

TEST_F(InterviewCommentary, TheFileNameIsReadWhenSaving)
{
    expectTheFileBoxCountsWhenSaving();
}

} // namespace
} // namespace tarvold::testing
