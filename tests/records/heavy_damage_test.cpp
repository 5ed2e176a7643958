// Damage to more than a line.

#include "records/heavy_damage.h"
#include "records/problems.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <utility>

namespace tarvold::records {
namespace {

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

/// Adds a file in which one record, between others, has just its first lines.
void addCut(Score &score, const Catalog &catalog, const std::vector<RecordLines> &records,
            int lines)
{
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

/// Files in which one record, between others, was cut short behind some line.
Score cutAtEveryLine(const Catalog &catalog, Writing writing, int from)
{
    Random random(heavySeed() + unsigned(catalog.kind()));
    Score score;
    for (int round = 0; round < 4; ++round) {
        for (int lines = from; lines + 3 <= catalog.fieldCount(); ++lines) {
            auto records = randomRecords(random, catalog, writing, 5);
            records[kCutRecord] = records[kCutRecord].first(lines);
            addCut(score, catalog, records, lines);
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

/// Whether the one problem of a record is its kind.
bool isJustOtherKind(const Record &record, int number)
{
    const std::vector<Problem> problems = problemsOf(record, number, false);
    return problems.size() == 1 && problems.front().type == Problem::Type::OtherKind;
}

/// Adds a file in which one record is of another kind.
void addForeign(Score &score, Random &random, const Catalog &catalog, DataFileKind foreign)
{
    auto records = randomRecords(random, catalog, Writing::Usual, 5);
    const auto at = std::size_t(below(random, 5));
    records[at] = randomRecord(random, Catalog::of(foreign), Writing::Usual);
    const QByteArray file = bytesOf(records);
    const auto found = recordsOf(file, catalog);
    const bool isKept = areOthersWhole(found, records, at);
    score.files += 1;
    score.kept += isKept ? 1 : 0;
    score.named += isKept && isJustOtherKind(found[at], int(at) + 1) ? 1 : 0;
    const QByteArray after = repaired(file, catalog);
    score.restored += after == file ? 1 : 0;
    score.lost += isTextLost(file, after) ? 1 : 0;
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
            if (foreign != row.kind) {
                addForeign(score, random, catalog, foreign);
            }
        }
        show(QByteArray(row.content) + ", with a record of another kind", score);
        EXPECT_GE(score.percentOf(score.named), 95.0) << row.content;
        EXPECT_EQ(score.lost, 0) << row.content;
    }
}

/// What an author leaves as it was, or opens to anybody, around the lines that the screens leave
/// out.
constexpr std::array<const char *, 3> kStables = {"N/A", "Any", "The Syndicate"};

/// Whether a field takes any text, and is no line of commentary.
bool isFreeField(const Catalog &catalog, int field)
{
    return field < catalog.fieldCount() && catalog.fields()[std::size_t(field)].words.isEmpty() &&
           !catalog.isCommentary(field);
}

/// Whether just the line of one field is missing.
bool isJustMissing(const Layout &layout, int field)
{
    return layout.lineOfField[std::size_t(field)] == -1 && layout.surplus.empty();
}

/// Adds a file whose second record lacks the line of a field.
void addLeftOut(Score &score, const Catalog &catalog, std::vector<RecordLines> records, int field)
{
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
    score.named += isKept && isJustMissing(found[1].layout(), field) ? 1 : 0;
}

Score leftOut(Random &random, const Catalog &catalog, int field)
{
    Score score;
    for (int round = 0; round < 120; ++round) {
        const Writing writing = round % 2 == 0 ? Writing::Usual : Writing::Default;
        auto records = randomRecords(random, catalog, writing, 3);
        if (isFreeField(catalog, field + 1)) {
            records[1][field + 1] = kStables[std::size_t(round % 3)];
        }
        addLeftOut(score, catalog, std::move(records), field);
    }
    return score;
}

/// The one line that the screens themselves leave out is named, whatever stands beside it.
TEST(HeavyDamage, AFinisherOrQualityThatTheScreensLeftOutIsNamed)
{
    showHeadings("Restored by all repairs");
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        Random random(heavySeed());
        for (int field = 0; field < catalog.fieldCount(); ++field) {
            const KnownField &place = catalog.fields()[std::size_t(field)];
            const Coding coding = place.field->coding;
            if (coding != Coding::FinisherType && coding != Coding::QualityWord) {
                continue;
            }
            const Score score = leftOut(random, catalog, field);
            const QByteArray name =
                QByteArray(row.content) + ", " + place.caption.toLatin1() + " left out";
            show(name, score);
            EXPECT_GE(score.percentOf(score.named), 85.0) << name.constData();
            EXPECT_EQ(score.lost, 0) << name.constData();
        }
    }
}

} // namespace
} // namespace tarvold::records
