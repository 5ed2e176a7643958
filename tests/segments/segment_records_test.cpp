#include "support/flow_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Lines = std::vector<QByteArray>;

/// The details and ten commentary lines of which only the first was typed.
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

    /// Types the first line and saves; returns the bytes of the file.
    QByteArray saved(const FlowPath &flow)
    {
        type(flow.screens.back(), "Text1", u"The end"_s);
        save(flow);
        return bytesOf(QLatin1StringView(flow.file));
    }

    void typeAllLines(const char *screen)
    {
        for (int line = 1; line <= 10; ++line) {
            const QByteArray box = "Text" + QByteArray::number(line);
            type(screen, box.constData(), u"Line %1"_s.arg(line));
        }
    }
};

TEST_F(SegmentRecords, AnUnchangedInterviewGivesNineteenLinesOfWhichNineAreBlank)
{
    ASSERT_EQ(kUntouchedInterview.size(), 19U);
    begin(kInterviewPath, {});
    EXPECT_EQ(saved(kInterviewPath), asFile(kUntouchedInterview));
}

TEST_F(SegmentRecords, AnInterviewWritesSideOneFirstAlthoughItsControlsHaveTheHigherNumbers)
{
    begin(kInterviewPath, {{"Combo3", u"Tag Team"_s},
                           {"Combo1", u"Yes"_s},
                           {"Combo2", u"No"_s},
                           {"Combo7", u"Face"_s},
                           {"Combo6", u"Heel"_s},
                           {"Text2", u"One,First"_s},
                           {"Text1", u"Two,Second"_s},
                           {"Combo4", u"Female"_s},
                           {"HScroll1", u"100"_s}});
    typeAllLines("Form13");
    choose("Form13", "Combo1", u"Town Name"_s);
    save(kInterviewPath);
    EXPECT_EQ(bytesOf(u"interviews.tvd"_s),
              asFile({"Tag Team", "Yes", "No", "Face", "Heel", "One,First", "Two,Second", "Female",
                      "100", "Line 1", "Line 2", "Line 3", "Line 4", "Line 5", "Line 6", "Line 7",
                      "Line 8", "Line 9", "Line 10<town>"}));
}

TEST_F(SegmentRecords, AnInterviewWithTheOtherValues)
{
    begin(kInterviewPath, {{"Combo1", u"No"_s},
                           {"Combo2", u"Yes"_s},
                           {"Combo7", u"Heel"_s},
                           {"Combo6", u"Face"_s},
                           {"Combo4", u"Male"_s},
                           {"HScroll1", u"1"_s}});
    EXPECT_EQ(saved(kInterviewPath), asFile(withFirstLine({"Singles", "No", "Yes", "Heel", "Face",
                                                           "Any", "Any", "Male", "1"})));
}

TEST_F(SegmentRecords, EmptyNamesOfAnInterviewAreWrittenAsAny)
{
    begin(kInterviewPath, {{"Text1", {}}, {"Text2", {}}});
    EXPECT_EQ(saved(kInterviewPath), asFile(kUntouchedInterview));
}

TEST_F(SegmentRecords, SpacesInAnInterviewAreKept)
{
    begin(kInterviewPath, {{"Text2", u"  "_s}});
    type("Form13", "Text2", u" "_s);
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

TEST_F(SegmentRecords, AnUnchangedTalkShowGivesNineteenLinesOfWhichNineAreBlank)
{
    ASSERT_EQ(kUntouchedTalkShow.size(), 19U);
    begin(kTalkShowPath, {});
    EXPECT_EQ(saved(kTalkShowPath), asFile(kUntouchedTalkShow));
}

TEST_F(SegmentRecords, EveryFieldOfATalkShowIsOnItsOwnLine)
{
    begin(kTalkShowPath, {{"Text3", u"The Host"_s},
                          {"Combo1", u"Face"_s},
                          {"Text4", u"The Show"_s},
                          {"Text5", u"Guest One"_s},
                          {"Combo7", u"Heel"_s},
                          {"Text1", u"Guest Two"_s},
                          {"Combo2", u"Face"_s},
                          {"Combo3", u"Male"_s},
                          {"HScroll1", u"42"_s}});
    typeAllLines("Form15");
    click(control("Form15", "Text1"));
    choose("Form15", "Combo1", u"Talk Show Name"_s);
    save(kTalkShowPath);
    EXPECT_EQ(bytesOf(u"talkshow.tvd"_s),
              asFile({"The Host", "Face", "The Show", "Guest One", "Heel", "Guest Two", "Face",
                      "Male", "42", "Line 1<talkshowname>", "Line 2", "Line 3", "Line 4", "Line 5",
                      "Line 6", "Line 7", "Line 8", "Line 9", "Line 10"}));
}

TEST_F(SegmentRecords, ATalkShowWithTheOtherValues)
{
    begin(kTalkShowPath, {{"Combo1", u"Heel"_s},
                          {"Combo7", u"Face"_s},
                          {"Combo2", u"Heel"_s},
                          {"Combo3", u"Female"_s},
                          {"HScroll1", u"100"_s}});
    EXPECT_EQ(saved(kTalkShowPath), asFile(withFirstLine({"Any", "Heel", "Any", "Any", "Face",
                                                          "Any", "Heel", "Female", "100"})));
}

TEST_F(SegmentRecords, EmptyNamesOfATalkShowAreWrittenAsAny)
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
