#include "endings/attacker_expected.h"
#include "endings/receiver_expected.h"
#include "support/ending_test.h"
#include "support/spoken.h"
#include "support/stub_screen.h"

#include <QPushButton>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct Side
{
    const char *screen;
    const char *heading;
    const char *note;
    const ExpectedFields &fields;
    const char *next;
    const char *back;
};

const Side kBothScreens[] = {
    {"Form5", "ATTACKER DETAILS", "Attacker = the one who makes the pin/wins by DQ etc", kAttacker,
     "Form6", "Form4"},
    {"Form6", "RECEIVER DETAILS", "Receiver = The one who gets pinned/submits/loses by DQ etc",
     kReceiver, "Form7", "Form5"},
};

/// The attacker screen and the receiver screen, one per test.
class Sides : public EndingTest, public ::testing::WithParamInterface<int>
{
protected:
    Sides() { goTo(name()); }

    static const Side &side() { return kBothScreens[GetParam()]; }
    static const char *name() { return side().screen; }
    Screen &form() { return screen(name()); }
};

INSTANTIATE_TEST_SUITE_P(, Sides, ::testing::Values(0, 1),
                         [](const auto &which) { return kBothScreens[which.param].screen; });

TEST_P(Sides, FieldsHaveTheirCaptionsAndLists)
{
    expectFields(form(), side().fields);
}

TEST_P(Sides, HasItsHeadingNoteAndButtons)
{
    EXPECT_EQ(form().windowTitle(), u"Tarvold 1.3 Data Editor"_s);
    EXPECT_EQ(form().text("Label1"), QLatin1StringView(side().heading));
    EXPECT_EQ(form().text("Label14"), QLatin1StringView(side().note));
    EXPECT_TRUE(form().control("Label14").isVisible());
    EXPECT_EQ(form().control<QPushButton>("Command1").text(), u"<<"_s);
    EXPECT_EQ(form().control<QPushButton>("Command2").text(), u">>"_s);
}

TEST_P(Sides, FieldsHaveTheirStartValuesAndAreVisible)
{
    expectFreshTexts(form(), side().fields);
    for (const ExpectedField &field : side().fields) {
        EXPECT_TRUE(form().control(field.control).isVisible()) << field.control;
    }
}

TEST_P(Sides, TheFirstFieldHasTheFocusAndShowsItsHelp)
{
    expectActive(form());
    EXPECT_TRUE(form().control("Text2").hasFocus());
    EXPECT_EQ(form().text("Label13"), QLatin1StringView(side().fields.front().help));
}

TEST_P(Sides, TabbingChangesTheHelpAtEveryField)
{
    expectHelpOnFocus(form(), "Label13", side().fields);
}

TEST_P(Sides, AClickOnTheFocusedFieldKeepsTheHelp)
{
    expectHelpOnClick(form(), "Label13", side().fields);
}

TEST_P(Sides, TheHelpDoesNotMoveAnything)
{
    expectActive(form());
    const QRect help = form().control("Label13").geometry();
    const QRect next = form().control("Command2").geometry();
    for (const ExpectedField &field : side().fields) {
        const QRect place = form().control(field.control).geometry();
        tabTo(form(), field.control);
        QTest::qWait(0);
        EXPECT_EQ(form().control("Label13").geometry(), help) << field.control;
        EXPECT_EQ(form().control("Command2").geometry(), next) << field.control;
        EXPECT_EQ(form().control(field.control).geometry(), place) << field.control;
    }
}

TEST_P(Sides, NextFillsEmptyBoxes)
{
    type(name(), "Text2", QString());
    type(name(), "Text1", QString());
    type(name(), "Text3", QString());
    press(name(), "Command2");
    expectOnly(side().next);
    EXPECT_EQ(text(name(), "Text2"), u"Any"_s);
    EXPECT_EQ(text(name(), "Text1"), u"N/A"_s);
    EXPECT_EQ(text(name(), "Text3"), u"N/A"_s);
}

TEST_P(Sides, NextResetsGenderAndWorkerIfTheManagerNameIsEmpty)
{
    type(name(), "Text1", QString());
    choose(name(), "Combo5", u"Female"_s);
    choose(name(), "Combo6", u"Yes"_s);
    press(name(), "Command2");
    EXPECT_EQ(text(name(), "Text1"), u"N/A"_s);
    EXPECT_EQ(text(name(), "Combo5"), u"N/A"_s);
    EXPECT_EQ(text(name(), "Combo6"), u"N/A"_s);
}

