#include "support/flow_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Lines = std::vector<QByteArray>;

/// The record of an ending of which only the first commentary line was typed.
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

    /// Types the first line and saves; returns the bytes of the file.
    QByteArray saved()
    {
        type("Form9", "Text1", u"The end"_s);
        save(kRunInPath);
        return bytesOf(u"feudreports.tvd"_s);
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

TEST_F(RunInRecord, UnchangedFieldsGiveFortyFourLines)
{
    ASSERT_EQ(kUntouched.size(), 44U);
    EXPECT_EQ(saved(), asFile(kUntouched));
}

TEST_F(RunInRecord, EveryFieldIsOnItsOwnLine)
{
    goBack(kRunInPath);
    press("Form1", "Command4");
    fill("Form4", {{"Combo12", u"Women's Tag Team"_s},
                   {"Text2", u"Ladder Match"_s},
                   {"Combo1", u"Yes"_s},
                   {"Combo2", u"No"_s},
                   {"Combo4", u"DQ"_s},
                   {"Combo10", u"Yes"_s}});
    press("Form4", "Command2");
    fill("Form5", {{"Text2", u"Ann,Bea"_s},
                   {"Combo3", u"Face"_s},
                   {"Combo1", u"Cruiserweight"_s},
                   {"Combo2", u"Female"_s},
                   {"Combo4", u"No"_s},
                   {"Text1", u"Mrs Manager"_s},
                   {"Combo5", u"Any"_s},
                   {"Combo6", u"Yes"_s},
                   {"Combo7", u"Pin"_s},
                   {"Text3", u"Stable One"_s}});
    press("Form5", "Command2");
    fill("Form6", {{"Text2", u"Cleo"_s},
                   {"Combo3", u"Heel"_s},
                   {"Combo1", u"Technical"_s},
                   {"Combo2", u"Male"_s},
                   {"Combo4", u"Yes"_s},
                   {"Text1", u"Mr Manager"_s},
                   {"Combo5", u"Male"_s},
                   {"Combo6", u"No"_s},
                   {"Combo7", u"Submission"_s},
                   {"Text3", u"Stable Two"_s}});
    press("Form6", "Command2");
    fill("Form8", {{"Combo5", u"Yes"_s},
                   {"Combo3", u"Tag Team"_s},
                   {"Text2", u"Rocco Vance,Dex Vance"_s},
                   {"Combo1", u"Heel"_s},
                   {"Combo2", u"Non-Worker"_s},
                   {"Combo7", u"Top Rope"_s},
                   {"Combo4", u"Winners"_s},
                   {"HScroll1", u"55"_s}});
    press("Form8", "Command2");
    for (int line = 1; line <= 10; ++line) {
        const QByteArray box = "Text" + QByteArray::number(line);
        type("Form9", box.constData(), u"Line %1"_s.arg(line));
    }
    click(control("Form9", "Text2"));
    choose("Form9", "Combo1", u"Interfering Team Name"_s);
    save(kRunInPath);
    EXPECT_EQ(bytesOf(u"feudreports.tvd"_s), asFile({"Women's Tag Team",
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
    given("Form5", "Combo7", u"Submission"_s);
    given("Form6", "Combo7", u"Top Rope"_s);
    given("Form8", "Combo7", u"Pin"_s);
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

TEST_F(RunInRecord, AFinisherTypeInLowerCaseWritesNoLine)
{
    press("Form9", "Command2");
    type("Form8", "Combo7", u"pin"_s);
    press("Form8", "Command2");
    Lines lines = kUntouched;
    lines.erase(lines.begin() + 31);
    ASSERT_EQ(lines.size(), 43U);
    EXPECT_EQ(saved(), asFile(lines));
}

TEST_F(RunInRecord, ThreeUnknownFinisherTypesWriteThreeLinesLess)
{
    given("Form5", "Combo7", u"any"_s);
    given("Form6", "Combo7", QString());
    given("Form8", "Combo7", u"Top Rope "_s);
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

TEST_F(RunInRecord, TwoInterferersAreOnOneLineAsTyped)
{
    press("Form9", "Command2");
    type("Form8", "Text2", u"Rocco Vance, Dex Vance"_s);
    press("Form8", "Command2");
    EXPECT_EQ(saved(), asFile(with({{29, "Rocco Vance, Dex Vance"}})));
}

TEST_F(RunInRecord, AnEmptyInterferersNameIsAny)
{
    press("Form9", "Command2");
    type("Form8", "Text2", {});
    press("Form8", "Command2");
    EXPECT_EQ(saved(), asFile(kUntouched));
}

TEST_F(RunInRecord, EmptyLinesAreBlankAndLinesOfSpacesAreNot)
{
    type("Form9", "Text4", u"Fourth"_s);
    type("Form9", "Text7", u"  "_s);
    EXPECT_EQ(saved(), asFile(with({{38, "Fourth"}, {41, "  "}})));
}

TEST_F(RunInRecord, TypedValuesAreWrittenAsShown)
{
    given("Form4", "Combo12", u"Cage fight"_s);
    given("Form8", "Combo5", u"no"_s);
    given("Form8", "Combo4", u" Both "_s);
    EXPECT_EQ(saved(), asFile(with({{1, "Cage fight"}, {27, "no"}, {33, " Both "}})));
}

TEST_F(RunInRecord, TheLongMatchTypeListIsNotWritten)
{
    given("Form4", "Combo3", u"Battle Royal"_s);
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
