#include "records/preview.h"
#include "records/sample_records.h"

#include <map>

namespace tarvold::records {
namespace {

using enum DataFileKind;

struct Sentence
{
    DataFileKind kind;
    samples::Lines lines;
    const char *text;
};

class ConditionsTest : public ::testing::TestWithParam<Sentence>
{
};

TEST_P(ConditionsTest, SayWhatTheFieldsSay)
{
    const Sentence &sentence = GetParam();
    EXPECT_EQ(conditionsOf(samples::record(sentence.kind, sentence.lines)).toStdString(),
              sentence.text);
}

const Sentence kEndings[] = {
    {NormalEndings, {}, "Any match."},
    {NormalEndings, {{1, u"Singles"_s}}, "Singles."},
    {NormalEndings,
     {{1, u"Tag Team"_s},
      {2, u"Ladder Match"_s},
      {3, u"Yes"_s},
      {7, u"Rocco Vance,Dex Vance"_s},
      {15, u"t"_s},
      {18, u"Heel"_s}},
     "Tag Team, Ladder Match, title on the line: Rocco Vance and Dex Vance win off the top rope "
     "against a heel."},
    {NormalEndings,
     {{7, u"Rocco Vance"_s}, {17, u"Kit Sample, Jr."_s}, {18, u"Heel"_s}},
     "Rocco Vance wins against Kit Sample, Jr., a heel."},
    {NormalEndings, {{5, u"DQ"_s}}, "Anyone wins by disqualification."},
    {NormalEndings,
     {{5, u"DQ"_s}, {15, u"s"_s}},
     "Anyone whose finisher is a submission wins by disqualification."},
    {NormalEndings, {{15, u"p"_s}}, "Anyone wins by a pin."},
    {NormalEndings,
     {{3, u"No"_s}, {4, u"No"_s}, {6, u"No"_s}},
     "No title on the line, title does not change hands, DQ not possible."},
    {NormalEndings,
     {{8, u"Heel"_s}, {9, u"High Flyer"_s}, {10, u"Female"_s}, {11, u"Yes"_s}, {12, u"Any"_s}},
     "A female heel high flyer who holds the title, with a manager, wins."},
    {NormalEndings,
     {{7, u"Rocco Vance"_s}, {8, u"Face"_s}, {11, u"No"_s}, {12, u"None"_s}, {16, u"Us"_s}},
     "Rocco Vance, a face, who does not hold the title, without a manager and with the stable Us, "
     "wins."},
    {NormalEndings,
     {{17, u"Dex Vance"_s},
      {22, u"Lee"_s},
      {23, u"Female"_s},
      {24, u"No"_s},
      {25, u"t"_s},
      {26, u"Any"_s}},
     "Anyone wins against Dex Vance, whose finisher is off the top rope, with the female manager "
     "Lee who is not a worker and with a stable."},
    {NormalEndings,
     {{7, u"Al Ray,Bo Day"_s}, {8, u"Heel"_s}, {9, u"Big Man"_s}, {10, u"Male"_s}},
     "Al Ray and Bo Day, male heel big men, win."},
    {NormalEndings, {{19, u"Old Heavyweight"_s}}, "Anyone wins against an old heavyweight."},
    {NormalEndings, {{20, u"Male"_s}}, "Anyone wins against a male wrestler."},
    {NormalEndings,
     {{8, u"Tweener"_s}, {13, u"Female"_s}},
     "Attacker(s) Disposition: \"Tweener\". Attacker(s) Manager's Gender: \"Female\"."},
    {NormalEndings, {{7, u"None"_s}}, "Attacker(s) Name(s): \"None\"."},
    {RunInEndings,
     {},
     "Singles: in a Singles feud with the losers, anyone runs in; the feud heat rises by 10%."},
    {RunInEndings,
     {{1, u"Tag Team"_s},
      {27, u"Yes"_s},
      {28, u"Tag Team"_s},
      {29, u"Rocco Vance,Dex Vance"_s},
      {30, u"Heel"_s},
      {32, u"s"_s},
      {33, u"Winners"_s},
      {34, u"25"_s}},
     "Tag Team, televised: in a Tag Team feud with the winners, Rocco Vance and Dex Vance, heels, "
     "whose finisher is a submission, run in; the feud heat rises by 25%."},
    {RunInEndings,
     {{18, u"Face"_s}, {28, u"Trios"_s}, {34, u"a lot"_s}},
     "Singles: anyone wins against a face; in a feud with the losers, anyone runs in. Type of "
     "Feud: "
     "\"Trios\". Feud Heat Increase: \"a lot\"."},
    {TurnEndings, {}, "Singles: whoever turns is on the winning side."},
    {TurnEndings,
     {{1, u"Tag Team"_s},
      {11, u"p"_s},
      {17, u"Turning Heel"_s},
      {18, u"Face"_s},
      {20, u"Turning Face"_s},
      {21, u"Losing Side"_s},
      {22, u"No"_s},
      {23, u"Yes"_s}},
     "Tag Team: anyone wins by a pin; wrestler 1 turns heel; wrestler 2 is a face; wrestler 4 "
     "turns "
     "face; whoever turns is on the losing side, is not the attacker and is the receiver."},
};

const Sentence kSegments[] = {
    {Interviews, {}, "Singles feud: the feud heat rises by 10%."},
    {Interviews,
     {{1, u"Tag Team"_s},
      {2, u"Yes"_s},
      {3, u"No"_s},
      {4, u"Heel"_s},
      {6, u"Rocco Vance,Dex Vance"_s},
      {5, u"Face"_s},
      {8, u"Male"_s},
      {9, u"5"_s}},
     "Tag Team feud, male wrestlers, with an interviewer, not televised: Rocco Vance and Dex "
     "Vance, heels, are interviewed in a feud with a face; the feud heat rises by 5%."},
    {Interviews,
     {{7, u"Dex Vance"_s}},
     "Singles feud: anyone is interviewed in a feud with Dex Vance; the feud heat rises by 10%."},
    {TalkShows, {}, "Any talk show; the feud heat rises by 10%."},
    {TalkShows,
     {{1, u"Hal"_s},
      {2, u"Heel"_s},
      {3, u"Hal's Den"_s},
      {4, u"Al Ray"_s},
      {7, u"Face"_s},
      {8, u"Female"_s}},
     "The talk show \"Hal's Den\" hosted by Hal, a heel; guest 1 is Al Ray; guest 2 is a face; the "
     "guests are female; the feud heat rises by 10%."},
    {Stipulations,
     {{1, u"Singles"_s},
      {2, u"Ladder Match"_s},
      {3, u"Ladder"_s},
      {17, u"XWL"_s},
      {19, u"Yes"_s},
      {13, u"5"_s},
      {18, u"Both"_s}},
     "Singles, Ladder Match: shown as \"Ladder\"; DQ possible; run-ins possible; a title has to be "
     "on the line; no default commentary; match quality half by standard, half by hardcore "
     "ability; only in the promotion XWL; injury risk 5%; draw value 50, at most 50, down 5 when "
     "used; entertainment value 50, at most 50."},
};

INSTANTIATE_TEST_SUITE_P(Endings, ConditionsTest, ::testing::ValuesIn(kEndings));
INSTANTIATE_TEST_SUITE_P(Segments, ConditionsTest, ::testing::ValuesIn(kSegments));

bool isNeutral(const QString &text)
{
    return QStringList{u"Any"_s, u"N/A"_s, u"NA"_s}.contains(text);
}

/// The sentences of a record for each word of a field's list, and an odd word.
TEST(Conditions, TellEveryWordOfEveryListApart)
{
    for (const DataFileKindRow &kind : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(kind.kind);
        for (int field = 0; field < catalog.firstCommentary(); ++field) {
            const KnownField &known = catalog.fields().at(std::size_t(field));
            std::map<QString, QString> wordOf;
            for (const QString &word : known.words + QStringList(u"Odd word"_s)) {
                const QString text = conditionsOf(samples::record(kind.kind, {{field + 1, word}}));
                const QString key = isNeutral(word) ? u"neutral"_s : word;
                const auto [first, isNew] = wordOf.emplace(text, key);
                EXPECT_TRUE(isNew || first->second == key)
                    << known.caption.toStdString() << ": " << key.toStdString() << " and "
                    << first->second.toStdString() << ": " << text.toStdString();
            }
        }
    }
}

TEST(Conditions, HaveEveryNameAsItStands)
{
    const QString name = u"Zo\u00EB \"100%1\" <b> & Co."_s;
    for (const DataFileKindRow &kind : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(kind.kind);
        for (int field = 0; field < catalog.firstCommentary(); ++field) {
            EXPECT_TRUE(
                conditionsOf(samples::record(kind.kind, {{field + 1, name}})).contains(name))
                << catalog.fields().at(std::size_t(field)).caption.toStdString();
        }
    }
}

} // namespace
} // namespace tarvold::records
