#include "support/flow_test.h"

namespace tarvold::testing {
namespace {

using Lines = std::vector<QByteArray>;

/// The details followed by ten commentary lines of which only the first was written.
Lines withFirstLine(Lines details)
{
    details.emplace_back("The end");
    details.insert(details.end(), 9, "-BLANK-");
    return details;
}

const Lines kUntouchedInterview =
    withFirstLine({"Singles", "N/A", "N/A", "Any", "Any", "Any", "Any", "Any", "10"});
const Lines kUntouchedTalkShow =
    withFirstLine({"Any", "Any", "Any", "Any", "Any", "Any", "Any", "Any", "10"});

class SegmentRecords : public FlowTest
{
protected:
    /// Starts the flow and fills in its details.
    void begin(const FlowPath &flow, const std::vector<Entry> &details)
    {
        press("Form1", flow.button);
        fill(flow.screens.front(), details);
        press(flow.screens.front(), "Command2");
    }

    /// Writes the first line and saves; gives the bytes of the file.
    QByteArray saved(const FlowPath &flow)
    {
        type(flow.screens.back(), "Text1", QStringLiteral("The end"));
        save(flow);
        return bytesOf(QLatin1StringView(flow.file));
    }

    void typeAllLines(const char *screen)
    {
        for (int line = 1; line <= 10; ++line) {
            const QByteArray box = "Text" + QByteArray::number(line);
            type(screen, box.constData(), QStringLiteral("Line %1").arg(line));
        }
    }
};

TEST_F(SegmentRecords, AnUntouchedInterviewGivesNineteenLinesWithNineBlankOnes)
{
    ASSERT_EQ(kUntouchedInterview.size(), 19U);
    begin(kInterviewPath, {});
    EXPECT_EQ(saved(kInterviewPath), asFile(kUntouchedInterview));
}

TEST_F(SegmentRecords, AnInterviewPutsSideOneFirstAlthoughItsControlsAreNumberedTheOtherWay)
{
    begin(kInterviewPath, {{"Combo3", QStringLiteral("Tag Team")},
                           {"Combo1", QStringLiteral("Yes")},
                           {"Combo2", QStringLiteral("No")},
                           {"Combo7", QStringLiteral("Face")},
                           {"Combo6", QStringLiteral("Heel")},
                           {"Text2", QStringLiteral("One,First")},
                           {"Text1", QStringLiteral("Two,Second")},
                           {"Combo4", QStringLiteral("Female")},
                           {"HScroll1", QStringLiteral("100")}});
    typeAllLines("Form13");
    choose("Form13", "Combo1", QStringLiteral("Town Name"));
    save(kInterviewPath);
    EXPECT_EQ(bytesOf(QStringLiteral("interviews.tvd")),
              asFile({"Tag Team", "Yes", "No", "Face", "Heel", "One,First", "Two,Second", "Female",
                      "100", "Line 1", "Line 2", "Line 3", "Line 4", "Line 5", "Line 6", "Line 7",
                      "Line 8", "Line 9", "Line 10<town>"}));
}

TEST_F(SegmentRecords, AnInterviewWithTheOtherValues)
{
    begin(kInterviewPath, {{"Combo1", QStringLiteral("No")},
                           {"Combo2", QStringLiteral("Yes")},
                           {"Combo7", QStringLiteral("Heel")},
                           {"Combo6", QStringLiteral("Face")},
                           {"Combo4", QStringLiteral("Male")},
                           {"HScroll1", QStringLiteral("1")}});
    EXPECT_EQ(saved(kInterviewPath), asFile(withFirstLine({"Singles", "No", "Yes", "Heel", "Face",
                                                           "Any", "Any", "Male", "1"})));
}

TEST_F(SegmentRecords, AnInterviewsNamesLeftEmptyAreWrittenAsAny)
{
    begin(kInterviewPath, {{"Text1", {}}, {"Text2", {}}});
    EXPECT_EQ(saved(kInterviewPath), asFile(kUntouchedInterview));
}

TEST_F(SegmentRecords, AnInterviewsSpacesAreKept)
{
    begin(kInterviewPath, {{"Text2", QStringLiteral("  ")}});
    type("Form13", "Text2", QStringLiteral(" "));
    Lines lines = kUntouchedInterview;
    lines[5] = "  ";
    lines[10] = " ";
    EXPECT_EQ(saved(kInterviewPath), asFile(lines));
}

TEST_F(SegmentRecords, TwoInterviewsFollowEachOther)
{
    begin(kInterviewPath, {});
    saved(kInterviewPath);
    begin(kInterviewPath, {});
    EXPECT_EQ(saved(kInterviewPath), asFile(kUntouchedInterview).repeated(2));
}

TEST_F(SegmentRecords, AnUntouchedTalkShowGivesNineteenLinesWithNineBlankOnes)
{
    ASSERT_EQ(kUntouchedTalkShow.size(), 19U);
    begin(kTalkShowPath, {});
    EXPECT_EQ(saved(kTalkShowPath), asFile(kUntouchedTalkShow));
}

TEST_F(SegmentRecords, EveryFieldOfATalkShowStandsOnItsOwnLine)
{
    begin(kTalkShowPath, {{"Text3", QStringLiteral("The Host")},
                          {"Combo1", QStringLiteral("Face")},
                          {"Text4", QStringLiteral("The Show")},
                          {"Text5", QStringLiteral("Guest One")},
                          {"Combo7", QStringLiteral("Heel")},
                          {"Text1", QStringLiteral("Guest Two")},
                          {"Combo2", QStringLiteral("Face")},
                          {"Combo3", QStringLiteral("Male")},
                          {"HScroll1", QStringLiteral("42")}});
    typeAllLines("Form15");
    click(control("Form15", "Text1"));
    choose("Form15", "Combo1", QStringLiteral("Talk Show Name"));
    save(kTalkShowPath);
    EXPECT_EQ(bytesOf(QStringLiteral("talkshow.tvd")),
              asFile({"The Host", "Face", "The Show", "Guest One", "Heel", "Guest Two", "Face",
                      "Male", "42", "Line 1<talkshowname>", "Line 2", "Line 3", "Line 4", "Line 5",
                      "Line 6", "Line 7", "Line 8", "Line 9", "Line 10"}));
}

TEST_F(SegmentRecords, ATalkShowWithTheOtherValues)
{
    begin(kTalkShowPath, {{"Combo1", QStringLiteral("Heel")},
                          {"Combo7", QStringLiteral("Face")},
                          {"Combo2", QStringLiteral("Heel")},
                          {"Combo3", QStringLiteral("Female")},
                          {"HScroll1", QStringLiteral("100")}});
    EXPECT_EQ(saved(kTalkShowPath), asFile(withFirstLine({"Any", "Heel", "Any", "Any", "Face",
                                                          "Any", "Heel", "Female", "100"})));
}

TEST_F(SegmentRecords, ATalkShowsNamesLeftEmptyAreWrittenAsAny)
{
    begin(kTalkShowPath, {{"Text3", {}}, {"Text4", {}}, {"Text5", {}}, {"Text1", {}}});
    EXPECT_EQ(saved(kTalkShowPath), asFile(kUntouchedTalkShow));
}

TEST_F(SegmentRecords, TwoTalkShowsFollowEachOther)
{
    begin(kTalkShowPath, {});
    saved(kTalkShowPath);
    begin(kTalkShowPath, {});
    EXPECT_EQ(saved(kTalkShowPath), asFile(kUntouchedTalkShow).repeated(2));
}

} // namespace
} // namespace tarvold::testing
