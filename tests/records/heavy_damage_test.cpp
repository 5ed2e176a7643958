// Damage to more than a line, and files that only look damaged.

#include "records/damage.h"
#include "records/line_sort.h"
#include "records/problems.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>

namespace tarvold::records {
namespace {

using namespace Qt::StringLiterals;

unsigned heavySeed()
{
    bool isNumber = false;
    const unsigned given = qEnvironmentVariable("TARVOLD_SEED").toUInt(&isNumber);
    return isNumber ? given : 20261123U;
}

/// How a kind of damage was read, over some files.
struct Score
{
    int files = 0;
    int named = 0;    ///< files where exactly this damage was named
    int kept = 0;     ///< files where all other records were whole, byte for byte
    int restored = 0; ///< files that all repairs made what they were
    int lost = 0;     ///< files where all repairs lost a text

    double percentOf(int count) const { return files == 0 ? 0.0 : 100.0 * count / files; }
};

void showHeadings(const char *restored)
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
        std::printf("| Damage | Files | Named rightly | All other records whole | %s | A text lost "
                    "by all repairs |\n|---|---|---|---|---|---|\n",
                    restored);
    }
}

void show(const QByteArray &name, const Score &score)
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
        std::printf("| %s | %d | %.1f %% | %.1f %% | %.1f %% | %d |\n", name.constData(),
                    score.files, score.percentOf(score.named), score.percentOf(score.kept),
                    score.percentOf(score.restored), score.lost);
    }
}

QByteArray repaired(const QByteArray &file, const Catalog &catalog)
{
    QByteArray bytes;
    const std::vector<Record> found = recordsOf(file, catalog);
    for (const Record &record : found) {
        bytes += repairAll(record, &record == &found.back());
    }
    return bytes;
}

/// Whether some text that an author wrote is in none of the lines any more. Parts of one that was
/// broken may be one again.
bool isTextLost(const QByteArray &before, const QByteArray &after)
{
    const std::vector<Line> lines = linesOf(before);
    return std::any_of(lines.begin(), lines.end(), [&after](const Line &line) {
        const Sort sort = sortOf(line.text);
        const bool isText = sort == Sort::Name || sort == Sort::Sentence || sort == Sort::Tagged;
        return isText && !after.contains(line.text.toByteArray());
    });
}

/// Whether records but one are as they were; the one may be anything, but one record.
bool areOthersWhole(const std::vector<Record> &found, const std::vector<RecordLines> &records,
                    std::size_t but)
{
    if (found.size() != records.size()) {
        return false;
    }
    for (std::size_t index = 0; index < found.size(); ++index) {
        if (index != but &&
            (found[index].bytes() != bytesOf(records[index]) || !found[index].layout().isWhole())) {
            return false;
        }
    }
    return true;
}

/// Whether a record has just its first lines, and the fields of all others are missing.
bool isCutAfter(const Record &record, int lines)
{
    const Layout &layout = record.layout();
    for (int field = 0; field < record.catalog().fieldCount(); ++field) {
        if (layout.lineOfField[std::size_t(field)] != (field < lines ? field : -1)) {
            return false;
        }
    }
    return layout.surplus.empty();
}

constexpr int kCutRecord = 2;

/// Files in which one record, between others, was cut short behind some line.
Score cutAtEveryLine(const Catalog &catalog, Writing writing, int from)
{
    Random random(heavySeed() + unsigned(catalog.kind()));
    Score score;
    for (int round = 0; round < 4; ++round) {
        for (int lines = from; lines + 3 <= catalog.fieldCount(); ++lines) {
            auto records = randomRecords(random, catalog, writing, 5);
            records[kCutRecord] = records[kCutRecord].first(lines);
            const QByteArray file = bytesOf(records);
            const auto found = recordsOf(file, catalog);
            const bool isKept = areOthersWhole(found, records, kCutRecord);
            score.files += 1;
            score.kept += isKept ? 1 : 0;
            score.named += isKept && isCutAfter(found[kCutRecord], lines) ? 1 : 0;
            const QByteArray after = repaired(file, catalog);
            score.restored += after.startsWith(bytesOf({records[0], records[1], records[2]})) &&
                                      after.endsWith(bytesOf({records[3], records[4]}))
                                  ? 1
                                  : 0;
            score.lost += isTextLost(file, after) ? 1 : 0;
        }
    }
    return score;
}

