#include "segments/interview_details.h"
#include "support/field_checks.h"
#include "support/heat_test.h"
#include "support/spoken.h"

#include <QPushButton>
#include <QScrollBar>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// Without the scroll bar.
const ExpectedFields kInterviewFields = {
    {"Combo3",
     "Label2",
     "Type of Feud",
     {"Singles", "Tag Team"},
     "Singles",
     false,
     "Type Of Feud ~ Specify whether this segment involves 2 feuding wrestlers, or 2 feuding tag "
     "teams."},
    {"Combo1",
     "Label3",
     "Interviewer?",
     {"Yes", "No", "N/A"},
     "N/A",
     false,
     "Interviewer ~ If you involve an interviewer in this segment, choose Yes. If you require "
     "there not to be an interviewer, choose No. If it doesn't matter, choose N/A."},
    {"Combo2",
     "Label4",
     "Televised?",
     {"Yes", "No", "N/A"},
     "N/A",
     false,
     "Televised ~ If you only want this to happen on a televised show, choose Yes (eg. for "
     "backstage interviews - fans at non-televised shows wouldn't see). If it doesn't matter, "
     "choose N/A."},
    {"Combo7",
     "Label5",
     "Disposition Of Side 1",
     {"Face", "Heel", "Any"},
     "Any",
     false,
     "Disposition of Side 1 ~ Side 1 of the feud will be the wrestler/tag team who is being "
     "interviewed. If you are writing for a face or heel specifically, you can choose that option "
     "here. If not, choose Any."},
    {"Combo6",
     "Label6",
     "Disposition Of Side 2",
     {"Face", "Heel", "Any"},
     "Any",
     false,
     "Disposition of Side 2 ~ Side 2 of the feud will be the wrestler/tag team who interupts the "
     "interview in some way. They may not even be involved. If you are writing for a face or heel "
     "specifically, you can choose that option here. If not, choose Any."},
    {"Text2",
     "Label7",
     "Side 1 Wrestler Name(s)",
     {},
     "Any",
     false,
     "Side 1 Wrestler Name(s) ~ Here you can specify a certain wrestler this should be used for. "
     "If Singles, type the wrestler's name. If a specific tag team, type both wrestler's names "
     "separated by a comma (eg. Dex Vance,Rocco Vance). If this isn't specific to a wrestler or "
     "team, choose Any."},
    {"Text1",
     "Label9",
     "Side 2 Wrestler Name(s)",
     {},
     "Any",
     false,
     "Side 2 Wrestler Name(s) ~ Here you can specify a certain wrestler this should be used for. "
     "If Singles, type the wrestler's name. If a specific tag team, type both wrestler's names "
     "separated by a comma (eg. Dex Vance,Rocco Vance). If this isn't specific to a wrestler or "
     "team, choose Any."},
    {"Combo4",
     "Label10",
     "Gender of Feuding Wrestlers",
     {"Male", "Female", "Any"},
     "Any",
     false,
     "Gender of Feuding Wrestlers ~ You can specify this interview to only be used with male "
     "wrestlers, or only with female wrestlers. If the gender doesn't matter, choose 'Any'."},
};

class InterviewDetails : public HeatTest
{
protected:
    InterviewDetails() : HeatTest(kInterviewPath, "Form12") {}
};

