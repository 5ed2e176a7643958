#include "support/flow_test.h"

namespace tarvold::testing {
namespace {

using Lines = std::vector<QByteArray>;

/// The record of an ending in which only the first commentary line was written.
const Lines kUntouched = {"Singles", "Any",     "N/A",          "N/A",     "Normal",  "N/A",
                          "Any",     "Any",     "Any",          "N/A",     "Any",     "Any",
                          "Any",     "Any",     "N/A",          "Any",     "N/A",     "N/A",
                          "N/A",     "N/A",     "Winning Side", "N/A",     "N/A",     "The end",
                          "-BLANK-", "-BLANK-", "-BLANK-",      "-BLANK-", "-BLANK-", "-BLANK-",
                          "-BLANK-", "-BLANK-", "-BLANK-"};

class TurnRecord : public FlowTest
{
protected:
    TurnRecord() { goToCommentary(kTurnPath); }

    /// Writes the first line and saves; gives the bytes of the file.
    QByteArray saved(const char *firstLine = "The end")
    {
        type("Form11", "Text1", QLatin1StringView(firstLine));
        save(kTurnPath);
        return bytesOf(QStringLiteral("turnreports.tvd"));
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

TEST_F(TurnRecord, UntouchedValuesGiveThirtyThreeLinesWithNineBlankOnes)
{
    ASSERT_EQ(kUntouched.size(), 33U);
    EXPECT_EQ(saved(), asFile(kUntouched));
}

TEST_F(TurnRecord, EveryFieldStandsOnItsOwnLine)
{
    goBack(kTurnPath);
    press("Form1", "Command5");
    fill("Form4", {{"Combo12", QStringLiteral("Tag Team")},
                   {"Text2", QStringLiteral("Cage Match")},
                   {"Combo1", QStringLiteral("No")},
                   {"Combo2", QStringLiteral("Yes")},
                   {"Combo4", QStringLiteral("DQ")},
                   {"Combo10", QStringLiteral("No")}});
    press("Form4", "Command2");
    fill("Form5", {{"Text2", QStringLiteral("Ann,Bea")},
                   {"Combo1", QStringLiteral("Old Heavyweight")},
                   {"Combo2", QStringLiteral("Female")},
                   {"Combo4", QStringLiteral("Yes")},
                   {"Combo7", QStringLiteral("Top Rope")}});
    press("Form5", "Command2");
    fill("Form6", {{"Text2", QStringLiteral("Cleo")},
                   {"Combo1", QStringLiteral("Hardcore")},
                   {"Combo2", QStringLiteral("Male")},
                   {"Combo4", QStringLiteral("No")},
                   {"Combo7", QStringLiteral("Pin")}});
    press("Form6", "Command2");
    fill("Form10", {{"Combo1", QStringLiteral("Face")},
                    {"Combo2", QStringLiteral("Heel")},
                    {"Combo3", QStringLiteral("Turning Face")},
                    {"Combo4", QStringLiteral("Turning Heel")},
                    {"Combo5", QStringLiteral("Losing Side")},
                    {"Combo6", QStringLiteral("Yes")},
                    {"Combo7", QStringLiteral("No")}});
    press("Form10", "Command2");
    for (int line = 1; line <= 10; ++line) {
        const QByteArray box = "Text" + QByteArray::number(line);
        type("Form11", box.constData(), QStringLiteral("Line %1").arg(line));
    }
    choose("Form11", "Combo1", QStringLiteral("Wrestler 4"));
    save(kTurnPath);
    EXPECT_EQ(bytesOf(QStringLiteral("turnreports.tvd")), asFile({"Tag Team",
                                                                  "Cage Match",
                                                                  "No",
                                                                  "Yes",
                                                                  "DQ",
                                                                  "No", //
                                                                  "Ann,Bea",
                                                                  "Old Heavyweight",
                                                                  "Female",
                                                                  "Yes",
                                                                  "t", //
                                                                  "Cleo",
                                                                  "Hardcore",
                                                                  "Male",
                                                                  "No",
                                                                  "p", //
                                                                  "Face",
                                                                  "Heel",
                                                                  "Turning Face",
                                                                  "Turning Heel", //
                                                                  "Losing Side",
                                                                  "Yes",
                                                                  "No", //
                                                                  "Line 1",
                                                                  "Line 2",
                                                                  "Line 3",
                                                                  "Line 4",
                                                                  "Line 5", //
                                                                  "Line 6",
                                                                  "Line 7",
                                                                  "Line 8",
                                                                  "Line 9",
                                                                  "Line 10<wrestler4>"}));
}

TEST_F(TurnRecord, FinisherTypesAreCoded)
{
    given("Form5", "Combo7", QStringLiteral("Submission"));
    given("Form6", "Combo7", QStringLiteral("Top Rope"));
    EXPECT_EQ(saved(), asFile(with({{11, "s"}, {16, "t"}})));
}

TEST_F(TurnRecord, AFinisherTypeOutsideTheListGivesNoLine)
{
    goBack(kTurnPath);
    goTo(kTurnPath, "Form5");
    type("Form5", "Combo7", QStringLiteral("submission"));
    press("Form5", "Command2");
    press("Form6", "Command2");
    press("Form10", "Command2");
    Lines lines = kUntouched;
    lines.erase(lines.begin() + 10);
    EXPECT_EQ(saved(), asFile(lines));
}

TEST_F(TurnRecord, TheReceiversFinisherTypeOutsideTheListGivesNoLineEither)
{
    given("Form6", "Combo7", QStringLiteral("Moonsault"));
    Lines lines = kUntouched;
    lines.erase(lines.begin() + 15);
    EXPECT_EQ(saved(), asFile(lines));
}

TEST_F(TurnRecord, AFirstLineOfOneSpaceIsWrittenAsOneSpace)
{
    EXPECT_EQ(saved(" "), asFile(with({{24, " "}})));
}

TEST_F(TurnRecord, LinesOfSpacesAreKept)
{
    type("Form11", "Text10", QStringLiteral("   "));
    EXPECT_EQ(saved("<wrestler1> turns"), asFile(with({{24, "<wrestler1> turns"}, {33, "   "}})));
}

TEST_F(TurnRecord, TwoSavesOfTheSameScreensAppendTwoIdenticalRecords)
{
    EXPECT_EQ(saved(), asFile(kUntouched));
    goToCommentary(kTurnPath);
    EXPECT_EQ(saved(), asFile(kUntouched).repeated(2));
}

TEST_F(TurnRecord, WhatATurnHidesIsLeftOut)
{
    for (const char *screen : {"Form5", "Form6"}) {
        for (const char *hidden : {"Combo3", "Text1", "Combo5", "Combo6", "Text3"}) {
            given(screen, hidden, QStringLiteral("never written"));
        }
    }
    EXPECT_EQ(saved(), asFile(kUntouched));
}

} // namespace
} // namespace tarvold::testing