TEST(HeavyDamage, ARecordCutShortIsNamedAndTheNextOneStaysWhole)
{
    showHeadings("Only the rest is added");
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        for (const Writing writing : {Writing::Usual, Writing::Default}) {
            const char *const how = writing == Writing::Usual ? "" : " as the screens start";
            const Score score = cutAtEveryLine(catalog, writing, 4);
            show(QByteArray(row.content) + how + ", cut short in the middle of the file", score);
            EXPECT_GE(score.percentOf(score.kept), 97.0) << row.content << how;
            EXPECT_GE(score.percentOf(score.named), 90.0) << row.content << how;
            EXPECT_EQ(score.lost, 0) << row.content << how;
        }
    }
}

TEST(HeavyDamage, ARecordOfWhichHardlyAnythingIsLeftCostsNoText)
{
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        Random random(heavySeed());
        for (int round = 0; round < 60; ++round) {
            auto records = randomRecords(random, catalog, Writing::Usual, 4);
            records[1] = records[1].first(1 + round % 3);
            const QByteArray file = bytesOf(records);
            EXPECT_FALSE(isTextLost(file, repaired(file, catalog))) << file.constData();
        }
    }
}

TEST(HeavyDamage, ARecordCutShortIsToldInWords)
{
    Random random(heavySeed());
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    auto records = randomRecords(random, catalog, Writing::Usual, 3);
    records[1] = records[1].first(20);
    const auto found = recordsOf(bytesOf(records), catalog);
    ASSERT_EQ(found.size(), 3U);
    const auto problems = problemsOf(found[1], 2, false);
    const auto step = std::find_if(problems.begin(), problems.end(), [](const Problem &problem) {
        return problem.type == Problem::Type::MissingLine;
    });
    ASSERT_NE(step, problems.end());
    EXPECT_EQ(step->text.toStdString(),
              "Ending 2 has 20 lines; the lines from Receiver Is The Title Holder on are missing. "
              "The game reads everything after it wrongly.");
}

constexpr const char *kChants[] = {"Yes", "No",   "Any",         "None",  "N/A", "10",     "Face",
                                   "Wow", "Heel", "Rocco Vance", "Yes! ", "-",   "Normal", "1..."};

/// Records of which some in a row have a commentary of the same words, again and again.
std::vector<RecordLines> withChants(Random &random, const Catalog &catalog, Writing writing)
{
    auto records = randomRecords(random, catalog, writing, 1 + below(random, 9));
    const int lines = below(random, 2) == 0 ? 10 : 2 + below(random, 8);
    int record = below(random, int(records.size()));
    for (int count = 1 + below(random, 4); count > 0 && record < int(records.size()); --count) {
        const QByteArray chant = kChants[below(random, int(std::size(kChants)))];
        for (int line = 0; line < lines; ++line) {
            records[std::size_t(record)][catalog.firstCommentary() + line] = chant;
        }
        ++record;
    }
    return records;
}

void expectReadAsWritten(const std::vector<RecordLines> &records, const Catalog &catalog)
{
    const auto found = recordsOf(bytesOf(records), catalog);
    ASSERT_EQ(found.size(), records.size()) << bytesOf(records).constData();
    for (std::size_t record = 0; record < found.size(); ++record) {
        ASSERT_EQ(found[record].bytes(), bytesOf(records[record]));
        ASSERT_TRUE(found[record].layout().isWhole()) << found[record].bytes().constData();
    }
}

TEST(HeavyDamage, IsNotSeenInChants)
{
    Random random(heavySeed());
    for (int round = 0; round < 1000; ++round) {
        const Catalog &catalog = Catalog::of(DataFileKind(round % 5)); // stipulations have none
        const Writing writing = round % 3 == 0 ? Writing::Default : Writing::Usual;
        SCOPED_TRACE(round);
        expectReadAsWritten(withChants(random, catalog, writing), catalog);
        if (HasFailure()) {
            return;
        }
    }
}

TEST(HeavyDamage, IsNotSeenInChantsBesideWordsOutsideTheLists)
{
    Random random(heavySeed());
    for (int round = 0; round < 1000; ++round) {
        const Catalog &catalog = Catalog::of(DataFileKind(round % 5));
        SCOPED_TRACE(round);
        expectReadAsWritten(withChants(random, catalog, Writing::Odd), catalog);
    }
}

/// A file with chants and, in another record, a line that is missing.
TEST(HeavyDamage, IsNotSeenInTheChantsOfADamagedFile)
{
    Random random(heavySeed());
    int files = 0;
    int wrong = 0;
    for (int round = 0; round < 500; ++round) {
        const Catalog &catalog = Catalog::of(DataFileKind(round % 5));
        auto records = withChants(random, catalog, Writing::Usual);
        for (const RecordLines &record : randomRecords(random, catalog, Writing::Usual, 2)) {
            records.push_back(record);
        }
        const auto damagedAt = records.size() - 1;
        records.back().removeAt(below(random, catalog.firstCommentary()));
        ++files;
        wrong += areOthersWhole(recordsOf(bytesOf(records), catalog), records, damagedAt) ? 0 : 1;
    }
    EXPECT_LE(wrong, files / 100) << "of " << files; // beside real damage it is a matter of costs
}

