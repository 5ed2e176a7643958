#include "endings/ending_entry_expected.h"
#include "endings/ending_flow.h"
#include "support/ending_test.h"

#include <span>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class EndingEntry : public EndingTest
{
protected:
    EndingEntry() { createAllScreens(); }

    Screens &screens() { return editor.screens(); }

    /// Changes every control that the entry should set, and every line.
    void changeEverything()
    {
        for (const ExpectedValue &row : kCriteria) {
            screens().setText({"Form4", row.control}, u"changed"_s);
        }
        for (const char *screen : {"Form5", "Form6"}) {
            for (const ExpectedValue &row : kSides) {
                screens().setText({screen, row.control}, u"changed"_s);
            }
        }
        screens().setText({"Form7", "Combo1"}, u"changed"_s);
        for (int line = 1; line <= 10; ++line) {
            const QByteArray name = "Text" + QByteArray::number(line);
            screens().setText({"Form7", name.constData()}, u"changed"_s);
        }
    }

    void expectNormal(const char *screen, std::span<const ExpectedValue> rows)
    {
        for (const ExpectedValue &row : rows) {
            const char *value = row.values[0] == kKept ? "changed" : row.values[0];
            EXPECT_EQ(text(screen, row.control), QLatin1StringView(value))
                << screen << " " << row.control;
        }
    }
};

TEST_F(EndingEntry, NormalEntryResetsItsScreens)
{
    changeEverything();
    screens().setText({"Form1", "matchreports"}, u"turns"_s);
    screens().setText({"Form7", "hiddenlabel"}, u"<recfullname>"_s);
    press("Form1", "Command3");
    expectOnly("Form4");
    EXPECT_EQ(text("Form1", "matchreports"), u"normal"_s);
    expectNormal("Form4", kCriteria);
    expectNormal("Form5", kSides);
    expectNormal("Form6", kSides);
    EXPECT_EQ(text("Form7", "Combo1"), u"Attacker 1 Full Name"_s);
    EXPECT_EQ(text("Form7", "hiddenlabel"), u"<recfullname>"_s);
    for (int line = 1; line <= 10; ++line) {
        const QByteArray name = "Text" + QByteArray::number(line);
        EXPECT_EQ(text("Form7", name.constData()), QString()) << line;
    }
}

TEST_F(EndingEntry, NormalEntryShowsWhatATurnHid)
{
    for (const char *screen : {"Form5", "Form6"}) {
        for (const char *control : kHiddenForTurns) {
            this->control(screen, control).hide();
        }
        screens().setText({screen, "Text1"}, u"Any"_s);
        screens().setText({screen, "Combo3"}, u"Heel"_s);
        screens().setText({screen, "Text3"}, u"The Vances"_s);
    }
    control("Form4", "Combo3").hide();
    control("Form4", "Combo12").show();
    press("Form1", "Command3");
    EXPECT_TRUE(control("Form4", "Combo3").isVisible());
    EXPECT_FALSE(control("Form4", "Combo12").isVisible());
    expectNormal("Form5", kSides);
    expectNormal("Form6", kSides);
    press("Form4", "Command2");
    for (const char *control : kHiddenForTurns) {
        EXPECT_TRUE(this->control("Form5", control).isVisible()) << control;
    }
    press("Form5", "Command2");
    for (const char *control : kHiddenForTurns) {
        EXPECT_TRUE(this->control("Form6", control).isVisible()) << control;
    }
}

TEST_F(EndingEntry, ANormalEntryReplacesATypedName)
{
    press("Form1", "Command3");
    press("Form4", "Command2");
    type("Form5", "Text2", u"Rocco Vance"_s);
    press("Form5", "Command1");
    leave();
    press("Form1", "Command3");
    EXPECT_EQ(text("Form5", "Text2"), u"Any"_s);
}

TEST_F(EndingEntry, SettingTheTagListInsertsNothing)
{
    goTo("Form7");
    click(control("Form7", "Text1"));
    press("Form7", "Command2");
    press("Form6", "Command1");
    press("Form5", "Command1");
    leave();
    press("Form1", "Command3");
    EXPECT_EQ(text("Form7", "Text1"), QString());
    EXPECT_EQ(text("Form7", "hiddenlabel"), QString());
}

TEST_F(EndingEntry, EveryControlOfTheEntryTableIsOnItsScreen)
{
    for (const auto &[screen, rows] : endingflow::values()) {
        for (const auto &row : rows) {
            expectOnItsScreen({screen, row.control});
        }
    }
}

/// Whether a control is visible while its screen is.
bool isShown(const QWidget &control)
{
    return control.isVisibleTo(control.window());
}

TEST_F(EndingEntry, EveryRowIsVisibleInItsKindsOnly)
{
    for (const MatchEnding kind : {MatchEnding::Turn, MatchEnding::Normal, MatchEnding::RunIn,
                                   MatchEnding::Turn, MatchEnding::RunIn, MatchEnding::Normal}) {
        SCOPED_TRACE(int(kind));
        endingflow::enter(screens(), kind);
        const bool isNormal = kind == MatchEnding::Normal;
        EXPECT_EQ(isShown(control("Form4", "Combo3")), isNormal);
        EXPECT_EQ(isShown(control("Form4", "Combo12")), !isNormal);
        for (const char *name : {"Label4", "Label5", "Label6", "Label7", "Label8", "Label14",
                                 "Text2", "Combo1", "Combo2", "Combo4", "Combo10"}) {
            EXPECT_TRUE(isShown(control("Form4", name))) << name;
        }
        for (const char *screen : {"Form5", "Form6"}) {
            for (const char *name : kHiddenForTurns) {
                EXPECT_EQ(isShown(control(screen, name)), kind != MatchEnding::Turn) << name;
            }
            for (const char *name : kVisibleForTurns) {
                EXPECT_TRUE(isShown(control(screen, name))) << name;
            }
        }
        screen("Form1").replace(screen("Form4"));
    }
}

} // namespace
} // namespace tarvold::testing
