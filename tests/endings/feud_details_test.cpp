#include "endings/feud_details.h"
#include "support/field_checks.h"
#include "support/flow_test.h"
#include "support/spoken.h"

#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// Without the scroll bar.
const ExpectedFields kFields = {
    {"Combo3",
     "Label4",
     "Type of Feud",
     {"Singles", "Tag Team"},
     "Singles",
     false,
     "Specify whether this match ending involves a Singles feud, or a Tag Team feud."},
    {"Text2",
     "Label5",
     "Feuding Wrestler(s)",
     {},
     "Any",
     false,
     "Feuding Wrestler(s) ~ This refers to the wrestler(s) who will interfere in some way. Put "
     "'Any' to make this ending apply to anyone, or enter the name of a wrestler to make it "
     "specific (for a specific tag team, type both names, spearated by a comma (Eg. 'Rocco "
     "Vance,Dex Vance)."},
    {"Combo1",
     "Label2",
     "Feuding Wrestler's Disposition",
     {"Any", "Face", "Heel"},
     "Any",
     false,
     "Feuding Wrestler's Disposition ~ Here, you can write endings based on the interfering "
     "wrestler(s) being Face or Heel, or either."},
    {"Combo2",
     "Label3",
     "Feud Wrestler's Ring Style",
     {"Any", "Basic Wrestler", "Big Man", "Cruiserweight", "Hardcore", "High Flyer",
      "Old Heavyweight", "Powerful", "Technical", "Non-Worker"},
     "Any",
     false,
     "Feuding Wrestler's Ring Style ~ You can specify this match ending to only be used for a "
     "certain style of interfering wrestler, eg only cruiserweights, or leave it open to any "
     "style."},
    {"Combo7",
     "Label10",
     "Feuding Wrestler's Finisher Type",
     {"Any", "Pin", "Submission", "Top Rope"},
     "Any",
     false,
     "Feuding Wrestler's Finisher Type ~ This allows you to write endings specific to the "
     "interfering wrestler using a submission finisher, for example."},
    {"Combo4",
     "Label6",
     "Feuding With",
     {"Winners", "Losers"},
     "Losers",
     false,
     "Feuding With ~ This specifies who the interfering wrestler is going to attack, the "
     "winner(s) of the match or the loser(s)."},
    {"Combo5",
     "Label9",
     "For Televised Shows?",
     {"N/A", "Yes"},
     "N/A",
     false,
     "For Televised Shows? ~ If for example, the interfering wrestler was a guest commentater for "
     "the match, the ending would only be used on televised shows. If it doesn't matter whether "
     "the show is televised, choose N/A."},
};

const char kBrandHelp[] =
    "Feuding Wrestlers Part Of This Brand? ~ Using this option means that for example, if you are "
    "doing a Ruckus brand show, and a Brawlday wrestler runs in, your match ending can emphasise "
    "that 'that wrestler doesn't belong here'.";
const char kPowerFigureHelp[] =
    "Feud Person Is Power Figure ~ This allows you to specify match endings for power figure vs "
    "wrestler style feuds. Eg, the wrestler could win the match and then the power figure comes "
    "out and reverses the decision, which increases the feud heat between the two.";

class FeudDetails : public FlowTest
{
protected:
    FeudDetails() { goTo(kRunInPath, "Form8"); }

    QString help() { return text("Form8", "Label13"); }
};

