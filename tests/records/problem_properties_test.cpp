// What holds for the problems and repairs of all records, tried on random ones.

#include "datafiles/code_page.h"
#include "records/edits.h"
#include "records/legal_records.h"
#include "records/problems_test.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using namespace records;

namespace {

auto countOf(const std::vector<Problem> &problems, Problem::Type type)
{
    return std::count_if(problems.begin(), problems.end(),
                         [type](const Problem &problem) { return problem.type == type; });
}

/// Whether a repair is offered that all repairs make.
bool anyOffered(const std::vector<Problem> &problems)
{
    return std::any_of(problems.begin(), problems.end(), [](const Problem &problem) {
        return !problem.repair.isEmpty() && !problem.isSingle;
    });
}

/// A record that a test damages: its lines and what ends them.
struct Damaged
{
    QByteArrayList texts;
    QByteArrayList ends;

    QByteArray bytes() const
    {
        QByteArray all;
        for (qsizetype line = 0; line < texts.size(); ++line) {
            all += texts.at(line) + ends.at(line);
        }
        return all;
    }
};

Damaged undamaged(const QByteArrayList &lines)
{
    return {lines, QByteArrayList(lines.size(), "\r\n")};
}

void putFor(Damaged &record, int line, const QByteArray &text)
{
    record.texts[line] = text;
}

void addLine(Damaged &record, int line, const QByteArray &text)
{
    record.texts.insert(line, text);
    record.ends.insert(line, "\r\n");
}

QByteArray misspelt(QByteArray text, Dice &dice)
{
    const int place = dice.below(int(text.size()) + 1);
    switch (dice.below(3)) {
    case 0:
        return text.insert(place, char('a' + dice.below(26)));
    case 1:
        return text.remove(place, 1);
    default:
        return dice.chance(50) ? text.toLower() : text.toUpper();
    }
}

void damageTag(Damaged &record, int line, Dice &dice)
{
    constexpr const char *kWrong[] = {"<att1fullnam>",  "<recfullname ", "<",
                                      "<att2fullname>", "<xyz>",         "a < b",
                                      "<feudname2>",    "<<town>"};
    QByteArray text = record.texts.at(line);
    putFor(record, line, text.insert(dice.below(int(text.size()) + 1), dice.pick(kWrong)));
}

void damage(Damaged &record, Dice &dice)
{
    constexpr const char *kJunk[] = {"Top Rope",    "Hele", "150",          "-5",
                                     "caf\xc3\xa9", "N/A",  "-blank-",      "\xef\xbb\xbfSingles",
                                     "Any",         "",     "\xe2\x98\x83", "he\x81\x8d",
                                     "Yes",         "p",    "Zz zz zz zz"};
    constexpr const char *kEnds[] = {"\n", "\r", "\r\r\n"};
    const int line = dice.below(int(record.texts.size()));
    switch (dice.below(9)) {
    case 0:
        record.texts.removeAt(line);
        record.ends.removeAt(line);
        break;
    case 1:
        addLine(record, line, record.texts.at(line));
        break;
    case 2:
        addLine(record, line, dice.pick(kJunk));
        break;
    case 3:
        record.ends[line] = dice.pick(kEnds);
        break;
    case 4:
        record.ends = QByteArrayList(record.ends.size(), dice.pick(kEnds));
        break;
    case 5:
        putFor(record, line, dice.pick(kJunk));
        break;
    case 6:
        putFor(record, line, misspelt(record.texts.at(line), dice));
        break;
    case 7:
        damageTag(record, line, dice);
        break;
    default:
        record.ends.last() = "";
        break;
    }
}

/// Random damage to random records of all kinds.
template <class Check>
void forDamagedRecords(unsigned seed, Check check)
{
    Dice dice(seed);
    for (int round = 0; round < 3000; ++round) {
        const DataFileKind kind = dice.pick(kDataFileKinds).kind;
        Damaged damaged = undamaged(legalLines(kind, dice));
        for (int faults = 1 + dice.below(4); faults > 0; --faults) {
            damage(damaged, dice);
        }
        const Record record(damaged.bytes(), Catalog::of(kind));
        SCOPED_TRACE(QString(u"round %1"_s).arg(round).toStdString() + "\n" +
                     record.bytes().toStdString());
        check(record);
        if (::testing::Test::HasFailure()) {
            return;
        }
    }
}

TEST(ProblemProperties, ARepairEndsItsProblemAndMakesNoneOfItsKind)
{
    forDamagedRecords(2, [](const Record &record) {
        const std::vector<Problem> before = problemsOf(record, 1, true);
        for (const Problem &problem : before) {
            if (problem.repair.isEmpty()) {
                EXPECT_TRUE(problem.repaired.isEmpty());
                continue;
            }
            const Record repaired(problem.repaired, record.catalog());
            const std::vector<Problem> after = problemsOf(repaired, 1, true);
            EXPECT_LT(countOf(after, problem.type), countOf(before, problem.type))
                << problem.text.toStdString() << "\nbefore:\n"
                << listed(before) << "\nafter:\n"
                << listed(after) << "\n"
                << problem.repaired.toStdString();
        }
    });
}

/// Bytes before a line, and from it on.
QByteArray upTo(const Record &record, int line)
{
    const auto &lines = record.lines();
    return std::size_t(line) < lines.size()
               ? record.bytes().first(lines.at(std::size_t(line)).text.data() -
                                      record.bytes().constData())
               : record.bytes();
}

QByteArray from(const Record &record, int line)
{
    return record.bytes().sliced(upTo(record, line).size());
}

QByteArrayList textsOf(const Record &record)
{
    QByteArrayList texts;
    for (const Line &line : record.lines()) {
        texts << line.text.toByteArray();
    }
    return texts;
}

/// How many lines of a record a repair replaces, from the line of its problem on.
int replacedLines(const Record &record, const Problem &problem, bool isJoin)
{
    if (problem.type == Problem::Type::MissingLine) {
        return 0;
    }
    if (problem.type != Problem::Type::SurplusLine) {
        return 1;
    }
    const auto removed =
        int(record.lines().size()) - int(Record(problem.repaired, record.catalog()).lines().size());
    return removed + (isJoin ? 1 : 0);
}

void expectOnlyThisRepaired(const Record &record, const Problem &problem)
{
    if (problem.type == Problem::Type::BareLineEnd ||
        problem.type == Problem::Type::NoLastLineEnd) {
        EXPECT_EQ(textsOf(Record(problem.repaired, record.catalog())), textsOf(record));
        return;
    }
    // A surplus line may be joined with the one before it.
    const bool isJoin = problem.repair.startsWith(u"Join"_s);
    const int first = isJoin ? std::max(0, problem.line - 1) : problem.line;
    const int behind = problem.line + replacedLines(record, problem, isJoin);
    EXPECT_TRUE(problem.repaired.startsWith(upTo(record, first)));
    EXPECT_TRUE(problem.repaired.endsWith(from(record, behind)));
}

TEST(ProblemProperties, ARepairKeepsAllOtherBytes)
{
    forDamagedRecords(3, [](const Record &record) {
        for (const Problem &problem : problemsOf(record, 1, true)) {
            if (!problem.repair.isEmpty()) {
                SCOPED_TRACE(problem.text.toStdString());
                expectOnlyThisRepaired(record, problem);
            }
        }
    });
}

TEST(ProblemProperties, AllRepairsLeaveNoneToOffer)
{
    forDamagedRecords(4, [](const Record &record) {
        const Record repaired(repairAll(record, true), record.catalog());
        const std::vector<Problem> left = problemsOf(repaired, 1, true);
        EXPECT_FALSE(anyOffered(left)) << listed(left);
    });
}

TEST(ProblemProperties, ProblemsComeInTheOrderOfTheirLines)
{
    forDamagedRecords(5, [](const Record &record) {
        const std::vector<Problem> problems = problemsOf(record, 1, true);
        EXPECT_TRUE(std::is_sorted(
            problems.begin(), problems.end(),
            [](const Problem &one, const Problem &other) { return one.line < other.line; }));
        for (const Problem &problem : problems) {
            EXPECT_GE(problem.line, 0);
            EXPECT_LE(problem.line, int(record.lines().size()));
            EXPECT_TRUE(problem.text.endsWith(u'.') || problem.text.endsWith(u'?'))
                << problem.text.toStdString();
        }
    });
}

/// Damage that leaves enough behind to be undone without a trace.
void damageLightly(Damaged &record, DataFileKind kind, Dice &dice)
{
    const Catalog &catalog = Catalog::of(kind);
    const int line = dice.below(int(record.texts.size()));
    const KnownField &known = catalog.fields().at(std::size_t(line));
    QByteArray &text = record.texts[line];
    const qsizetype word = known.words.indexOf(QString::fromLatin1(text));
    if (word >= 0) {
        text = dice.chance(50) ? text.toLower()
                               : known.items.value(word, QString::fromLatin1(text)).toUtf8();
    } else if (text == kBlankLine) {
        text = dice.chance(50) ? "" : "-Blank-";
    } else if (catalog.isCommentary(line)) {
        const qsizetype close = text.indexOf('>');
        const bool isTag = close >= 0 && text.lastIndexOf('<', close) >= 0 && dice.chance(50);
        text = isTag ? text.remove(close, 1) : codepage::decode(text).toUtf8();
    }
    switch (dice.below(5)) {
    case 0:
        record.ends = QByteArrayList(record.ends.size(), "\n");
        break;
    case 1:
        record.ends[dice.below(int(record.ends.size()))] = "\r\r\n";
        break;
    case 2:
        record.ends.last() = "";
        break;
    default:
        break;
    }
}

/// The records of a file as it is read.
std::vector<Record> readAnew(const QByteArray &file, DataFileKind kind)
{
    std::vector<Record> records;
    const auto starts = splitIntoRecords(file, Catalog::of(kind)).value();
    for (std::size_t index = 0; index < starts.size(); ++index) {
        const qsizetype end = index + 1 < starts.size() ? starts[index + 1] : file.size();
        records.emplace_back(file.sliced(starts[index], end - starts[index]), Catalog::of(kind));
    }
    return records;
}

/// A file after all repairs of its records.
QByteArray repairedFile(const QByteArray &file, DataFileKind kind)
{
    QByteArray repaired;
    const std::vector<Record> records = readAnew(file, kind);
    for (const Record &record : records) {
        repaired += repairAll(record, &record == &records.back());
    }
    return repaired;
}

TEST(ProblemProperties, AllRepairsRestoreWhatWasLightlyDamaged)
{
    Dice dice(6);
    for (int round = 0; round < 3000; ++round) {
        const DataFileKind kind = dice.pick(kDataFileKinds).kind;
        const QByteArrayList lines = legalLines(kind, dice);
        const QByteArray before = ended(legalLines(kind, dice));
        Damaged damaged = undamaged(lines);
        damageLightly(damaged, kind, dice);
        const QByteArray original = before + ended(lines);
        const QByteArray repaired = repairedFile(before + damaged.bytes(), kind);
        ASSERT_EQ(repaired, original) << damaged.bytes().toStdString();
        const std::vector<Record> anew = readAnew(repaired, kind);
        ASSERT_EQ(anew.size(), 2U);
        EXPECT_EQ(anew.front().bytes(), before);
        EXPECT_TRUE(anew.front().layout().isWhole() && anew.back().layout().isWhole());
    }
}

TEST(ProblemProperties, AFileAfterAllRepairsOffersNoOtherWhenItIsReadAnew)
{
    Dice dice(7);
    int readOtherwise = 0;
    constexpr int kRounds = 1000;
    for (int round = 0; round < kRounds; ++round) {
        const DataFileKind kind = dice.pick(kDataFileKinds).kind;
        Damaged damaged = undamaged(legalLines(kind, dice));
        damage(damaged, dice);
        const QByteArray file =
            ended(legalLines(kind, dice)) + damaged.bytes() + ended(legalLines(kind, dice));
        const QByteArray once = repairedFile(file, kind);
        readOtherwise += repairedFile(once, kind) == once ? 0 : 1;
    }
    EXPECT_LE(readOtherwise, kRounds / 100);
}

} // namespace
} // namespace tarvold::testing