/// Breaks a line at one of its blanks; returns whether it has any.
bool breakLine(Random &random, RecordLines &record, int line)
{
    const QByteArray text = record.at(line);
    std::vector<qsizetype> blanks;
    for (qsizetype place = 1; place + 1 < text.size(); ++place) {
        if (text[place] == ' ') {
            blanks.push_back(place);
        }
    }
    if (blanks.empty()) {
        return false;
    }
    const qsizetype place = blanks[std::size_t(below(random, int(blanks.size())))];
    record[line] = text.first(place);
    record.insert(line + 1, text.sliced(place + 1));
    return true;
}

Score brokenLines(const Catalog &catalog, int used)
{
    Random random(heavySeed() + unsigned(catalog.kind()));
    Score score;
    while (score.files < 150) {
        auto records = randomRecords(random, catalog, Writing::Usual, 5);
        for (int line = 0; line < 10; ++line) {
            records[1][catalog.firstCommentary() + line] =
                line < used ? randomSentence(random, catalog,
                                             records[1][catalog.firstCommentary() + line - 1])
                            : QByteArray(kBlankLine);
        }
        const QByteArray original = bytesOf(records);
        const QByteArray before = bytesOf(records[1]);
        if (!breakLine(random, records[1], catalog.firstCommentary() + below(random, used))) {
            continue;
        }
        const QByteArray file = bytesOf(records);
        const auto found = recordsOf(file, catalog);
        const bool isKept = areOthersWhole(found, records, 1);
        const QByteArray after = repaired(file, catalog);
        bool isNamed = false;
        if (isKept) {
            const std::vector<Problem> problems = problemsOf(found[1], 2, false);
            isNamed = std::any_of(problems.begin(), problems.end(), [&](const Problem &problem) {
                return problem.repaired == before;
            });
        }
        score.files += 1;
        score.kept += isKept ? 1 : 0;
        score.named += isNamed ? 1 : 0;
        score.restored += after == original ? 1 : 0;
        score.lost += isTextLost(file, after) ? 1 : 0;
    }
    return score;
}

TEST(HeavyDamage, ALineOfTheCommentaryThatWasBrokenIsJoinedAndNothingRemoved)
{
    showHeadings("Restored by all repairs");
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        if (catalog.firstCommentary() == catalog.fieldCount()) {
            continue;
        }
        for (const int used : {10, 6}) {
            const Score score = brokenLines(catalog, used);
            show(QByteArray(row.content) + ", one of " + QByteArray::number(used) +
                     " lines of commentary broken in two",
                 score);
            // A short last line may as well be the host of the next talk show.
            EXPECT_GE(score.percentOf(score.kept), used == 10 ? 85.0 : 100.0) << row.content;
            EXPECT_EQ(score.lost, 0) << row.content;
            EXPECT_GE(score.percentOf(score.named), 70.0) << row.content;
            EXPECT_GE(score.percentOf(score.restored), 70.0) << row.content;
        }
    }
}

TEST(HeavyDamage, SurplusTextsAreNeverRemovedByAllRepairs)
{
    Random random(heavySeed());
    Score score;
    for (int round = 0; round < 600; ++round) {
        const Catalog &catalog = Catalog::of(DataFileKind(round % 6));
        auto records = randomRecords(random, catalog, Writing::Usual, 5);
        RecordLines &record = records[2];
        const int at = 1 + below(random, int(record.size()) - 1);
        std::vector<int> inserted;
        for (int count = 1 + below(random, 12); count > 0; --count) {
            inserted.push_back(at + int(inserted.size()));
            record.insert(at, "Pasted " + QByteArray::number(count) +
                                  (below(random, 2) == 0 ? " from elsewhere." : ""));
        }
        const QByteArray file = bytesOf(records);
        const auto found = recordsOf(file, catalog);
        const QByteArray after = repaired(file, catalog);
        score.files += 1;
        const bool isKept = areOthersWhole(found, records, 2);
        score.kept += isKept ? 1 : 0;
        score.named += isKept && found[2].layout().surplus == inserted ? 1 : 0;
        score.lost += isTextLost(file, after) ? 1 : 0;
    }
    show("1 to 12 strange lines in a record of any kind", score);
    EXPECT_EQ(score.lost, 0);
    EXPECT_GE(score.percentOf(score.kept), 90.0);
}