TEST_F(FeudDetails, HasItsTitleHeadingAndButtons)
{
    EXPECT_EQ(screen("Form8").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form8", "Label1"), u"FEUD DETAILS"_s);
    EXPECT_EQ(screen("Form8").control<QPushButton>("Command1").text(), u"<<"_s);
    EXPECT_EQ(screen("Form8").control<QPushButton>("Command2").text(), u">>"_s);
}

TEST_F(FeudDetails, FieldsHaveTheirCaptionsAndLists)
{
    expectFields(screen("Form8"), kFields);
    EXPECT_EQ(text("Form8", "Label7"), u"Feud Heat Increase"_s);
}

TEST_F(FeudDetails, FieldsAreBelowEachOtherInOrder)
{
    expectStops("Form8", {"Combo3", "Text2", "Combo1", "Combo2", "Combo7", "Combo4", "HScroll1",
                          "Combo5", "Command1", "Command2"});
}

TEST_F(FeudDetails, EntrySetsItsValues)
{
    expectFreshTexts(screen("Form8"), kFields);
    expectTexts("Form8", {{"HScroll1", u"10"_s}, {"Label8", u"10%"_s}});
}

TEST_F(FeudDetails, AFieldShowsItsHelpWhenTabReachesIt)
{
    expectHelpOnFocus(screen("Form8"), "Label13", kFields);
    tabTo(screen("Form8"), "HScroll1");
    EXPECT_EQ(help(), u"Feud Heat Increase ~ This is how much the feud bar will "
                      "increase when this match ending takes place."_s);
}

TEST_F(FeudDetails, AClickOnTheFocusedFieldShowsNoHelp)
{
    expectHelpOnClick(screen("Form8"), "Label13", kFields);
}

TEST_F(FeudDetails, ButtonsHaveNoHelp)
{
    tabTo(screen("Form8"), "Combo5");
    const QString last = help();
    tabTo(screen("Form8"), "Command1");
    EXPECT_EQ(help(), last);
    tabTo(screen("Form8"), "Command2");
    EXPECT_EQ(help(), last);
}

TEST_F(FeudDetails, HelpForTheTwoMissingFieldsExists)
{
    screen("Form8").setText("Label13", {});
    editor.screens().get<Form8>().showBrandHelp();
    EXPECT_EQ(help(), QLatin1StringView(kBrandHelp));
    editor.screens().get<Form8>().showPowerFigureHelp();
    EXPECT_EQ(help(), QLatin1StringView(kPowerFigureHelp));
}

TEST_F(FeudDetails, NoControlShowsTheHelpOfAMissingField)
{
    for (const QWidget *stop : tabStops(screen("Form8"))) {
        EXPECT_NE(help(), QLatin1StringView(kBrandHelp)) << stop->objectName().toStdString();
        EXPECT_NE(help(), QLatin1StringView(kPowerFigureHelp)) << stop->objectName().toStdString();
        QTest::keyClick(screen("Form8").windowHandle(), Qt::Key_Tab);
    }
}

TEST_F(FeudDetails, ForTelevisedShowsDoesNotOfferNo)
{
    EXPECT_EQ(combo("Form8", "Combo5").findText(u"No"_s), -1);
}

TEST_F(FeudDetails, NextPutsAnyIntoAnEmptyName)
{
    type("Form8", "Text2", {});
    press("Form8", "Command2");
    expectOnly("Form9");
    EXPECT_EQ(text("Form8", "Text2"), u"Any"_s);
}

TEST_F(FeudDetails, NextKeepsANameOfOnlySpaces)
{
    type("Form8", "Text2", u"  "_s);
    press("Form8", "Command2");
    EXPECT_EQ(text("Form8", "Text2"), u"  "_s);
}

TEST_F(FeudDetails, BackFillsNothing)
{
    type("Form8", "Text2", {});
    press("Form8", "Command1");
    expectOnly("Form6");
    EXPECT_EQ(text("Form8", "Text2"), QString());
}

TEST_F(FeudDetails, BackAndNextKeepEveryChosenValue)
{
    const std::vector<Entry> chosen = {
        {"Combo3", u"Tag Team"_s},   {"Text2", u"Rocco Vance,Dex Vance"_s},
        {"Combo1", u"Heel"_s},       {"Combo2", u"Big Man"_s},
        {"Combo7", u"Submission"_s}, {"Combo4", u"Winners"_s},
        {"HScroll1", u"33"_s},       {"Combo5", u"Yes"_s}};
    fill("Form8", chosen);
    press("Form8", "Command1");
    press("Form6", "Command2");
    expectOnly("Form8");
    expectTexts("Form8", chosen);
    press("Form8", "Command2");
    press("Form9", "Command2");
    expectOnly("Form8");
    expectTexts("Form8", chosen);
    EXPECT_EQ(text("Form8", "Label8"), u" 33%"_s);
}

TEST_F(FeudDetails, HelpIsEmptyBeforeAnyFieldWasEntered)
{
    Screens screens;
    Form8 untouched(screens);
    EXPECT_EQ(untouched.text("Label13"), QString());
    EXPECT_EQ(untouched.text("Label8"), u"100%"_s);
    EXPECT_EQ(untouched.text("Text2"), u"Any"_s);
}

} // namespace
} // namespace tarvold::testing
