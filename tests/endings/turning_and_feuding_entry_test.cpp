#include "support/flow_test.h"

#include <array>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The control keeps its text.
constexpr const char *kKept = nullptr;

/// The text of a control after the buttons for run-ins and for turns.
struct EnteredRow
{
    const char *control;
    std::array<const char *, 2> values; ///< run-ins, turns
};

struct EnteredScreen
{
    const char *screen;
    std::vector<EnteredRow> rows;
};

// clang-format off
const std::vector<EnteredRow> kEnteredSides = {
    {"Text1",  {"N/A", "Any"}},
    {"Text2",  {kKept, kKept}},
    {"Combo3", {"Any", kKept}},
    {"Combo1", {"Any", "Any"}},
    {"Combo2", {"Any", "Any"}},
    {"Combo4", {"N/A", "N/A"}},
    {"Combo5", {"N/A", kKept}},
    {"Combo6", {"N/A", kKept}},
    {"Combo7", {"Any", "Any"}},
    {"Text3",  {"N/A", kKept}},
};

const std::vector<EnteredScreen> kScreens = {
    {"Form1", {{"matchreports", {"feuds", "turns"}},
               {"Text4", {kKept, kKept}},
               {"Text5", {kKept, kKept}}}},
    {"Form4", {{"Combo3",  {kKept,     kKept}},
               {"Combo12", {"Singles", "Singles"}},
               {"Combo1",  {"N/A",     "N/A"}},
               {"Combo2",  {"N/A",     "N/A"}},
               {"Combo4",  {"Normal",  "Normal"}},
               {"Combo10", {"N/A",     "N/A"}},
               {"Text2",   {"Any",     "Any"}},
               {"matchreports", {kKept, kKept}}}},
    {"Form5", kEnteredSides},
    {"Form6", kEnteredSides},
    {"Form8", {{"Combo3",   {"Singles", kKept}},
               {"Text2",    {"Any",     kKept}},
               {"Combo1",   {"Any",     kKept}},
               {"Combo2",   {"Any",     kKept}},
               {"Combo7",   {"Any",     kKept}},
               {"Combo4",   {"Losers",  kKept}},
               {"HScroll1", {"10",      kKept}},
               {"Label8",   {"10%",     kKept}},
               {"Combo5",   {"N/A",     kKept}}}},
    {"Form10", {{"Combo1", {kKept, "N/A"}},
                {"Combo2", {kKept, "N/A"}},
                {"Combo3", {kKept, "N/A"}},
                {"Combo4", {kKept, "N/A"}},
                {"Combo5", {kKept, "Winning Side"}},
                {"Combo6", {kKept, "N/A"}},
                {"Combo7", {kKept, "N/A"}}}},
    {"Form7",  {{"Combo1", {kKept, kKept}}, {"hiddenlabel", {kKept, kKept}},
                {"Text1",  {kKept, kKept}}, {"Text2",  {kKept, kKept}}, {"Text10", {kKept, kKept}}}},
    {"Form9",  {{"Combo1", {"Attacker 1 Full Name", kKept}}, {"hiddenlabel", {kKept, kKept}},
                {"Text1",  {"", kKept}}, {"Text2",  {"", kKept}}, {"Text3", {"", kKept}},
                {"Text4",  {"", kKept}}, {"Text5",  {"", kKept}}, {"Text6", {"", kKept}},
                {"Text7",  {"", kKept}}, {"Text8",  {"", kKept}}, {"Text9", {"", kKept}},
                {"Text10", {"", kKept}}}},
    {"Form11", {{"Combo1", {kKept, "Attacker 1 Full Name"}}, {"hiddenlabel", {kKept, kKept}},
                {"Text1",  {kKept, ""}}, {"Text2",  {kKept, ""}}, {"Text3", {kKept, ""}},
                {"Text4",  {kKept, ""}}, {"Text5",  {kKept, ""}}, {"Text6", {kKept, ""}},
                {"Text7",  {kKept, ""}}, {"Text8",  {kKept, ""}}, {"Text9", {kKept, ""}},
                {"Text10", {kKept, ""}}}},
};
// clang-format on

/// Rows of the attacker and the receiver screen that are hidden for turns.
constexpr const char *kHiddenForTurns[] = {"Label4", "Combo3", "Label7", "Text1",   "Label8",
                                           "Combo5", "Label9", "Combo6", "Label11", "Text3"};

class TurningAndFeudingEntry : public FlowTest
{
protected:
    /// Sets a different value in every control of every screen.
    static QString changed(const char *screen, const char *control)
    {
        return qstrcmp(control, "HScroll1") == 0
                   ? u"77"_s
                   : QLatin1StringView(screen) + u'.' + QLatin1StringView(control);
    }

    void changeEverything()
    {
        for (const EnteredScreen &entered : kScreens) {
            for (const EnteredRow &row : entered.rows) {
                given(entered.screen, row.control, changed(entered.screen, row.control));
            }
        }
    }

