#include "records/names.h"
#include "records/preview.h"
#include "records/sample_records.h"

#include <set>

namespace tarvold::records {
namespace {

using enum DataFileKind;

/// A line as text: "[Rocco Vance]" is filled in, "{<recname>}" an unknown tag.
QString marked(const ShownLine &line)
{
    QString text;
    for (const ShownPart &part : line) {
        switch (part.type) {
        case ShownPart::Type::Written:
            text += part.text;
            break;
        case ShownPart::Type::FilledIn:
            text += u'[' + part.text + u']';
            break;
        case ShownPart::Type::UnknownTag:
            text += u'{' + part.text + u'}';
            break;
        }
    }
    return text;
}

QStringList shown(const Record &record)
{
    QStringList lines;
    for (const ShownLine &line : asShown(record, Cast::example())) {
        lines << marked(line);
    }
    return lines;
}

/// How a first line of commentary is shown in a record with some other lines.
QString shownLine(DataFileKind kind, const QString &line, samples::Lines lines = {})
{
    lines.emplace_back(samples::commentary(kind), line);
    return shown(samples::record(kind, lines)).value(0);
}

TEST(AsShown, FillsATagFromTheRecordsOwnName)
{
    EXPECT_EQ(shownLine(NormalEndings, u"<recfullname> loses to <att1fullname>!"_s,
                        {{7, u"Rocco Vance"_s}, {17, u"Dex Vance"_s}}),
              u"[Dex Vance] loses to [Rocco Vance]!"_s);
}

TEST(AsShown, SplitsTwoAttackersAtTheComma)
{
    EXPECT_EQ(shownLine(NormalEndings, u"<att1fullname> and <att2fullname>"_s,
                        {{7, u"Rocco Vance, Max Power"_s}}),
              u"[Rocco Vance] and [Max Power]"_s);
}

TEST(AsShown, TakesTheLastWordForAShortNameButTheFirstWherePartnersShareTheLast)
{
    const QString line = u"<att1shortname>, <att2shortname>"_s;
    EXPECT_EQ(shownLine(NormalEndings, line, {{7, u"Rocco Vance,Max Power"_s}}),
              u"[Vance], [Power]"_s);
    EXPECT_EQ(shownLine(NormalEndings, line, {{7, u"Rocco Vance,Dex Vance"_s}}),
              u"[Rocco], [Dex]"_s);
    EXPECT_EQ(shownLine(NormalEndings, line, {{7, u"Rocco,Dex"_s}}), u"[Rocco], [Dex]"_s);
}

TEST(AsShown, KeepsTheCommaOfTheOneNameOfAReceiverOrGuest)
{
    for (const QString &name : {u"Kit Sample, Jr."_s, u"Kit Sample Jr."_s, u"Kit Sample III"_s}) {
        EXPECT_EQ(shownLine(NormalEndings, u"<recfullname>, <recshortname>!"_s, {{17, name}}),
                  u"[%1], [Sample]!"_s.arg(name));
        EXPECT_EQ(shownLine(TalkShows,
                            u"<guest1longname> <guest1shortname> <guest2longname> "
                            "<guest2shortname>"_s,
                            {{4, name}, {6, name}}),
                  u"[%1] [Sample] [%1] [Sample]"_s.arg(name));
    }
    EXPECT_EQ(shownLine(NormalEndings, u"<att1shortname>, <att2shortname>"_s,
                        {{7, u"Rocco Vance Jr.,Dex Vance Sr."_s}}),
              u"[Rocco], [Dex]"_s);
    EXPECT_EQ(shownLine(NormalEndings, u"<recshortname>"_s, {{17, u"Jr."_s}}), u"[Jr.]"_s);
}

TEST(AsShown, FillsATagFromTheCastWhereTheFieldHasNoName)
{
    for (const QString &word : {u"Any"_s, u"N/A"_s, u"None"_s, QString(), u" "_s}) {
        EXPECT_EQ(shownLine(NormalEndings, u"<att1fullname> <attmanager> <attstable>"_s,
                            {{7, word}, {12, word}, {16, word}}),
                  u"[Rocco Vance] [Ann Attmanager] [The First Stable]"_s)
            << word.toStdString();
    }
    EXPECT_EQ(
        shownLine(NormalEndings, u"<att1fullname>, <att2fullname>"_s, {{7, u"Any,Max Power"_s}}),
        u"[Rocco Vance], [Max Power]"_s);
}

TEST(AsShown, FillsManagersAndStablesAsAWhole)
{
    EXPECT_EQ(shownLine(RunInEndings, u"<recmanager> of <recstable>"_s,
                        {{22, u"Lee, the Boss"_s}, {26, u"Us, Them"_s}}),
              u"[Lee, the Boss] of [Us, Them]"_s);
}

TEST(AsShown, FillsThoseWhoRunIn)
{
    EXPECT_EQ(shownLine(RunInEndings, u"<feudname1> <feudname2> <feudteam>"_s,
                        {{29, u"Rocco Vance,Dex Vance"_s}}),
              u"[Rocco Vance] [Dex Vance] [The Rivals]"_s);
}

TEST(AsShown, FillsTheSidesOfAnInterview)
{
    const QString line = u"<wrestler1longname>, <wrestler2shortname>, <wrestler4longname>"_s;
    const samples::Lines sides = {{6, u"Rocco Vance,Dex Vance"_s}, {7, u"Al Ray,Bo Day"_s}};
    samples::Lines team = sides;
    team.emplace_back(1, u"Tag Team"_s);
    EXPECT_EQ(shownLine(Interviews, line, sides), u"[Rocco Vance], [Ray], [Lee Sample]"_s);
    EXPECT_EQ(shownLine(Interviews, line, team), u"[Rocco Vance], [Dex], [Bo Day]"_s);
}

TEST(AsShown, FillsTheNamesOfATalkShow)
{
    EXPECT_EQ(shownLine(TalkShows,
                        u"<hostname> <talkshowname> <guest1longname> <guest2shortname>"_s,
                        {{1, u"Hal"_s}, {3, u"Rocco's Den"_s}, {4, u"Al Ray"_s}, {6, u"Bo Day"_s}}),
              u"[Hal] [Rocco's Den] [Al Ray] [Day]"_s);
}

TEST(AsShown, MarksWhatIsNoTagOfThisKind)
{
    EXPECT_EQ(shownLine(NormalEndings, u"<recname> and <feudname1>"_s),
              u"{<recname>} and {<feudname1>}"_s);
    EXPECT_EQ(shownLine(NormalEndings, u"<RecFullName>"_s), u"{<RecFullName>}"_s);
}

TEST(AsShown, MarksTheFirstWordOfATagThatIsNotClosed)
{
    EXPECT_EQ(shownLine(NormalEndings, u"Oh <recfullname is down, <recshortname>!"_s),
              u"Oh {<recfullname} is down, [Sample]!"_s);
    EXPECT_EQ(shownLine(NormalEndings, u"1 < 2"_s), u"1 {<} 2"_s);
    EXPECT_EQ(shownLine(NormalEndings, u"<<titlename>"_s), u"{<}[XWL Title]"_s);
}

TEST(AsShown, LeavesOutBlankLinesButNoEmptyOnes)
{
    const int first = samples::commentary(NormalEndings);
    EXPECT_EQ(shown(samples::record(NormalEndings, {{first, u"One"_s},
                                                    {first + 1, u"-BLANK-"_s},
                                                    {first + 2, QString()},
                                                    {first + 3, u"Four"_s}})),
              QStringList({u"One"_s, QString(), u"Four"_s}));
    EXPECT_EQ(shown(samples::record(NormalEndings, {{first, u"-BLANK-"_s}})),
              QStringList(u"-BLANK-"_s))
        << "the first line is never a blank one";
}

TEST(AsShown, ShowsWhatTheResultsScreenShowsOfAStipulation)
{
    EXPECT_EQ(shown(samples::record(Stipulations, {{2, u"Ladder"_s}, {3, u"Ladder <recname>"_s}})),
              QStringList(u"Ladder <recname>"_s));
    EXPECT_TRUE(shown(samples::record(Stipulations)).isEmpty());
}

TEST(AsShown, HasTheWholeTextOfALineWithoutTags)
{
    const QString line = u"\"100% > 50%\" & <b\u00A0x> caf\u00E9 "_s;
    EXPECT_EQ(shownLine(NormalEndings, line).remove(u'{').remove(u'}'), line);
}

TEST(OpenTags, AreThoseThatTheRecordsOwnNamesLeaveOpen)
{
    const int first = samples::commentary(NormalEndings);
    const Record record = samples::record(
        NormalEndings, {{7, u"Rocco Vance"_s},
                        {first, u"<titlename> <att1fullname> <nonsense> <recfullname>"_s},
                        {first + 1, u"<recfullname> <att2shortname>"_s}});
    EXPECT_EQ(openTags(record),
              QStringList({u"<titlename>"_s, u"<recfullname>"_s, u"<att2shortname>"_s}));
}

TEST(Cast, KnowsEveryTagOfEveryKindOnce)
{
    const Cast cast = Cast::example();
    std::set<QString> tags;
    for (const Cast::Member &member : cast.members) {
        EXPECT_TRUE(tags.insert(member.tag).second) << member.tag.toStdString();
    }
    std::set<QString> known;
    for (const DataFileKindRow &kind : kDataFileKinds) {
        for (const KnownTag &tag : Catalog::of(kind.kind).tags()) {
            known.insert(tag.tag);
            EXPECT_FALSE(cast.textFor(tag.tag).isEmpty()) << tag.tag.toStdString();
        }
    }
    EXPECT_EQ(tags, known);
}

TEST(Columns, HaveATextEach)
{
    for (const DataFileKindRow &kind : kDataFileKinds) {
        EXPECT_EQ(columnTexts(samples::record(kind.kind)).size(), columnsOf(kind.kind).size());
    }
}

TEST(Columns, TellWhatARecordIsAbout)
{
    EXPECT_EQ(columnTexts(samples::record(NormalEndings, {{1, u"Singles"_s},
                                                          {2, u"Ladder Match"_s},
                                                          {7, u"Rocco Vance"_s},
                                                          {17, u"Dex Vance"_s}})),
              QStringList({u"Singles"_s, u"Ladder Match"_s, u"Rocco Vance"_s, u"Dex Vance"_s,
                           u"<att1fullname> wins."_s}));
    EXPECT_EQ(columnTexts(samples::record(Stipulations, {{1, u"Singles"_s}, {2, u"Cage"_s}})),
              QStringList({u"Singles"_s, u"Cage"_s, QString()}));
    EXPECT_EQ(columnsOf(TalkShows), QStringList({u"Host"_s, u"Talk Show"_s, u"Guest 1"_s,
                                                 u"Guest 2"_s, u"First Line"_s}));
}

} // namespace
} // namespace tarvold::records
