#include "support/flow_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The flows of match endings: each kind, and all of them in one run of the program.
class EndingFlows : public FlowTest
{
protected:
    void saveWith(const FlowPath &flow, const char *firstLine)
    {
        type(flow.screens.back(), "Text1", QLatin1StringView(firstLine));
        save(flow);
    }

    /// The lines of a file.
    QList<QByteArray> linesOf(const FlowPath &flow)
    {
        QByteArray bytes = bytesOf(QLatin1StringView(flow.file));
        EXPECT_TRUE(bytes.endsWith("\r\n"));
        bytes.chop(2);
        return bytes.replace("\r\n", "\n").split('\n');
    }
};

TEST_F(EndingFlows, ATurnAfterANormalEndingAfterARunIn)
{
    goTo(kRunInPath, "Form5");
    fill("Form5", {{"Text2", u"Rocco Vance"_s},
                   {"Combo3", u"Heel"_s},
                   {"Text1", u"Manny"_s},
                   {"Text3", u"The Vances"_s}});
    press("Form5", "Command2");
    press("Form6", "Command2");
    press("Form8", "Command2");
    saveWith(kRunInPath, "A run-in");
    goToCommentary(kNormalPath);
    saveWith(kNormalPath, "A normal one");
    goToCommentary(kTurnPath);
    saveWith(kTurnPath, "A turn");

    const QList<QByteArray> runIn = linesOf(kRunInPath);
    ASSERT_EQ(runIn.size(), 44);
    EXPECT_EQ(runIn.mid(6, 10), QList<QByteArray>({"Rocco Vance", "Heel", "Any", "Any", "N/A",
                                                   "Manny", "N/A", "N/A", "Any", "The Vances"}));
    const QList<QByteArray> normal = linesOf(kNormalPath);
    ASSERT_EQ(normal.size(), 36);
    EXPECT_EQ(normal.mid(6, 10), QList<QByteArray>({"Any", "Any", "Any", "Any", "N/A", "N/A", "N/A",
                                                    "N/A", "Any", "N/A"}));
    const QList<QByteArray> turn = linesOf(kTurnPath);
    ASSERT_EQ(turn.size(), 33);
    EXPECT_EQ(turn.mid(6, 5), QList<QByteArray>({"Any", "Any", "Any", "N/A", "Any"}));
}

TEST_F(EndingFlows, ARunInAfterATurnStartsWithTheNamesOfTheTurn)
{
    goTo(kTurnPath, "Form5");
    type("Form5", "Text2", u"Dex Vance"_s);
    press("Form5", "Command2");
    press("Form6", "Command2");
    press("Form10", "Command2");
    saveWith(kTurnPath, "A turn");
    goToCommentary(kRunInPath);
    saveWith(kRunInPath, "A run-in");
    const QList<QByteArray> runIn = linesOf(kRunInPath);
    EXPECT_EQ(runIn.at(6), "Dex Vance");
    EXPECT_EQ(runIn.at(11), "N/A");
}

TEST_F(EndingFlows, TheHiddenManagerOfATurnNeverGetsIntoANormalEnding)
{
    goToCommentary(kTurnPath);
    saveWith(kTurnPath, "A turn");
    goToCommentary(kNormalPath);
    saveWith(kNormalPath, "A normal one");
    EXPECT_EQ(linesOf(kNormalPath).at(11), "N/A");
}

TEST_F(EndingFlows, EachKindKeepsItsOwnLastAcceptedTagThatNoEntryClears)
{
    const std::pair<const FlowPath *, const char *> tags[] = {
        {&kNormalPath, "Title Name (eg. XWL Title)"},
        {&kRunInPath, "Interfering Wrestler 1"},
        {&kTurnPath, "Wrestler 2"}};
    for (const auto &[flow, item] : tags) {
        goToCommentary(*flow);
        choose(flow->screens.back(), "Combo1", QLatin1StringView(item));
        goBack(*flow);
    }
    for (const FlowPath *flow : {&kTurnPath, &kNormalPath, &kRunInPath}) {
        press("Form1", flow->button);
        leave(*flow);
    }
    EXPECT_EQ(text("Form7", "hiddenlabel"), u"<titlename>"_s);
    EXPECT_EQ(text("Form9", "hiddenlabel"), u"<feudname1>"_s);
    EXPECT_EQ(text("Form11", "hiddenlabel"), u"<wrestler2>"_s);
}

TEST_F(EndingFlows, ARefusalAfterANewEntryInsertsTheTagOfTheLastEnding)
{
    goToCommentary(kRunInPath);
    choose("Form9", "Combo1", u"Interfering's Finisher Name"_s);
    saveWith(kRunInPath, "The end");
    goToCommentary(kRunInPath);
    type("Form9", "Text1", u"By "_s);
    boxes.expectNotice(u"Tarvold"_s,
                       u"Interfering Team Name can only be used if the feud type is Tag Team."_s);
    choose("Form9", "Combo1", u"Interfering Team Name"_s);
    EXPECT_EQ(text("Form9", "Text1"), u"By <feudfinisher>"_s);
}

