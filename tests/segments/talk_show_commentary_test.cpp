#include "support/commentary_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const TagRow kTalkShowTags[] = {
    {"Host Name", "<hostname>"},
    {"Guest 1 Long Name", "<guest1longname>"},
    {"Guest 1 Short Name", "<guest1shortname>"},
    {"Guest 2 Long Name", "<guest2longname>"},
    {"Guest 2 Short Name", "<guest2shortname>"},
    {"Talk Show Name", "<talkshowname>"},
};

class TalkShowCommentary : public CommentaryTest
{
protected:
    TalkShowCommentary() : CommentaryTest(kTalkShowPath) {}
};

TEST_F(TalkShowCommentary, HasItsFixedTextsWhichAlsoSayInterview)
{
    expectFixedTexts("THE TALK SHOW SEGMENT",
                     "Here you have up to 10 lines of commentary which you can type in for this "
                     "interview segment. Where specific details are needed, such as a wrestler's "
                     "name, click on the list above to insert the relevant code.",
                     "Add This Talk Show Segment");
}

TEST_F(TalkShowCommentary, OffersItsSixItemsInOrder)
{
    ASSERT_EQ(std::size(kTalkShowTags), 6U);
    expectList(kTalkShowTags);
    EXPECT_EQ(line("Combo1"), u"Host Name"_s);
}

TEST_F(TalkShowCommentary, EveryItemInsertsItsTag)
{
    expectEveryTagInserted(kTalkShowTags);
}

TEST_F(TalkShowCommentary, NoValueOfTheDetailsRefusesATag)
{
    for (const char *value : {"Any", "None", "N/A", "Singles", ""}) {
        for (const char *box : {"Text3", "Text4", "Text5", "Text1", "Combo1", "Combo3"}) {
            given("Form14", box, QLatin1StringView(value));
        }
        for (const TagRow &row : kTalkShowTags) {
            EXPECT_EQ(insertedBy(row.item), QLatin1StringView(row.tag)) << value;
        }
    }
}

TEST_F(TalkShowCommentary, TheSecondGuestIsAllowedIfTheNameIsAny)
{
    EXPECT_EQ(text("Form14", "Text1"), u"Any"_s);
    EXPECT_EQ(insertedBy("Guest 2 Long Name"), u"<guest2longname>"_s);
}

TEST_F(TalkShowCommentary, TheSameTagChosenTwiceIsAppendedTwice)
{
    typeLine("Text8", u"By "_s);
    chooseTag("Talk Show Name");
    chooseTag("Talk Show Name");
    EXPECT_EQ(line("Text8"), u"By <talkshowname><talkshowname>"_s);
}

TEST_F(TalkShowCommentary, ATagChosenWhileNoLineIsMarkedIsOnlyRemembered)
{
    expectRememberedWhenNothingIsMarked(kTalkShowTags[0], kTalkShowTags[5]);
}

TEST_F(TalkShowCommentary, RefusesToSaveWithoutAFirstLine)
{
    expectEmptyFirstLineIsRefused();
}

TEST_F(TalkShowCommentary, AnsweringNoWritesNothingAndKeepsTheScreen)
{
    expectNoWritesNothing();
}

TEST_F(TalkShowCommentary, AFirstLineOfOneSpaceIsSaved)
{
    expectOneSpaceIsSaved();
}

TEST_F(TalkShowCommentary, NothingIsClearedByASave)
{
    expectNothingIsClearedByASave();
}

TEST_F(TalkShowCommentary, TheFileNameIsReadWhenSaving)
{
    expectTheFileBoxCountsWhenSaving();
}

} // namespace
} // namespace tarvold::testing
