// Which words and tags are taken for misspelt ones, and which of them a repair replaces.

#include "datafiles/record_fields.h"
#include "records/legal_records.h"
#include "records/problems_test.h"

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using namespace records;

namespace {

/// The only problem of an interview with this first line of commentary.
Problem problemOfCommentary(const QByteArray &line)
{
    const Catalog &catalog = Catalog::of(DataFileKind::Interviews);
    QByteArrayList lines = newLines(DataFileKind::Interviews);
    lines[catalog.firstCommentary()] = line;
    const std::vector<Problem> problems = problemsOf(Record(ended(lines), catalog), 1, true);
    EXPECT_EQ(problems.size(), 1U) << line.toStdString();
    return problems.empty() ? Problem{.type = {}, .text = {}} : problems.front();
}

TEST(MeantWords, PutNoNumberOfAnotherMatchType)
{
    // Twelve men are as good as ten: whoever wrote it meant another number.
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    for (const char *matchType : {"12 Man Tag", "5 Way Dance", "8 Way Dance", "Way Dance"}) {
        QByteArrayList lines = newLines(DataFileKind::NormalEndings);
        lines[catalog.placeOf(fields::kMatchType)] = matchType;
        const std::vector<Problem> problems = problemsOf(Record(ended(lines), catalog), 1, true);
        ASSERT_EQ(problems.size(), 1U) << matchType;
        EXPECT_EQ(problems.front().repair, QString()) << matchType;
        EXPECT_FALSE(problems.front().text.contains("Did you mean"_L1)) << matchType;
    }
}

TEST(MeantWords, PutNoTagWhereAnotherIsAsClose)
{
    const Problem two = problemOfCommentary("<tagteam> comes.");
    EXPECT_EQ(two.text, u"Commentary line 1: \"<tagteam>\" is not a tag. Did you mean <tagteam1> "
                        "or <tagteam2>?"_s);
    EXPECT_EQ(two.repair, QString());
    const Problem four = problemOfCommentary("<wrestler5longname>");
    EXPECT_EQ(four.text, u"Commentary line 1: \"<wrestler5longname>\" is not a tag. Did you mean "
                         "<wrestler1longname>, <wrestler2longname>, <wrestler3longname> or "
                         "<wrestler4longname>?"_s);
    EXPECT_EQ(four.repair, QString());
    const Problem open = problemOfCommentary("<tagteam comes.");
    EXPECT_EQ(open.repair, QString()) << open.text.toStdString();
}

/// What is wrong with a stipulation that belongs to a match type.
std::vector<Problem> problemsOfMatchType(const char *matchType)
{
    QByteArrayList lines = newLines(DataFileKind::Stipulations);
    lines[0] = matchType;
    return problemsOf(Record(ended(lines), Catalog::of(DataFileKind::Stipulations)), 1, true);
}

TEST(MatchTypesOfStipulations, AreThoseOfMatchEndingsToo)
{
    const KnownField &endings = Catalog::of(DataFileKind::NormalEndings).fields().front();
    ASSERT_TRUE(endings.words.contains("3 Way Dance"_L1));
    for (const QString &word : endings.words) {
        EXPECT_EQ(listed(problemsOfMatchType(qPrintable(word))), "");
    }
}

TEST(MatchTypesOfStipulations, AreCorrectedOnlyInCapitalsAndMarks)
{
    for (const auto &[word, repair] :
         {std::pair("12 Man Tag", ""), std::pair("5 Way Dance", ""), std::pair("Men's Match", ""),
          std::pair("Sinlges", ""), std::pair("womens match", "Put \"Women's Match\" there"),
          std::pair("3 way-dance", "Put \"3 Way Dance\" there"),
          std::pair("ANY", "Put \"Any\" there")}) {
        const std::vector<Problem> problems = problemsOfMatchType(word);
        ASSERT_EQ(problems.size(), 1U) << word;
        EXPECT_EQ(problems.front().repair, QString::fromLatin1(repair)) << word;
        EXPECT_FALSE(problems.front().text.contains("10 Man"_L1)) << word;
    }
}

} // namespace
} // namespace tarvold::testing
