#include "segments/talk_show_details.h"
#include "support/field_checks.h"
#include "support/heat_test.h"
#include "support/spoken.h"

#include <QPushButton>
#include <QScrollBar>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// Without the scroll bar.
const ExpectedFields kTalkShowFields = {
    {"Text3",
     "Label2",
     "Host of Talk Show",
     {},
     "Any",
     false,
     "Host of Talk Show ~ By typing a name here, this segment will only be used when the person "
     "whose name you typed is the host of the talk show segment. If it doesn't matter who the host "
     "is, put 'Any'."},
    {"Combo1",
     "Label3",
     "Disposition Of Host",
     {"Face", "Heel", "Any"},
     "Any",
     false,
     "Disposition of Host ~ Here you can specify this segment for a heel host or a face host. If "
     "it can be used for either, choose 'Any'."},
    {"Text4",
     "Label4",
     "Name of Talk Show",
     {},
     "Any",
     false,
     "Name of Talk Show ~ You can specify this segment so it only get used for a Talk Show with "
     "this name. If you don't want to specify this to a certain Talk Show, choose Any."},
    {"Text5",
     "Label5",
     "Name of Guest # 1",
     {},
     "Any",
     false,
     "Name of Guest # 1 ~ If you want to specify this segment for a certain guest, type their name "
     "here. Otherwise, type 'Any'."},
    {"Combo7",
     "Label6",
     "Disposition Of Guest # 1",
     {"Face", "Heel", "Any"},
     "Any",
     false,
     "Disposition of Guest # 1 ~ You can specify whether this segment is only used when the guest "
     "is a heel, or only when the guest is a face. Otherwise, choose 'Any'."},
    {"Text1",
     "Label7",
     "Name of Guest # 2",
     {},
     "Any",
     false,
     "Name of Guest # 2 ~ Guest 2 is the wrestler feuding with Guest 1. They don't necessarily "
     "have to be a guest on the show, they could come down to interupt. To specify this segment "
     "for a certain wrestler as Guest 2, type their name here. Otherwise, type 'Any'."},
    {"Combo2",
     "Label9",
     "Disposition Of Guest # 2",
     {"Face", "Heel", "Any"},
     "Any",
     false,
     "Disposition of Guest # 2 ~ You can specify whether this segment is only used when Guest 2 is "
     "a heel, or only when Guest 2 is a face. Otherwise, choose 'Any'."},
    {"Combo3",
     "Label10",
     "Gender of Guests",
     {"Male", "Female", "Any"},
     "Any",
     false,
     "Gender of Guests ~ Both the guests will be the same gender. Here you can specify to only use "
     "this segment with male guests, or female guests, or if it doesn't matter, choose 'Any'."},
};

class TalkShowDetails : public HeatTest
{
protected:
    TalkShowDetails() : HeatTest(kTalkShowPath, "Form14") {}
};

TEST_F(TalkShowDetails, HasItsTitleHeadingAndButtons)
{
    EXPECT_EQ(screen("Form14").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form14", "Label1"), u"TALK SHOW SEGMENT DETAILS"_s);
    EXPECT_EQ(screen("Form14").control<QPushButton>("Command1").text(), u"<<"_s);
    EXPECT_EQ(screen("Form14").control<QPushButton>("Command2").text(), u">>"_s);
}

TEST_F(TalkShowDetails, FieldsHaveTheirCaptionsAndLists)
{
    expectFields(screen("Form14"), kTalkShowFields);
    EXPECT_EQ(text("Form14", "Label11"), u"Feud Heat Increase"_s);
    expectStops("Form14", {"Text3", "Combo1", "Text4", "Text5", "Combo7", "Text1", "Combo2",
                           "Combo3", "HScroll1", "Command1", "Command2"});
}

TEST_F(TalkShowDetails, EntrySetsItsValues)
{
    expectFreshTexts(screen("Form14"), kTalkShowFields);
    EXPECT_EQ(bar().value(), 10);
    EXPECT_EQ(shown(), u"10%"_s);
}

TEST_F(TalkShowDetails, AFieldShowsItsHelpWhenTabReachesIt)
{
    expectHelpOnFocus(screen("Form14"), "Label13", kTalkShowFields);
    tabTo(screen("Form14"), "HScroll1");
    EXPECT_EQ(text("Form14", "Label13"),
              u"Feud Heat Increase ~ This is how much the feud bar for the 2 guests "
              "will increase when this talk show segment happens."_s);
}

TEST_F(TalkShowDetails, AClickOnTheFocusedFieldShowsNoHelp)
{
    expectHelpOnClick(screen("Form14"), "Label13", kTalkShowFields);
}

TEST_F(TalkShowDetails, BeforeItsFirstUseItShowsNoHelpAndAHundredPercent)
{
    Screens screens;
    const Form14 untouched(screens);
    EXPECT_EQ(untouched.text("Label13"), QString());
    EXPECT_EQ(untouched.text("Label8"), u"100%"_s);
}

TEST_F(TalkShowDetails, TheHeatIsShownWithoutABlank)
{
    fill("Form14", {{"HScroll1", u"25"_s}});
    EXPECT_EQ(shown(), u"25%"_s);
}

TEST_F(TalkShowDetails, TheHeatLabelChangesOnlyWhenTheDraggedThumbIsReleased)
{
    expectLabelFollowsOnlyWhenLetGo(u"10%"_s, u"100%"_s);
}

TEST_F(TalkShowDetails, TheHeatMovesInStepsOfOne)
{
    expectStepsOfOne();
}

TEST_F(TalkShowDetails, TheHeatStaysBetweenOneAndAHundred)
{
    expectStaysInRange();
}

TEST_F(TalkShowDetails, FourEmptyNamesAreAnyWhenTheAuthorReturns)
{
    fill("Form14", {{"Text3", {}}, {"Text4", {}}, {"Text5", {}}, {"Text1", {}}});
    press("Form14", "Command2");
    expectOnly("Form15");
    press("Form15", "Command2");
    expectOnly("Form14");
    const QString any = u"Any"_s;
    expectTexts("Form14", {{"Text3", any}, {"Text4", any}, {"Text5", any}, {"Text1", any}});
}

TEST_F(TalkShowDetails, ANameOfOnlySpacesIsKept)
{
    const std::vector<Entry> spaces = {{"Text3", u" "_s}, {"Text1", u"  "_s}};
    fill("Form14", spaces);
    press("Form14", "Command2");
    expectTexts("Form14", spaces);
}

TEST_F(TalkShowDetails, AGuestWithTheNameOfTheHostIsAccepted)
{
    const std::vector<Entry> same = {
        {"Text3", u"Rocco Vance"_s}, {"Text5", u"Rocco Vance"_s}, {"Text1", u"Rocco Vance"_s}};
    fill("Form14", same);
    press("Form14", "Command2");
    expectOnly("Form15");
    expectTexts("Form14", same);
}

TEST_F(TalkShowDetails, AnsweringNoToTheReturnQuestionKeepsTheScreenAndAllValues)
{
    const std::vector<Entry> chosen = {
        {"Text3", u"Host"_s},  {"Combo1", u"Face"_s},   {"Text4", {}},
        {"Text5", u"One"_s},   {"Combo7", u"Heel"_s},   {"Text1", u"Two"_s},
        {"Combo2", u"Face"_s}, {"Combo3", u"Female"_s}, {"HScroll1", u"100"_s},
    };
    fill("Form14", chosen);
    expectReturnQuestion(Answer::No);
    press("Form14", "Command1");
    expectOnly("Form14");
    expectTexts("Form14", chosen);
}

} // namespace
} // namespace tarvold::testing