    void expectEntered(std::size_t kind)
    {
        for (const EnteredScreen &entered : kScreens) {
            for (const EnteredRow &row : entered.rows) {
                const char *value = row.values.at(kind);
                EXPECT_EQ(text(entered.screen, row.control),
                          value != kKept ? QString(QLatin1StringView(value))
                                         : changed(entered.screen, row.control))
                    << entered.screen << ' ' << row.control;
            }
        }
    }

    void expectRowsShown(const char *screen, bool shown)
    {
        for (const char *control : kHiddenForTurns) {
            EXPECT_EQ(this->control(screen, control).isVisible(), shown)
                << screen << ' ' << control;
        }
    }

    /// Goes through the first screens of a flow that has just started.
    void expectShownOnTheWay(bool longList, bool rows)
    {
        EXPECT_EQ(control("Form4", "Combo3").isVisible(), longList);
        EXPECT_EQ(control("Form4", "Combo12").isVisible(), !longList);
        press("Form4", "Command2");
        expectRowsShown("Form5", rows);
        press("Form5", "Command2");
        expectRowsShown("Form6", rows);
        press("Form6", "Command1");
        press("Form5", "Command1");
    }
};

TEST_F(TurningAndFeudingEntry, ARunInKeepsAndResetsExactlyWhatItShould)
{
    changeEverything();
    press("Form1", "Command4");
    expectOnly("Form4");
    expectEntered(0);
}

TEST_F(TurningAndFeudingEntry, ATurnKeepsAndResetsExactlyWhatItShould)
{
    changeEverything();
    press("Form1", "Command5");
    expectOnly("Form4");
    expectEntered(1);
}

TEST_F(TurningAndFeudingEntry, NamesAreKeptForRunInsAndResetByANormalEnding)
{
    goTo(kRunInPath, "Form5");
    type("Form5", "Text2", u"Rocco Vance"_s);
    press("Form5", "Command2");
    type("Form6", "Text2", u"Dex Vance"_s);
    press("Form6", "Command1");
    press("Form5", "Command1");
    leave(kRunInPath);
    goTo(kRunInPath, "Form6");
    EXPECT_EQ(text("Form5", "Text2"), u"Rocco Vance"_s);
    EXPECT_EQ(text("Form6", "Text2"), u"Dex Vance"_s);
    press("Form6", "Command1");
    press("Form5", "Command1");
    leave(kRunInPath);
    goTo(kNormalPath, "Form6");
    EXPECT_EQ(text("Form5", "Text2"), u"Any"_s);
    EXPECT_EQ(text("Form6", "Text2"), u"Any"_s);
}

TEST_F(TurningAndFeudingEntry, NamesAreKeptForTurns)
{
    goTo(kTurnPath, "Form5");
    type("Form5", "Text2", u"Rocco Vance"_s);
    press("Form5", "Command1");
    leave(kTurnPath);
    goTo(kTurnPath, "Form5");
    EXPECT_EQ(text("Form5", "Text2"), u"Rocco Vance"_s);
}

TEST_F(TurningAndFeudingEntry, ATurnLeavesAnyInTheHiddenManagerBoxes)
{
    goTo(kTurnPath, "Form6");
    for (const char *screen : {"Form5", "Form6"}) {
        EXPECT_EQ(text(screen, "Text1"), u"Any"_s);
        EXPECT_FALSE(control(screen, "Text1").isVisible());
    }
}

TEST_F(TurningAndFeudingEntry, NextFillsTheHiddenBoxesOfATurnToo)
{
    goTo(kTurnPath, "Form5");
    given("Form5", "Text1", {});
    given("Form5", "Text3", {});
    given("Form5", "Combo5", u"Female"_s);
    press("Form5", "Command2");
    expectTexts("Form5", {{"Text1", u"N/A"_s}, {"Text3", u"N/A"_s}, {"Combo5", u"N/A"_s}});
}

TEST_F(TurningAndFeudingEntry, RowsAreHiddenForATurnAndShownAgain)
{
    press("Form1", "Command4");
    expectShownOnTheWay(false, true);
    leave(kRunInPath);
    press("Form1", "Command5");
    expectShownOnTheWay(false, false);
    leave(kTurnPath);
    press("Form1", "Command4");
    expectShownOnTheWay(false, true);
    leave(kRunInPath);
    press("Form1", "Command5");
    leave(kTurnPath);
    press("Form1", "Command3");
    expectShownOnTheWay(true, true);
}

TEST_F(TurningAndFeudingEntry, ANormalEndingAfterATurnResetsTheRowsThatWereHidden)
{
    goTo(kTurnPath, "Form4");
    for (const char *control : {"Combo3", "Combo5", "Combo6", "Text3", "Text1"}) {
        given("Form5", control, u"changed"_s);
    }
    leave(kTurnPath);
    goTo(kNormalPath, "Form5");
    expectRowsShown("Form5", true);
    expectTexts("Form5", {{"Combo3", u"Any"_s},
                          {"Combo5", u"N/A"_s},
                          {"Combo6", u"N/A"_s},
                          {"Text3", u"N/A"_s},
                          {"Text1", u"N/A"_s}});
}

} // namespace
} // namespace tarvold::testing
