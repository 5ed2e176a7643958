#include "endings/turn_details.h"
#include "support/field_checks.h"
#include "support/flow_test.h"
#include "support/spoken.h"

#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const std::vector<const char *> kDispositions = {"Face",         "Heel", "Turning Face",
                                                 "Turning Heel", "Any",  "N/A"};
const char kDispositionHelp[] =
    "Choose the disposition of the wrestlers involved so you can specify whether tag partner 1 "
    "turns on tag partner 2, winning wrestler turns on losing wrestler etc. Singles matches "
    "involve wrestler 1 and 2, and in tag matches wrestler 1 and 2 are on one team, 3 and 4 are "
    "on the other.";

const ExpectedFields kFields = {
    {"Combo1", "Label2", "Wrestler 1 Disposition", kDispositions, "N/A", false, kDispositionHelp},
    {"Combo2", "Label3", "Wrestler 2 Disposition", kDispositions, "N/A", false, kDispositionHelp},
    {"Combo3", "Label4", "Wrestler 3 Disposition", kDispositions, "N/A", false, kDispositionHelp},
    {"Combo4", "Label5", "Wrestler 4 Disposition", kDispositions, "N/A", false, kDispositionHelp},
    {"Combo5",
     "Label6",
     "Turning Wrestler(s) Are On",
     {"Winning Side", "Losing Side"},
     "Winning Side",
     false,
     "Specify whether it is the winning side or the losing side which is turning."},
    {"Combo6",
     "Label7",
     "Turning Wrestler is Attacker?",
     {"Yes", "No", "N/A"},
     "N/A",
     false,
     "Use this option only if the turn is in a tag team match, and one wrestler is turning on his "
     "partner. If you choose Yes, this ending will only happen when the wrestler who turns is the "
     "one who scores the pin/submission. Choosing No means it will only happen when the turning "
     "wrestler does NOT score the winning pin/submission."},
    {"Combo7",
     "Label8",
     "Turning Wrestler is Receiver?",
     {"Yes", "No", "N/A"},
     "N/A",
     false,
     "Use this option only if the turn is in a tag team match, and one wrestler is turning on his "
     "partner. If you choose Yes, this ending will only happen when the wrestler who turns is the "
     "one who is pinned/submits. Choosing No means it will only happen when the turning wrestler "
     "is NOT the one who is pinned/submits."},
};

class TurnDetails : public FlowTest
{
protected:
    TurnDetails() { goTo(kTurnPath, "Form10"); }
};

TEST_F(TurnDetails, HasItsTitleHeadingAndButtons)
{
    EXPECT_EQ(screen("Form10").windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form10", "Label1"), u"TURN DETAILS"_s);
    EXPECT_EQ(screen("Form10").control<QPushButton>("Command1").text(), u"<<"_s);
    EXPECT_EQ(screen("Form10").control<QPushButton>("Command2").text(), u">>"_s);
}

TEST_F(TurnDetails, FieldsHaveTheirCaptionsAndLists)
{
    expectFields(screen("Form10"), kFields);
    expectStops("Form10", {"Combo1", "Combo2", "Combo3", "Combo4", "Combo5", "Combo6", "Combo7",
                           "Command1", "Command2"});
}

TEST_F(TurnDetails, EntrySetsItsValues)
{
    expectFreshTexts(screen("Form10"), kFields);
}

TEST_F(TurnDetails, AFieldShowsItsHelpWhenTabReachesIt)
{
    expectHelpOnFocus(screen("Form10"), "Label13", kFields);
}

TEST_F(TurnDetails, AClickOnTheFocusedFieldShowsNoHelp)
{
    expectHelpOnClick(screen("Form10"), "Label13", kFields);
}

TEST_F(TurnDetails, TheFourDispositionListsShareOneHelpText)
{
    for (const char *list : {"Combo2", "Combo3", "Combo4", "Combo1"}) {
        tabTo(screen("Form10"), "Combo7");
        tabTo(screen("Form10"), list);
        EXPECT_EQ(text("Form10", "Label13"), QLatin1StringView(kDispositionHelp)) << list;
    }
}

TEST_F(TurnDetails, HelpIsEmptyBeforeAnyFieldWasEntered)
{
    Screens screens;
    const Form10 untouched(screens);
    EXPECT_EQ(untouched.text("Label13"), QString());
}

TEST_F(TurnDetails, BackAndNextKeepEveryChosenValue)
{
    const std::vector<Entry> chosen = {{"Combo1", u"Face"_s},         {"Combo2", u"Heel"_s},
                                       {"Combo3", u"Turning Face"_s}, {"Combo4", u"Turning Heel"_s},
                                       {"Combo5", u"Losing Side"_s},  {"Combo6", u"No"_s},
                                       {"Combo7", u"Yes"_s}};
    fill("Form10", chosen);
    press("Form10", "Command1");
    expectOnly("Form6");
    press("Form6", "Command2");
    expectOnly("Form10");
    expectTexts("Form10", chosen);
    press("Form10", "Command2");
    press("Form11", "Command2");
    expectOnly("Form10");
    expectTexts("Form10", chosen);
}

TEST_F(TurnDetails, NoCombinationIsRefused)
{
    const std::vector<Entry> odd = {{"Combo6", u"Yes"_s}, {"Combo7", u"Yes"_s}};
    fill("Form10", odd);
    press("Form10", "Command2");
    expectOnly("Form11");
    expectTexts("Form10", odd);
}

TEST_F(TurnDetails, NextFillsNothing)
{
    type("Form10", "Combo1", {});
    press("Form10", "Command2");
    expectOnly("Form11");
    EXPECT_EQ(text("Form10", "Combo1"), QString());
}

} // namespace
} // namespace tarvold::testing