TEST_F(InterviewDetails, HasItsTitleHeadingAndButtons)
{
    EXPECT_EQ(screen("Form12").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form12", "Label1"), u"INTERVIEW SEGMENT DETAILS"_s);
    EXPECT_EQ(screen("Form12").control<QPushButton>("Command1").text(), u"<<"_s);
    EXPECT_EQ(screen("Form12").control<QPushButton>("Command2").text(), u">>"_s);
}

TEST_F(InterviewDetails, FieldsHaveTheirCaptionsAndLists)
{
    expectFields(screen("Form12"), kInterviewFields);
    EXPECT_EQ(text("Form12", "Label11"), u"Feud Heat Increase"_s);
    expectStops("Form12", {"Combo3", "Combo1", "Combo2", "Combo7", "Combo6", "Text2", "Text1",
                           "Combo4", "HScroll1", "Command1", "Command2"});
}

TEST_F(InterviewDetails, EntrySetsItsValues)
{
    expectFreshTexts(screen("Form12"), kInterviewFields);
    EXPECT_EQ(bar().value(), 10);
    EXPECT_EQ(shown(), u"10%"_s);
}

TEST_F(InterviewDetails, AFieldShowsItsHelpWhenTabReachesIt)
{
    expectHelpOnFocus(screen("Form12"), "Label13", kInterviewFields);
    tabTo(screen("Form12"), "HScroll1");
    EXPECT_EQ(text("Form12", "Label13"),
              u"Feud Heat Increase ~ This is how much the feud bar will increase "
              "when this interview segment happens."_s);
}

TEST_F(InterviewDetails, AClickOnTheFocusedFieldShowsNoHelp)
{
    expectHelpOnClick(screen("Form12"), "Label13", kInterviewFields);
}

TEST_F(InterviewDetails, BeforeItsFirstUseItShowsNoHelpAndAHundredPercent)
{
    Screens screens;
    const Form12 untouched(screens);
    EXPECT_EQ(untouched.text("Label13"), QString());
    EXPECT_EQ(untouched.text("Label8"), u"100%"_s);
}

TEST_F(InterviewDetails, TheHeatIsShownWithoutABlank)
{
    fill("Form12", {{"HScroll1", u"25"_s}});
    EXPECT_EQ(shown(), u"25%"_s);
}

TEST_F(InterviewDetails, TheHeatLabelChangesOnlyWhenTheDraggedThumbIsReleased)
{
    expectLabelFollowsOnlyWhenLetGo(u"10%"_s, u"100%"_s);
}

TEST_F(InterviewDetails, TheHeatMovesInStepsOfOne)
{
    expectStepsOfOne();
}

TEST_F(InterviewDetails, TheHeatStaysBetweenOneAndAHundred)
{
    expectStaysInRange();
}

TEST_F(InterviewDetails, EmptyNamesAreAnyWhenTheAuthorReturns)
{
    fill("Form12", {{"Text1", {}}, {"Text2", {}}});
    press("Form12", "Command2");
    expectOnly("Form13");
    press("Form13", "Command2");
    expectOnly("Form12");
    expectTexts("Form12", {{"Text1", u"Any"_s}, {"Text2", u"Any"_s}});
}

TEST_F(InterviewDetails, ANameOfOnlySpacesIsKept)
{
    const std::vector<Entry> spaces = {{"Text1", u" "_s}, {"Text2", u"   "_s}};
    fill("Form12", spaces);
    press("Form12", "Command2");
    expectTexts("Form12", spaces);
}

TEST_F(InterviewDetails, ATagTeamFeudWithASingleNameIsAccepted)
{
    const std::vector<Entry> odd = {{"Combo3", u"Tag Team"_s}, {"Text2", u"Rocco Vance"_s}};
    fill("Form12", odd);
    press("Form12", "Command2");
    expectOnly("Form13");
    expectTexts("Form12", odd);
}

TEST_F(InterviewDetails, AnsweringNoToTheReturnQuestionKeepsTheScreenAndAllValues)
{
    const std::vector<Entry> chosen = {{"Combo3", u"Tag Team"_s},
                                       {"Combo1", u"Yes"_s},
                                       {"Combo2", u"No"_s},
                                       {"Combo7", u"Face"_s},
                                       {"Combo6", u"Heel"_s},
                                       {"Text2", u"Rocco"_s},
                                       {"Text1", {}},
                                       {"Combo4", u"Male"_s},
                                       {"HScroll1", u"12"_s}};
    fill("Form12", chosen);
    expectReturnQuestion(Answer::No);
    press("Form12", "Command1");
    expectOnly("Form12");
    expectTexts("Form12", chosen);
}

} // namespace
} // namespace tarvold::testing