TEST(HeavyDamage, AStrangeLastLineIsNamed)
{
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        Random random(heavySeed());
        for (int round = 0; round < 40; ++round) {
            for (const char *line : {"\x1a", "Hello", "Hello there, this is not a record."}) {
                const Writing writing = round % 2 == 0 ? Writing::Usual : Writing::Default;
                const QByteArray file = bytesOf(randomRecords(random, catalog, writing, 3)) + line;
                const auto found = recordsOf(file, catalog);
                ASSERT_EQ(found.size(), 3U);
                EXPECT_EQ(found.back().layout().surplus, std::vector<int>{catalog.fieldCount()})
                    << line << "\n"
                    << found.back().bytes().constData();
            }
        }
    }
}

TEST(HeavyDamage, ARecordOfAnotherKindIsOneByItself)
{
    showHeadings("Unchanged by all repairs");
    Random random(heavySeed());
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        Score score;
        for (int round = 0; round < 100; ++round) {
            const auto foreign = DataFileKind(below(random, 6));
            if (foreign == row.kind) {
                continue;
            }
            auto records = randomRecords(random, catalog, Writing::Usual, 5);
            const auto at = std::size_t(below(random, 5));
            records[at] = randomRecord(random, Catalog::of(foreign), Writing::Usual);
            const QByteArray file = bytesOf(records);
            const auto found = recordsOf(file, catalog);
            const bool isKept = areOthersWhole(found, records, at);
            bool isNamed = false;
            if (isKept) {
                const std::vector<Problem> problems = problemsOf(found[at], int(at) + 1, false);
                isNamed = problems.size() == 1 && problems.front().type == Problem::Type::OtherKind;
            }
            score.files += 1;
            score.kept += isKept ? 1 : 0;
            score.named += isNamed ? 1 : 0;
            const QByteArray after = repaired(file, catalog);
            score.restored += after == file ? 1 : 0;
            score.lost += isTextLost(file, after) ? 1 : 0;
        }
        show(QByteArray(row.content) + ", with a record of another kind", score);
        EXPECT_GE(score.percentOf(score.named), 95.0) << row.content;
        EXPECT_EQ(score.lost, 0) << row.content;
    }
}

/// What an author leaves as it was, or opens to anybody, around the lines that the screens leave
/// out.
constexpr std::array<const char *, 3> kStables = {"N/A", "Any", "The Syndicate"};

/// The one line that the screens themselves leave out is named, whatever stands beside it.
TEST(HeavyDamage, AFinisherOrQualityThatTheScreensLeftOutIsNamed)
{
    showHeadings("Restored by all repairs");
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        Random random(heavySeed());
        for (int field = 0; field < catalog.fieldCount(); ++field) {
            const Coding coding = catalog.fields()[std::size_t(field)].field->coding;
            if (coding != Coding::FinisherType && coding != Coding::QualityWord) {
                continue;
            }
            Score score;
            for (int round = 0; round < 120; ++round) {
                const Writing writing = round % 2 == 0 ? Writing::Usual : Writing::Default;
                auto records = randomRecords(random, catalog, writing, 3);
                if (field + 1 < catalog.fieldCount() &&
                    catalog.fields()[std::size_t(field) + 1].words.isEmpty() &&
                    !catalog.isCommentary(field + 1)) {
                    records[1][field + 1] = kStables[std::size_t(round % 3)];
                }
                const QByteArray original = bytesOf(records);
                records[1].removeAt(field);
                const QByteArray file = bytesOf(records);
                const auto found = recordsOf(file, catalog);
                const QByteArray after = repaired(file, catalog);
                score.restored += after == original ? 1 : 0;
                score.lost += isTextLost(file, after) ? 1 : 0;
                const bool isKept = areOthersWhole(found, records, 1);
                score.files += 1;
                score.kept += isKept ? 1 : 0;
                score.named += isKept && found[1].layout().lineOfField[std::size_t(field)] == -1 &&
                                       found[1].layout().surplus.empty()
                                   ? 1
                                   : 0;
            }
            const QByteArray name = QByteArray(row.content) + ", " +
                                    catalog.fields()[std::size_t(field)].caption.toLatin1() +
                                    " left out";
            show(name, score);
            EXPECT_GE(score.percentOf(score.named), 95.0) << name.constData();
            EXPECT_EQ(score.lost, 0) << name.constData();
        }
    }
}

} // namespace
} // namespace tarvold::records
