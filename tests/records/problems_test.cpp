// What the golden folders do not show: what goes into texts, and the limits of checks.

#include "datafiles/code_page.h"
#include "datafiles/record_fields.h"
#include "datafiles/stipulation_format.h"
#include "records/legal_records.h"
#include "records/problems.h"

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using namespace records;

namespace {

const Catalog &interviews()
{
    return Catalog::of(DataFileKind::Interviews);
}

QByteArrayList linesOfAnInterview()
{
    return newLines(DataFileKind::Interviews);
}

std::vector<Problem> problemsOfLines(const QByteArrayList &lines, bool isLast = false)
{
    return problemsOf(Record(ended(lines), interviews()), 7, isLast);
}

/// The only problem of an interview whose line for a field is another one.
Problem problemWith(const RecordField &field, const QByteArray &line)
{
    QByteArrayList lines = linesOfAnInterview();
    lines[interviews().placeOf(field)] = line;
    const std::vector<Problem> problems = problemsOfLines(lines);
    EXPECT_EQ(problems.size(), 1U) << line.toStdString();
    return problems.empty() ? Problem{.type = {}, .text = {}} : problems.front();
}

QString repairWith(const RecordField &field, const QByteArray &line)
{
    return problemWith(field, line).repair;
}

const RecordField &firstCommentary()
{
    return fields::kCommentary.front();
}

TEST(ProblemTexts, CutALongText)
{
    const QString text = problemWith(firstCommentary(), "<" + QByteArray(100, 'x') + ">").text;
    EXPECT_EQ(text, u"Commentary line 1: \"<"_s + QString(59, u'x') + u"...\" is not a tag."_s);
}

TEST(ProblemTexts, ShowTheUtf8OfALongLine)
{
    const QByteArray line = QByteArray(200, 'x') + "\xc3\xa9" + QByteArray(200, 'y');
    const Problem problem = problemWith(firstCommentary(), line);
    const QString before = u"\"..."_s + QString(20, u'x');
    EXPECT_TRUE(problem.text.contains(before + u"\u00c3\u00a9y"_s)) << problem.text.toStdString();
    EXPECT_TRUE(problem.text.contains(before + u"\u00e9y"_s)) << problem.text.toStdString();
    EXPECT_TRUE(problem.repaired.contains("x\xe9y"));
}

TEST(ProblemTexts, ReplaceControlCharacters)
{
    EXPECT_EQ(problemWith(fields::kFeudType, "\x1b[31mTag\tTeamwork").text,
              u"Type of Feud: \"\ufffd[31mTag\ufffdTeamwork\" is not in the list, so the game "
              "probably does not know it."_s);
}

TEST(ProblemTexts, KeepPercentSignsAsTheyAre)
{
    EXPECT_EQ(problemWith(fields::kHeatIncrease, "%1 %2").text,
              u"Feud Heat Increase: \"%1 %2\" is not a number from 1 to 100."_s);
    QByteArrayList lines = linesOfAnInterview();
    lines.insert(3, "%3%1");
    const std::vector<Problem> problems = problemsOfLines(lines);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems.front().text,
              u"Interview 7 has 20 lines; line 4 (\"%3%1\") is one too many. "
              "The game reads everything after it wrongly."_s);
}

TEST(ProblemTexts, SayWhatIsAddedToTheFileIsReadWrongly)
{
    const QByteArrayList lines = linesOfAnInterview() << "-BLANK-";
    for (const bool isLast : {false, true}) {
        const std::vector<Problem> problems = problemsOfLines(lines, isLast);
        ASSERT_EQ(problems.size(), 1U);
        EXPECT_EQ(problems.front().text.endsWith(
                      u"The game reads everything that is added to the file wrongly."_s),
                  isLast)
            << problems.front().text.toStdString();
    }
}

TEST(ProblemRepairs, PutTheNearestNumber)
{
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "0"), u"Put \"1\" there"_s);
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "-7"), u"Put \"1\" there"_s);
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "101"), u"Put \"100\" there"_s);
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "15%"), u"Put \"15\" there"_s);
    EXPECT_EQ(repairWith(fields::kHeatIncrease, " 15"), u"Put \"15\" there"_s);
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "015"), u"Put \"15\" there"_s);
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "1.5"), QString());
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "99999999999"), QString());
    EXPECT_EQ(repairWith(fields::kHeatIncrease, "ten"), QString());
}

