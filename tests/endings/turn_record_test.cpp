#include "support/flow_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Lines = std::vector<QByteArray>;

/// The record of an ending of which only the first commentary line was typed.
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

    /// Types the first line and saves; returns the bytes of the file.
    QByteArray saved(const char *firstLine = "The end")
    {
        type("Form11", "Text1", QLatin1StringView(firstLine));
        save(kTurnPath);
        return bytesOf(u"turnreports.tvd"_s);
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

TEST_F(TurnRecord, UnchangedFieldsGiveThirtyThreeLinesOfWhichNineAreBlank)
{
    ASSERT_EQ(kUntouched.size(), 33U);
    EXPECT_EQ(saved(), asFile(kUntouched));
}

TEST_F(TurnRecord, EveryFieldIsOnItsOwnLine)
{
    goBack(kTurnPath);
    press("Form1", "Command5");
    fill("Form4", {{"Combo12", u"Tag Team"_s},
                   {"Text2", u"Cage Match"_s},
                   {"Combo1", u"No"_s},
                   {"Combo2", u"Yes"_s},
                   {"Combo4", u"DQ"_s},
                   {"Combo10", u"No"_s}});
    press("Form4", "Command2");
    fill("Form5", {{"Text2", u"Ann,Bea"_s},
                   {"Combo1", u"Old Heavyweight"_s},
                   {"Combo2", u"Female"_s},
                   {"Combo4", u"Yes"_s},
                   {"Combo7", u"Top Rope"_s}});
    press("Form5", "Command2");
    fill("Form6", {{"Text2", u"Cleo"_s},
                   {"Combo1", u"Hardcore"_s},
                   {"Combo2", u"Male"_s},
                   {"Combo4", u"No"_s},
                   {"Combo7", u"Pin"_s}});
    press("Form6", "Command2");
    fill("Form10", {{"Combo1", u"Face"_s},
                    {"Combo2", u"Heel"_s},
                    {"Combo3", u"Turning Face"_s},
                    {"Combo4", u"Turning Heel"_s},
                    {"Combo5", u"Losing Side"_s},
                    {"Combo6", u"Yes"_s},
                    {"Combo7", u"No"_s}});
    press("Form10", "Command2");
    for (int line = 1; line <= 10; ++line) {
        const QByteArray box = "Text" + QByteArray::number(line);
        type("Form11", box.constData(), u"Line %1"_s.arg(line));
    }
    choose("Form11", "Combo1", u"Wrestler 4"_s);
    save(kTurnPath);
    EXPECT_EQ(bytesOf(u"turnreports.tvd"_s), asFile({"Tag Team",
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
    given("Form5", "Combo7", u"Submission"_s);
    given("Form6", "Combo7", u"Top Rope"_s);
    EXPECT_EQ(saved(), asFile(with({{11, "s"}, {16, "t"}})));
}

TEST_F(TurnRecord, AFinisherTypeOutsideTheListWritesNoLine)
{
    goBack(kTurnPath);
    goTo(kTurnPath, "Form5");
    type("Form5", "Combo7", u"submission"_s);
    press("Form5", "Command2");
    press("Form6", "Command2");
    press("Form10", "Command2");
    Lines lines = kUntouched;
    lines.erase(lines.begin() + 10);
    EXPECT_EQ(saved(), asFile(lines));
}

TEST_F(TurnRecord, AReceiverFinisherTypeOutsideTheListWritesNoLineEither)
{
    given("Form6", "Combo7", u"Moonsault"_s);
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
    type("Form11", "Text10", u"   "_s);
    EXPECT_EQ(saved("<wrestler1> turns"), asFile(with({{24, "<wrestler1> turns"}, {33, "   "}})));
}

TEST_F(TurnRecord, TwoSavesOfTheSameScreensAppendTwoIdenticalRecords)
{
    EXPECT_EQ(saved(), asFile(kUntouched));
    goToCommentary(kTurnPath);
    EXPECT_EQ(saved(), asFile(kUntouched).repeated(2));
}

TEST_F(TurnRecord, WhatATurnHidesIsNotWritten)
{
    for (const char *screen : {"Form5", "Form6"}) {
        for (const char *hidden : {"Combo3", "Text1", "Combo5", "Combo6", "Text3"}) {
            given(screen, hidden, u"never written"_s);
        }
    }
    EXPECT_EQ(saved(), asFile(kUntouched));
}

} // namespace
} // namespace tarvold::testing