TEST_F(EndingFlows, ChoosingAMatchTypeSetsTheFeudTypeInRunInsAndInTurns)
{
    const std::pair<const char *, const char *> choices[] = {{"Tag Team", "Tag Team"},
                                                             {"Singles", "Singles"},
                                                             {"Women's Tag Team", "Tag Team"},
                                                             {"Women's Match", "Singles"}};
    for (const FlowPath *flow : {&kRunInPath, &kTurnPath}) {
        goTo(*flow, "Form4");
        for (const auto &[matchType, feudType] : choices) {
            given("Form8", "Combo3", u"something else"_s);
            choose("Form4", "Combo12", QLatin1StringView(matchType));
            EXPECT_EQ(text("Form8", "Combo3"), QLatin1StringView(feudType)) << flow->button;
        }
        leave(*flow);
    }
}

TEST_F(EndingFlows, TypingAMatchTypeKeepsTheFeudType)
{
    goTo(kRunInPath, "Form4");
    type("Form4", "Combo12", u"Women's Tag Team"_s);
    press("Form4", "Command2");
    EXPECT_EQ(text("Form8", "Combo3"), u"Singles"_s);
}

TEST_F(EndingFlows, ChoosingAMatchTypeShowsNoHelp)
{
    for (const FlowPath *flow : {&kRunInPath, &kTurnPath}) {
        goTo(*flow, "Form4");
        expectActive(screen("Form4"));
        control("Form4", "Combo12").setFocus(Qt::TabFocusReason);
        given("Form4", "Label2", u"what was shown before"_s);
        choose("Form4", "Combo12", u"Women's Match"_s);
        EXPECT_EQ(text("Form4", "Label2"), u"what was shown before"_s);
        leave(*flow);
    }
}

TEST_F(EndingFlows, AnyOtherFlowLabelLeadsToTheTurnScreens)
{
    goTo(kNormalPath, "Form6");
    for (const char *label : {"turns", "", "Normal", "feud", "normal ", "FEUDS"}) {
        given("Form1", "matchreports", QLatin1StringView(label));
        press("Form6", "Command2");
        expectOnly("Form10");
        press("Form10", "Command1");
        expectOnly("Form6");
    }
    given("Form1", "matchreports", u"feuds"_s);
    press("Form6", "Command2");
    expectOnly("Form8");
    press("Form8", "Command1");
    given("Form1", "matchreports", u"normal"_s);
    press("Form6", "Command2");
    expectOnly("Form7");
}

TEST_F(EndingFlows, ASaveClearsNothingOnAnyScreen)
{
    const std::vector<Entry> feud = {
        {"Combo3", u"Tag Team"_s}, {"Text2", u"Rocco Vance,Dex Vance"_s}, {"HScroll1", u"20"_s}};
    const std::vector<Entry> turn = {{"Combo2", u"Turning Heel"_s}, {"Combo6", u"Yes"_s}};
    const std::vector<Entry> criteria = {{"Combo12", u"Women's Match"_s},
                                         {"Text2", u"Ladder Match"_s}};
    const std::vector<Entry> side = {{"Text2", u"Ann"_s}, {"Combo7", u"Pin"_s}};
    for (const FlowPath *flow : {&kRunInPath, &kTurnPath}) {
        const char *own = flow->screens[3];
        const std::vector<Entry> &values = flow == &kRunInPath ? feud : turn;
        press("Form1", flow->button);
        const std::pair<const char *, const std::vector<Entry> &> filled[] = {
            {"Form4", criteria}, {"Form5", side}, {"Form6", side}, {own, values}};
        for (const auto &[screen, entries] : filled) {
            fill(screen, entries);
            press(screen, "Command2");
        }
        saveWith(*flow, "The end.");
        for (const auto &[screen, entries] : filled) {
            expectTexts(screen, entries);
        }
    }
}

TEST_F(EndingFlows, ClosingAWindowAsksAndYesLeadsToTheMainMenu)
{
    for (const FlowPath *flow : {&kRunInPath, &kTurnPath}) {
        for (const char *step : flow->screens) {
            SCOPED_TRACE(step);
            goTo(*flow, step);
            expectReturnQuestion(Answer::No);
            screen(step).close();
            boxes.checkAllCame();
            expectOnly(step);
            expectReturnQuestion(Answer::Yes);
            screen(step).close();
            boxes.checkAllCame();
            expectOnly("Form1");
        }
    }
}

TEST_F(EndingFlows, AnsweringNoKeepsTheFirstScreenWithItsValues)
{
    goTo(kTurnPath, "Form4");
    type("Form4", "Text2", u"Ladder Match"_s);
    expectReturnQuestion(Answer::No);
    press("Form4", "Command1");
    expectOnly("Form4");
    EXPECT_EQ(text("Form4", "Text2"), u"Ladder Match"_s);
}

} // namespace
} // namespace tarvold::testing