TEST(ProblemRepairs, PutTheNearestWord)
{
    EXPECT_EQ(repairWith(fields::kInterviewer, "yes"), u"Put \"Yes\" there"_s);
    EXPECT_EQ(repairWith(fields::kInterviewer, "NA"), u"Put \"N/A\" there"_s) << "not \"No\"";
    EXPECT_EQ(repairWith(fields::kInterviewer, "Yes "), u"Put \"Yes\" there"_s);
    EXPECT_EQ(repairWith(fields::kSide1Disposition, "Heal"), u"Put \"Heel\" there"_s);
    EXPECT_EQ(repairWith(fields::kFeudType, "tag-team"), u"Put \"Tag Team\" there"_s);
    EXPECT_EQ(repairWith(fields::kFeudType, "Battle Royal"), QString());
    EXPECT_EQ(repairWith(fields::kFeudType, "--"), QString());
    EXPECT_EQ(repairWith(fields::kInterviewer, "Nx"), QString()) << "too short to tell";
}

/// What is wrong with a talk show with this host.
QString wrongWithHost(const QByteArray &host)
{
    QByteArrayList lines = newLines(DataFileKind::TalkShows);
    lines[0] = host;
    const auto problems =
        problemsOf(Record(ended(lines), Catalog::of(DataFileKind::TalkShows)), 1, true);
    EXPECT_LE(problems.size(), 1U);
    return problems.empty() ? QString() : problems.front().text;
}

TEST(ProblemTexts, TellAHostThatReadsLikeCommentary)
{
    for (const char *line :
         {"The crowd is on its feet.", "What a show that was!", "Is that really the end?",
          "\"You will pay for that.\"", "<hostname>", "Out comes <guest1longname>",
          "And then the lights go out...", "He storms out of the studio\x85"}) {
        EXPECT_EQ(wrongWithHost(line),
                  u"Host of Talk Show: \"%1\" reads like commentary, not like a name."_s.arg(
                      codepage::decode(line)))
            << line;
    }
}

TEST(ProblemTexts, TellNoHostThatMayBeAName)
{
    for (const char *name :
         {"Any", "Rocco Vance", "Dex Vance Jr.", "Rocco Vance,Dex Vance Jr.", "I Quit!", "A.W.A.",
          "The Voice Of The A.W.A.", "Dr. Paul van der Berg Sr.", "The Man With No Name",
          "Is It Him?", "Mick \"The Mouth\" O'Malley", "Ren\xe9 Duval", "1999", "<Rocco>"}) {
        EXPECT_EQ(wrongWithHost(name), QString()) << name;
    }
}

TEST(ProblemRepairs, PutTheTagThatWasMeant)
{
    const auto line = [](const QByteArray &text) {
        const Problem problem = problemWith(firstCommentary(), text);
        return problem.repaired.isEmpty() ? QByteArray()
                                          : linesOf(problem.repaired).at(9).text.toByteArray();
    };
    EXPECT_EQ(line("<interviewr> asks."), "<interviewer> asks.");
    EXPECT_EQ(line("<Interviewer> asks."), "<interviewer> asks.");
    EXPECT_EQ(line("< interviewer > asks."), "<interviewer> asks.");
    EXPECT_EQ(line("<interviewer asks."), "<interviewer> asks.");
    EXPECT_EQ(line("<interviewerasks."), "<interviewer>asks.");
    EXPECT_EQ(line("<interviewr, so"), "<interviewer>, so");
    EXPECT_EQ(line("<tagteam2"), "<tagteam2>");
    EXPECT_EQ(line("<interviewer<town>"), "<interviewer><town>");
    EXPECT_EQ(line("Caf\xe9 <twn>\x81"), "Caf\xe9 <town>\x81") << "other bytes stay";
    EXPECT_EQ(line("1 < 2"), "");
    EXPECT_EQ(line("<b>"), "");
}

TEST(ProblemRepairs, ReadUtf8AsOftenAsItWasSaved)
{
    const QByteArray twice = QString::fromLatin1(QString(u"Ren\u00e9"_s).toUtf8()).toUtf8();
    const Problem problem = problemWith(fields::kSide1Names, twice);
    EXPECT_EQ(problem.type, Problem::Type::Utf8);
    EXPECT_EQ(linesOf(problem.repaired).at(5).text, "Ren\xe9");
}