TEST_P(Sides, NextKeepsGenderAndWorkerIfThereIsAManagerName)
{
    for (const char *manager : {"Miss Vance", " ", "None", "N/A"}) {
        SCOPED_TRACE(manager);
        type(name(), "Text1", QLatin1StringView(manager));
        type(name(), "Combo5", u"my own"_s);
        choose(name(), "Combo6", u"Yes"_s);
        press(name(), "Command2");
        EXPECT_EQ(text(name(), "Text1"), QLatin1StringView(manager));
        EXPECT_EQ(text(name(), "Combo5"), u"my own"_s);
        EXPECT_EQ(text(name(), "Combo6"), u"Yes"_s);
        press(side().next, GetParam() == 0 ? "Command1" : "Command2");
    }
}

TEST_P(Sides, NextKeepsBoxesWithOneSpace)
{
    for (const char *box : {"Text1", "Text2", "Text3"}) {
        type(name(), box, u" "_s);
    }
    press(name(), "Command2");
    for (const char *box : {"Text1", "Text2", "Text3"}) {
        EXPECT_EQ(text(name(), box), u" "_s) << box;
    }
}

TEST_P(Sides, NextKeepsEmptyComboBoxesEmpty)
{
    for (const char *box : {"Combo1", "Combo2", "Combo3", "Combo4", "Combo5", "Combo6", "Combo7"}) {
        type(name(), box, QString());
    }
    press(name(), "Command2");
    for (const char *box : {"Combo1", "Combo2", "Combo3", "Combo4", "Combo5", "Combo6", "Combo7"}) {
        EXPECT_EQ(text(name(), box), QString()) << box;
    }
}

TEST_P(Sides, NextFillsHiddenBoxesToo)
{
    type(name(), "Text1", QString());
    type(name(), "Text3", QString());
    choose(name(), "Combo5", u"Male"_s);
    for (const char *hidden : {"Text1", "Text3", "Combo5", "Combo6"}) {
        control(name(), hidden).hide();
    }
    press(name(), "Command2");
    EXPECT_EQ(text(name(), "Text1"), u"N/A"_s);
    EXPECT_EQ(text(name(), "Text3"), u"N/A"_s);
    EXPECT_EQ(text(name(), "Combo5"), u"N/A"_s);
}

TEST_P(Sides, BackAsksNothingFillsNothingAndKeepsEveryValue)
{
    for (const ExpectedField &field : side().fields) {
        type(name(), field.control, QLatin1StringView(field.control) + u"!"_s);
    }
    type(name(), "Text3", QString());
    press(name(), "Command1");
    expectOnly(side().back);
    press(side().back, "Command2");
    expectOnly(name());
    for (const ExpectedField &field : side().fields) {
        const QString typed = QLatin1StringView(field.control) + u"!"_s;
        EXPECT_EQ(text(name(), field.control),
                  qstrcmp(field.control, "Text3") == 0 ? QString() : typed);
    }
}

class Receiver : public EndingTest
{
protected:
    Receiver()
    {
        editor.screens().declare<StubScreen<'8'>>();
        editor.screens().declare<StubScreen<'1', '0'>>();
        goTo("Form6");
    }

    /// The screen that ">>" leads to with this flow label.
    void expectNext(const QString &label, const char *screen)
    {
        editor.screens().setText({"Form1", "matchreports"}, label);
        press("Form6", "Command2");
        expectOnly(screen);
    }
};

TEST_F(Receiver, BackShowsTheAttackerScreenWithAllItsValues)
{
    press("Form6", "Command1");
    for (const ExpectedField &field : kAttacker) {
        type("Form5", field.control, QLatin1StringView(field.caption));
    }
    press("Form5", "Command2");
    press("Form6", "Command1");
    expectOnly("Form5");
    for (const ExpectedField &field : kAttacker) {
        EXPECT_EQ(text("Form5", field.control), QLatin1StringView(field.caption));
    }
}

TEST_F(Receiver, NormalLeadsToTheNormalCommentary)
{
    expectNext(u"normal"_s, "Form7");
}

TEST_F(Receiver, FeudsLeadsToTheFeudDetails)
{
    expectNext(u"feuds"_s, "Form8");
}

TEST_F(Receiver, TurnsLeadsToTheTurnDetails)
{
    expectNext(u"turns"_s, "Form10");
}

TEST_F(Receiver, AnythingElseLeadsToTheTurnDetails)
{
    expectNext(u"Normal"_s, "Form10");
}

TEST_F(Receiver, NothingAtAllLeadsToTheTurnDetails)
{
    expectNext(QString(), "Form10");
}

TEST_F(Receiver, AlmostFeudsLeadsToTheTurnDetails)
{
    expectNext(u"feuds "_s, "Form10");
}

} // namespace
} // namespace tarvold::testing
