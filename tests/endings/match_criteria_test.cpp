#include "endings/match_criteria_expected.h"
#include "support/ending_test.h"
#include "support/spoken.h"

#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class MatchCriteria : public EndingTest
{
protected:
    MatchCriteria() { goTo("Form4"); }

    Screen &form() { return screen("Form4"); }

    /// Shows the short match type list instead of the long one, as other flows do.
    void showShortList()
    {
        control("Form4", "Combo3").hide();
        control("Form4", "Combo12").show();
        QTest::qWait(0);
    }
};

TEST_F(MatchCriteria, FieldsHaveTheirCaptionsAndLists)
{
    expectFields(form(), kMatchCriteria);
    showShortList();
    expectFields(form(), kMatchCriteria);
}

TEST_F(MatchCriteria, HasItsTitleHeadingAndButtons)
{
    EXPECT_EQ(form().windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(text("Form4", "Label1"), u"GENERAL DETAILS"_s);
    EXPECT_EQ(form().control<QPushButton>("Command1").text(), u"<<"_s);
    EXPECT_EQ(form().control<QPushButton>("Command2").text(), u">>"_s);
}

TEST_F(MatchCriteria, FieldsHaveTheirStartValues)
{
    expectFreshTexts(form(), kMatchCriteria);
}

TEST_F(MatchCriteria, OnlyTheLongMatchTypeListIsVisible)
{
    EXPECT_TRUE(control("Form4", "Combo3").isVisible());
    EXPECT_FALSE(control("Form4", "Combo12").isVisible());
}

TEST_F(MatchCriteria, BothMatchTypeListsAreInTheSamePlace)
{
    const QRect place = control("Form4", "Combo3").geometry();
    showShortList();
    EXPECT_EQ(control("Form4", "Combo12").geometry(), place);
}

TEST_F(MatchCriteria, TheDesignNoteIsHidden)
{
    EXPECT_EQ(text("Form4", "matchreports"),
              u"remember there is more than 1 combo for match type"_s);
    EXPECT_FALSE(control("Form4", "matchreports").isVisible());
}

TEST_F(MatchCriteria, TheFirstFieldHasTheFocusAndShowsItsHelp)
{
    expectActive(form());
    EXPECT_TRUE(control("Form4", "Combo3").hasFocus());
    EXPECT_EQ(text("Form4", "Label2"), QLatin1StringView(kMatchCriteria.front().help));
}

TEST_F(MatchCriteria, TabbingChangesTheHelpAtEveryField)
{
    expectHelpOnFocus(form(), "Label2", kMatchCriteria);
    showShortList();
    expectHelpOnFocus(form(), "Label2", kMatchCriteria);
}

TEST_F(MatchCriteria, AClickShowsTheHelpEvenOfTheFocusedField)
{
    expectHelpOnClick(form(), "Label2", kMatchCriteria);
    showShortList();
    expectHelpOnClick(form(), "Label2", kMatchCriteria);
}

TEST_F(MatchCriteria, ChoosingInAListShowsItsHelpButNotInTheShortMatchTypes)
{
    for (const ExpectedField &field : kMatchCriteria) {
        if (field.items.empty() || !control("Form4", field.control).isVisible()) {
            continue;
        }
        SCOPED_TRACE(field.control);
        control("Form4", field.control).setFocus();
        form().setText("Label2", u"before"_s);
        choose("Form4", field.control, QLatin1StringView(field.items.back()));
        EXPECT_EQ(text("Form4", "Label2"), QLatin1StringView(field.help));
        EXPECT_EQ(text("Form4", field.control), QLatin1StringView(field.items.back()));
    }
    showShortList();
    control("Form4", "Combo12").setFocus();
    form().setText("Label2", u"before"_s);
    pickByKeyboard(combo("Form4", "Combo12"), u"Tag Team"_s);
    EXPECT_EQ(text("Form4", "Label2"), u"before"_s);
}

TEST_F(MatchCriteria, ButtonsKeepTheHelp)
{
    tabTo(form(), "Combo10");
    tabTo(form(), "Command2");
    EXPECT_EQ(text("Form4", "Label2"), QLatin1StringView(kMatchCriteria.back().help));
}

TEST_F(MatchCriteria, NextFillsAnEmptyStipulation)
{
    type("Form4", "Text2", QString());
    press("Form4", "Command2");
    expectOnly("Form5");
    EXPECT_EQ(text("Form4", "Text2"), u"Any"_s);
}

TEST_F(MatchCriteria, NextKeepsAStipulationOfOneSpace)
{
    type("Form4", "Text2", u" "_s);
    press("Form4", "Command2");
    EXPECT_EQ(text("Form4", "Text2"), u" "_s);
}

TEST_F(MatchCriteria, NextChecksAndFillsNothingElse)
{
    for (const char *name : {"Combo3", "Combo1", "Combo2", "Combo4", "Combo10"}) {
        type("Form4", name, QString());
    }
    press("Form4", "Command2");
    expectOnly("Form5");
    for (const char *name : {"Combo3", "Combo1", "Combo2", "Combo4", "Combo10"}) {
        EXPECT_EQ(text("Form4", name), QString()) << name;
    }
}

TEST_F(MatchCriteria, BackAndNoKeepsEveryValue)
{
    for (const ExpectedField &field : kMatchCriteria) {
        if (control("Form4", field.control).isVisible()) {
            type("Form4", field.control, QLatin1StringView(field.control) + u"!"_s);
        }
    }
    boxes.expectQuestion(title(), kReturnQuestion, Answer::No);
    press("Form4", "Command1");
    expectOnly("Form4");
    for (const ExpectedField &field : kMatchCriteria) {
        if (control("Form4", field.control).isVisible()) {
            EXPECT_EQ(text("Form4", field.control), QLatin1StringView(field.control) + u"!"_s);
        }
    }
}

TEST_F(MatchCriteria, LeavingAndReturningFocusesTheFirstFieldAgain)
{
    tabTo(form(), "Combo10");
    press("Form4", "Command2");
    press("Form5", "Command1");
    expectActive(form());
    EXPECT_TRUE(control("Form4", "Combo3").hasFocus());
    EXPECT_EQ(text("Form4", "Label2"), QLatin1StringView(kMatchCriteria.front().help));
}

} // namespace
} // namespace tarvold::testing