TEST(ProblemLimits, TellTheFirstTenWrongTagsOfALine)
{
    QByteArrayList lines = linesOfAnInterview();
    lines[9] = QByteArray("<x>").repeated(1000);
    EXPECT_EQ(problemsOfLines(lines).size(), 10U);
}

TEST(ProblemLimits, NoBytesAtAllAreAllLinesMissing)
{
    const std::vector<Problem> problems = problemsOf(Record({}, interviews()), 1, true);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems.front().text,
              u"Interview 1 has 0 lines; the lines from Type of Feud to Commentary line 10 are "
              "missing. The game reads everything that is added to the file wrongly."_s);
    EXPECT_EQ(linesOf(problems.front().repaired).size(), 19U);
}

QByteArray stipulationOf(const QByteArray &matchType, const QByteArray &name, const char *shownAs)
{
    QByteArrayList lines = newLines(DataFileKind::Stipulations);
    lines[0] = matchType;
    lines[1] = name;
    lines[2] = shownAs;
    return ended(lines);
}

/// What a comparison says of one stipulation after another.
QStringList compared(const QByteArrayList &records)
{
    const Catalog &catalog = Catalog::of(DataFileKind::Stipulations);
    Comparison comparison(catalog);
    QStringList texts;
    for (const QByteArray &record : records) {
        for (const Problem &problem : comparison.add(Record(record, catalog))) {
            texts << problem.text;
        }
    }
    return texts;
}

TEST(Comparisons, FindAKeyOnlyWhereBothPartsAreTheSame)
{
    const QByteArray first = stipulationOf("Singles", "Ladder Match", "1");
    EXPECT_EQ(compared({first, stipulationOf("Tag Team", "Ladder Match", "2"),
                        stipulationOf("Singles", "Cage Match", "2"),
                        stipulationOf("singles", "Ladder Match", "2"),
                        stipulationOf("SinglesLadder", " Match", "2")}),
              QStringList());
    EXPECT_EQ(compared({first, stipulationOf("Singles", "Ladder Match", "2")}),
              QStringList(u"Stipulation 2 has the match type and name of stipulation 1: \"Ladder "
                          "Match\" for \"Singles\"."_s));
}

TEST(Comparisons, TakeNoLinesOfAnotherKindForAKey)
{
    QByteArrayList lines = newLines(DataFileKind::NormalEndings);
    const QByteArray one = ended(lines);
    lines.back() = "And that is all!";
    EXPECT_EQ(compared({one, ended(lines)}), QStringList());
    EXPECT_EQ(compared({one, ended(lines), one}),
              QStringList(u"Stipulation 3 is the same as stipulation 1."_s));
}

TEST(Comparisons, TellOfTheSameRecordOnce)
{
    const QByteArray record = stipulationOf("Singles", "Ladder Match", "1");
    EXPECT_EQ(
        compared({record, stipulationOf("Singles", "Cage Match", "1"), record, record.chopped(2)}),
        QStringList({u"Stipulation 3 is the same as stipulation 1."_s,
                     u"Stipulation 4 is the same as stipulation 1."_s}));
}

TEST(Comparisons, TakeTheNumbersThatTheyAreGiven)
{
    const QByteArray bytes = ended(linesOfAnInterview());
    Comparison comparison(interviews());
    EXPECT_TRUE(comparison.add(Record(bytes, interviews()), 3).empty());
    const std::vector<Problem> problems = comparison.add(Record(bytes, interviews()), 9);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems.front().text, u"Interview 9 is the same as interview 3."_s);
}

TEST(Comparisons, SeeLinesNotWhereTheyEnd)
{
    // The same letters, divided into lines in another place.
    QByteArrayList one = linesOfAnInterview();
    QByteArrayList other = one;
    one[5] = "Rocco";
    one[6] = "Vance";
    other[5] = "RoccoV";
    other[6] = "ance";
    Comparison comparison(interviews());
    EXPECT_TRUE(comparison.add(Record(ended(one), interviews())).empty());
    EXPECT_TRUE(comparison.add(Record(ended(other), interviews())).empty());
    EXPECT_EQ(comparison.add(Record(ended(one).replace("\r\n", "\n"), interviews())).size(), 1U);
}

} // namespace
} // namespace tarvold::testing
