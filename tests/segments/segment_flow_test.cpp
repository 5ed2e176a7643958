#include "support/flow_test.h"

#include <QDir>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// A segment flow and the values that its button sets.
struct SegmentRow
{
    const FlowPath *flow;
    std::vector<Entry> details;
    const char *tag;    ///< shown by the tag list
    const char *choice; ///< an item of it that is never refused
    const char *inserted;
};

const QString kAny = u"Any"_s;
const QString kNa = u"N/A"_s;

const SegmentRow kSegments[] = {
    {&kInterviewPath,
     {{"Combo3", u"Singles"_s},
      {"Combo1", kNa},
      {"Combo2", kNa},
      {"Combo7", kAny},
      {"Combo6", kAny},
      {"Combo4", kAny},
      {"Text2", kAny},
      {"Text1", kAny},
      {"HScroll1", u"10"_s},
      {"Label8", u"10%"_s}},
     "Wrestler 1 Long Name",
     "Town Name",
     "<town>"},
    {&kTalkShowPath,
     {{"Text3", kAny},
      {"Combo1", kAny},
      {"Text4", kAny},
      {"Text5", kAny},
      {"Combo7", kAny},
      {"Text1", kAny},
      {"Combo2", kAny},
      {"Combo3", kAny},
      {"HScroll1", u"10"_s},
      {"Label8", u"10%"_s}},
     "Host Name",
     "Guest 2 Short Name",
     "<guest2shortname>"},
};

void PrintTo(const SegmentRow &row, std::ostream *out)
{
    *out << row.tag;
}

class SegmentFlow : public FlowTest, public ::testing::WithParamInterface<SegmentRow>
{
protected:
    const FlowPath &flow() { return *GetParam().flow; }
    const char *details() { return flow().screens.front(); }
    const char *commentary() { return flow().screens.back(); }

    bool anyLineIsYellow()
    {
        for (int line = 1; line <= 10; ++line) {
            const QByteArray box = "Text" + QByteArray::number(line);
            const QPalette colours = control(commentary(), box.constData()).palette();
            if (colours.color(QPalette::Base) != QColor(Qt::white)) {
                return true;
            }
        }
        return false;
    }
};

TEST_P(SegmentFlow, EntryResetsEverythingThatTheLastOneChanged)
{
    for (const Entry &entry : GetParam().details) {
        const bool isBar = qstrcmp(entry.control, "HScroll1") == 0;
        given(details(), entry.control, isBar ? u"77"_s : u"changed"_s);
    }
    goToCommentary(flow());
    for (int line = 1; line <= 10; ++line) {
        const QByteArray box = "Text" + QByteArray::number(line);
        type(commentary(), box.constData(), u"changed"_s);
    }
    choose(commentary(), "Combo1", QLatin1StringView(GetParam().choice));
    goBack(flow());
    goTo(flow(), details());
    expectTexts(details(), GetParam().details);
    press(details(), "Command2");
    EXPECT_EQ(text(commentary(), "Combo1"), QLatin1StringView(GetParam().tag));
    for (int line = 1; line <= 10; ++line) {
        const QByteArray box = "Text" + QByteArray::number(line);
        EXPECT_EQ(text(commentary(), box.constData()), QString()) << line;
    }
    EXPECT_FALSE(anyLineIsYellow());
}

TEST_P(SegmentFlow, EntryKeepsTheLastAcceptedTag)
{
    goToCommentary(flow());
    choose(commentary(), "Combo1", QLatin1StringView(GetParam().choice));
    goBack(flow());
    goToCommentary(flow());
    EXPECT_EQ(text(commentary(), "hiddenlabel"), QLatin1StringView(GetParam().inserted));
}

TEST_P(SegmentFlow, EntryChangesNoOtherFlow)
{
    given("Form4", "Text2", u"Ladder Match"_s);
    goTo(flow(), details());
    EXPECT_EQ(text("Form4", "Text2"), u"Ladder Match"_s);
    EXPECT_EQ(text("Form1", "matchreports"), u"normal"_s);
}

