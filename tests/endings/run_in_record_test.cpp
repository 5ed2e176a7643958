#include "support/flow_test.h"

namespace tarvold::testing {
namespace {

using Lines = std::vector<QByteArray>;

/// The record of an ending in which only the first commentary line was written.
const Lines kUntouched = {
    "Singles", "Any",     "N/A",     "N/A",     "Normal",  "N/A",     "Any",     "Any",
    "Any",     "Any",     "N/A",     "N/A",     "N/A",     "N/A",     "Any",     "N/A",
    "Any",     "Any",     "Any",     "Any",     "N/A",     "N/A",     "N/A",     "N/A",
    "Any",     "N/A",     "N/A",     "Singles", "Any",     "Any",     "Any",     "Any",
    "Losers",  "10",      "The end", "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-",
    "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-"};

class RunInRecord : public FlowTest
{
protected:
    RunInRecord() { goToCommentary(kRunInPath); }

    /// Writes the first line and saves; gives the bytes of the file.
    QByteArray saved()
    {
        type("Form9", "Text1", QStringLiteral("The end"));
        save(kRunInPath);
        return bytesOf(QStringLiteral("feudreports.tvd"));
    }

    static Lines with(std::initializer_list<std::pair<int, const char *>> changes)
    {
        Lines lines = kUntouched;
        for (const auto &[number, line] : changes) {
            lines.at(std::size_t(number - 1)) = line;
        }
        return lines;
    }
};

TEST_F(RunInRecord, UntouchedValuesGiveFortyFourLines)
{
    ASSERT_EQ(kUntouched.size(), 44U);
    EXPECT_EQ(saved(), asFile(kUntouched));
}

TEST_F(RunInRecord, EveryFieldStandsOnItsOwnLine)
{
    goBack(kRunInPath);
    press("Form1", "Command4");
    fill("Form4", {{"Combo12", QStringLiteral("Women's Tag Team")},
                   {"Text2", QStringLiteral("Ladder Match")},
                   {"Combo1", QStringLiteral("Yes")},
                   {"Combo2", QStringLiteral("No")},
                   {"Combo4", QStringLiteral("DQ")},
                   {"Combo10", QStringLiteral("Yes")}});
    press("Form4", "Command2");
    fill("Form5", {{"Text2", QStringLiteral("Ann,Bea")},
                   {"Combo3", QStringLiteral("Face")},
                   {"Combo1", QStringLiteral("Cruiserweight")},
                   {"Combo2", QStringLiteral("Female")},
                   {"Combo4", QStringLiteral("No")},
                   {"Text1", QStringLiteral("Mrs Manager")},
                   {"Combo5", QStringLiteral("Any")},
                   {"Combo6", QStringLiteral("Yes")},
                   {"Combo7", QStringLiteral("Pin")},
                   {"Text3", QStringLiteral("Stable One")}});
    press("Form5", "Command2");
    fill("Form6", {{"Text2", QStringLiteral("Cleo")},
                   {"Combo3", QStringLiteral("Heel")},
                   {"Combo1", QStringLiteral("Technical")},
                   {"Combo2", QStringLiteral("Male")},
                   {"Combo4", QStringLiteral("Yes")},
                   {"Text1", QStringLiteral("Mr Manager")},
                   {"Combo5", QStringLiteral("Male")},
                   {"Combo6", QStringLiteral("No")},
                   {"Combo7", QStringLiteral("Submission")},
                   {"Text3", QStringLiteral("Stable Two")}});
    press("Form6", "Command2");
    fill("Form8", {{"Combo5", QStringLiteral("Yes")},
                   {"Combo3", QStringLiteral("Tag Team")},
                   {"Text2", QStringLiteral("Rocco Vance,Dex Vance")},
                   {"Combo1", QStringLiteral("Heel")},
                   {"Combo2", QStringLiteral("Non-Worker")},
                   {"Combo7", QStringLiteral("Top Rope")},
                   {"Combo4", QStringLiteral("Winners")},
                   {"HScroll1", QStringLiteral("55")}});
    press("Form8", "Command2");
    for (int line = 1; line <= 10; ++line) {
        const QByteArray box = "Text" + QByteArray::number(line);
        type("Form9", box.constData(), QStringLiteral("Line %1").arg(line));
    }
    click(control("Form9", "Text2"));
    choose("Form9", "Combo1", QStringLiteral("Interfering Team Name"));
    save(kRunInPath);
    EXPECT_EQ(bytesOf(QStringLiteral("feudreports.tvd")), asFile({"Women's Tag Team",
                                                                  "Ladder Match",
                                                                  "Yes",
                                                                  "No",
                                                                  "DQ",
                                                                  "Yes", //
                                                                  "Ann,Bea",
                                                                  "Face",
                                                                  "Cruiserweight",
                                                                  "Female",
                                                                  "No",
                                                                  "Mrs Manager",
                                                                  "Any",
                                                                  "Yes",
                                                                  "p",
                                                                  "Stable One", //
                                                                  "Cleo",
                                                                  "Heel",
                                                                  "Technical",
                                                                  "Male",
                                                                  "Yes",
                                                                  "Mr Manager",
                                                                  "Male",
                                                                  "No",
                                                                  "s",
                                                                  "Stable Two", //
                                                                  "Yes",
                                                                  "Tag Team",
                                                                  "Rocco Vance,Dex Vance",
                                                                  "Heel",
                                                                  "Non-Worker",
                                                                  "t",
                                                                  "Winners",
                                                                  "55", //
                                                                  "Line 1",
                                                                  "Line 2<feudteam>",
                                                                  "Line 3",
                                                                  "Line 4",
                                                                  "Line 5",
                                                                  "Line 6",
                                                                  "Line 7",
                                                                  "Line 8",
                                                                  "Line 9",
                                                                  "Line 10"}));
}

TEST_F(RunInRecord, FinisherTypesAreCoded)
{
    given("Form5", "Combo7", QStringLiteral("Submission"));
    given("Form6", "Combo7", QStringLiteral("Top Rope"));
    given("Form8", "Combo7", QStringLiteral("Pin"));
    EXPECT_EQ(saved(), asFile(with({{15, "s"}, {25, "t"}, {32, "p"}})));
}

TEST_F(RunInRecord, HasFortyFourLinesWithEveryFinisherTypeOfTheList)
{
    const std::pair<const char *, const char *> codes[] = {
        {"Any", "Any"}, {"Pin", "p"}, {"Submission", "s"}, {"Top Rope", "t"}};
    QByteArray expected;
    for (const auto &[shown, code] : codes) {
        for (const char *screen : {"Form5", "Form6", "Form8"}) {
            given(screen, "Combo7", QLatin1StringView(shown));
        }
        expected += asFile(with({{15, code}, {25, code}, {32, code}}));
        EXPECT_EQ(saved(), expected);
        goToCommentary(kRunInPath);
    }
}

TEST_F(RunInRecord, AFinisherTypeInLowerCaseGivesNoLine)
{
    press("Form9", "Command2");
    type("Form8", "Combo7", QStringLiteral("pin"));
    press("Form8", "Command2");
    Lines lines = kUntouched;
    lines.erase(lines.begin() + 31);
    ASSERT_EQ(lines.size(), 43U);
    EXPECT_EQ(saved(), asFile(lines));
}

TEST_F(RunInRecord, ThreeUnknownFinisherTypesGiveThreeLinesLess)
{
    given("Form5", "Combo7", QStringLiteral("any"));
    given("Form6", "Combo7", QString());
    given("Form8", "Combo7", QStringLiteral("Top Rope "));
    Lines lines = kUntouched;
    lines.erase(lines.begin() + 31);
    lines.erase(lines.begin() + 24);
    lines.erase(lines.begin() + 14);
    EXPECT_EQ(saved(), asFile(lines));
}

TEST_F(RunInRecord, TheHeatIsWrittenInPlainDigits)
{
    QByteArray expected;
    for (const char *heat : {"100", "1", "55"}) {
        press("Form9", "Command2");
        fill("Form8", {{"HScroll1", QLatin1StringView(heat)}});
        EXPECT_EQ(text("Form8", "Label8"), u' ' + QString(QLatin1StringView(heat)) + u'%');
        press("Form8", "Command2");
        expected += asFile(with({{34, heat}}));
        EXPECT_EQ(saved(), expected);
        goToCommentary(kRunInPath);
    }
}

TEST_F(RunInRecord, TwoInterferersStandOnOneLineAsTyped)
{
    press("Form9", "Command2");
    type("Form8", "Text2", QStringLiteral("Rocco Vance, Dex Vance"));
    press("Form8", "Command2");
    EXPECT_EQ(saved(), asFile(with({{29, "Rocco Vance, Dex Vance"}})));
}

TEST_F(RunInRecord, AnInterferersNameLeftEmptyIsAny)
{
    press("Form9", "Command2");
    type("Form8", "Text2", {});
    press("Form8", "Command2");
    EXPECT_EQ(saved(), asFile(kUntouched));
}

TEST_F(RunInRecord, EmptyLinesAreBlankAndLinesOfSpacesAreNot)
{
    type("Form9", "Text4", QStringLiteral("Fourth"));
    type("Form9", "Text7", QStringLiteral("  "));
    EXPECT_EQ(saved(), asFile(with({{38, "Fourth"}, {41, "  "}})));
}

TEST_F(RunInRecord, ValuesOfTheAuthorsOwnAreWrittenAsShown)
{
    given("Form4", "Combo12", QStringLiteral("Cage fight"));
    given("Form8", "Combo5", QStringLiteral("no"));
    given("Form8", "Combo4", QStringLiteral(" Both "));
    EXPECT_EQ(saved(), asFile(with({{1, "Cage fight"}, {27, "no"}, {33, " Both "}})));
}

TEST_F(RunInRecord, TheLongMatchTypeListHasNoPartInIt)
{
    given("Form4", "Combo3", QStringLiteral("Battle Royal"));
    EXPECT_EQ(saved(), asFile(kUntouched));
}

TEST_F(RunInRecord, TwoSavesAppendTwoRecords)
{
    EXPECT_EQ(saved(), asFile(kUntouched));
    goToCommentary(kRunInPath);
    EXPECT_EQ(saved(), asFile(kUntouched).repeated(2));
}

} // namespace
} // namespace tarvold::testing