TEST_P(SegmentFlow, NextShowsTheCommentaryWhateverTheFlowLabel)
{
    for (const char *label : {"normal", "feuds", "turns"}) {
        given("Form1", "matchreports", QLatin1StringView(label));
        goToCommentary(flow());
        goBack(flow());
    }
}

TEST_P(SegmentFlow, BackFromTheCommentaryAsksNothingAndKeepsTheLines)
{
    goToCommentary(flow());
    type(commentary(), "Text3", u"Third."_s);
    press(commentary(), "Command2");
    expectOnly(details());
    press(details(), "Command2");
    EXPECT_EQ(text(commentary(), "Text3"), u"Third."_s);
}

TEST_P(SegmentFlow, BackFromTheDetailsAsksAndClearsNothing)
{
    goTo(flow(), details());
    type(details(), "Text1", u"Rocco Vance"_s);
    expectReturnQuestion(Answer::No);
    press(details(), "Command1");
    expectOnly(details());
    leave(flow());
    EXPECT_EQ(text(details(), "Text1"), u"Rocco Vance"_s);
}

TEST_P(SegmentFlow, ClosingAWindowAsksAndYesLeadsToTheMainMenu)
{
    for (const char *step : flow().screens) {
        goTo(flow(), step);
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

TEST_P(SegmentFlow, SavesAfterARefusalAndAfterAnsweringNo)
{
    goToCommentary(flow());
    boxes.expectNotice(title(), QLatin1StringView(flow().missing));
    press(commentary(), "Command1");
    type(commentary(), "Text1", u"The end."_s);
    boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::No);
    press(commentary(), "Command1");
    expectOnly(commentary());
    EXPECT_TRUE(QDir().isEmpty());
    save(flow());
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{QLatin1StringView(flow().file)});
    EXPECT_EQ(bytesOf(QLatin1StringView(flow().file)).count("\r\n"), 19);
}

TEST_P(SegmentFlow, ASaveClearsNothingOnTheDetails)
{
    const std::vector<Entry> chosen = {{"Text1", u"Rocco Vance"_s},
                                       {"Combo1", u"changed"_s},
                                       {"HScroll1", u"20"_s},
                                       {"Label8", u"20%"_s}};
    goToCommentary(flow());
    for (const Entry &entry : chosen) {
        given(details(), entry.control, entry.value);
    }
    type(commentary(), "Text1", u"The end."_s);
    save(flow());
    expectTexts(details(), chosen);
}

TEST_P(SegmentFlow, TheFileBoxMayChangeBetweenTwoSaves)
{
    goToCommentary(flow());
    type(commentary(), "Text1", u"First."_s);
    save(flow());
    type("Form1", flow().fileBox, u"other.tvd"_s);
    goToCommentary(flow());
    type(commentary(), "Text1", u"Second."_s);
    save(flow());
    EXPECT_TRUE(bytesOf(QLatin1StringView(flow().file)).contains("\r\nFirst.\r\n"));
    EXPECT_TRUE(bytesOf(u"other.tvd"_s).contains("\r\nSecond.\r\n"));
    EXPECT_EQ(bytesOf(u"other.tvd"_s).count("\r\n"), 19);
}

TEST_P(SegmentFlow, AFileThatCannotBeOpenedIsReportedAndNothingTypedIsLost)
{
    goToCommentary(flow());
    type(commentary(), "Text1", u"The end."_s);
    given("Form1", flow().fileBox, u"no such folder/file.tvd"_s);
    QString told;
    boxes.expectQuestion(title(), QLatin1StringView(flow().question), Answer::Yes);
    boxes.catchFailedSave(title(), &told);
    press(commentary(), "Command1");
    EXPECT_TRUE(told.contains(u"no such folder/file.tvd"_s));
    expectOnly(commentary());
    EXPECT_EQ(text(commentary(), "Text1"), u"The end."_s);
    EXPECT_TRUE(QDir().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Segments, SegmentFlow, ::testing::ValuesIn(kSegments),
                         [](const auto &row) { return row.index == 0 ? "Interview" : "TalkShow"; });

} // namespace
} // namespace tarvold::testing
