#include "records/damage.h"
#include "records/problems.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>

namespace tarvold::records {
namespace {

/// The seed of all random files; TARVOLD_SEED gives others.
unsigned seed()
{
    bool isNumber = false;
    const unsigned given = qEnvironmentVariable("TARVOLD_SEED").toUInt(&isNumber);
    return isNumber ? given : 20261122U;
}

double percent(int part, int whole)
{
    return whole == 0 ? 100.0 : 100.0 * part / whole;
}

/// Prints how often a missing line was named for certain, if TARVOLD_SHOW_TABLES is set.
void showCertain(const Tally &tally)
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
        std::printf("Missing lines: %d; named for certain: %d, wrongly %d; neither the one that is "
                    "named nor one of those that it may be: %d\n",
                    tally.missing, tally.certain, tally.wrong, tally.outside);
    }
}

/// Prints a row of the table for the documents, if TARVOLD_SHOW_TABLES is set.
void show(const QByteArray &name, const Tally &tally)
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES") && tally.files > 0) {
        std::printf("| %s | %d | %.1f %% | %.1f %% | %.1f %% | %.1f %% |\n", name.constData(),
                    tally.files, percent(tally.records, tally.files),
                    percent(tally.fields, tally.faults), percent(tally.alike, tally.faults),
                    percent(tally.asGood, tally.faults));
    }
}

void showHeadings()
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
        std::puts("| Damage | Files | Record named | Exact field named | Repair gives the same "
                  "record | That, or no field suits better |\n|---|---|---|---|---|---|");
    }
}

constexpr int kRecords = 9;

/// One fault at every field of the first, a middle and the last of nine records.
struct Sweep
{
    Tally details;
    Tally commentary;
};

Sweep sweep(DataFileKind kind, Writing writing, bool isDoubled)
{
    const Catalog &catalog = Catalog::of(kind);
    Random random(seed() + unsigned(kind));
    Sweep result;
    for (int round = 0; round < 4; ++round) {
        for (const int record : {0, kRecords / 2, kRecords - 1}) {
            for (int field = 0; field < catalog.fieldCount(); ++field) {
                const auto records = randomRecords(random, catalog, writing, kRecords);
                Tally &tally = catalog.isCommentary(field) ? result.commentary : result.details;
                tally.add(records, {{record, field, isDoubled}}, catalog);
            }
        }
    }
    return result;
}

/// How much of the damage to the usual records of a kind must be repaired to the very same record,
/// in percent. A missing line between others that suit its field is often beyond anybody's
/// knowledge.
struct Expected
{
    DataFileKind kind;
    double missingDetails;
    double missingCommentary;
    double doubled;
};
constexpr std::array<Expected, 6> kExpected = {{
    {DataFileKind::NormalEndings, 74, 33, 96},
    {DataFileKind::RunInEndings, 74, 33, 96},
    {DataFileKind::TurnEndings, 68, 33, 95},
    {DataFileKind::Interviews, 55, 33, 93},
    {DataFileKind::TalkShows, 55, 33, 92},
    {DataFileKind::Stipulations, 38, 0, 86},
}};

/// Checks what every damage must allow: the record is named, and a field that is as good as any.
void expectFound(const Tally &tally, const QByteArray &name)
{
    show(name, tally);
    EXPECT_GE(percent(tally.records, tally.files), 99.0) << name.constData();
    EXPECT_GE(percent(tally.asGood, tally.faults), 98.0) << name.constData();
}

TEST(Damage, ToOneLineOfUsualRecordsIsFoundAtEveryField)
{
    showHeadings();
    for (const Expected &expected : kExpected) {
        const QByteArray name = rowOf(expected.kind).content;
        const Sweep missing = sweep(expected.kind, Writing::Usual, false);
        expectFound(missing.details, name + ", a line of the details missing");
        expectFound(missing.commentary, name + ", a line of the commentary missing");
        EXPECT_GE(percent(missing.details.alike, missing.details.faults), expected.missingDetails)
            << name.constData();
        EXPECT_GE(percent(missing.commentary.alike, missing.commentary.faults),
                  expected.missingCommentary)
            << name.constData();
        const Sweep doubled = sweep(expected.kind, Writing::Usual, true);
        expectFound(doubled.details, name + ", a line of the details doubled");
        expectFound(doubled.commentary, name + ", a line of the commentary doubled");
        for (const Tally &tally : {doubled.details, doubled.commentary}) {
            EXPECT_GE(percent(tally.alike, tally.faults), expected.doubled) << name.constData();
        }
    }
}

TEST(Damage, ToOneLineOfRecordsAsTheScreensStartIsFoundAtEveryField)
{
    for (const DataFileKindRow &row : kDataFileKinds) {
        for (const bool isDoubled : {false, true}) {
            Sweep found = sweep(row.kind, Writing::Default, isDoubled);
            expectFound(found.details += found.commentary, QByteArray(row.content) +
                                                               " as the screens start, any line " +
                                                               (isDoubled ? "doubled" : "missing"));
        }
    }
}

TEST(Damage, IsNamedForCertainOnlyWhereNoOtherLineMayBeMissing)
{
    Tally tally;
    for (const DataFileKindRow &row : kDataFileKinds) {
        for (const Writing writing : {Writing::Usual, Writing::Default}) {
            const Sweep missing = sweep(row.kind, writing, false);
            tally += missing.details;
            tally += missing.commentary;
        }
    }
    showCertain(tally);
    EXPECT_GE(percent(tally.certain, tally.missing), 20.0);
    EXPECT_EQ(tally.wrong, 0);
    EXPECT_LE(percent(tally.outside, tally.missing), 0.1);
}

/// Whether a file seems to have no damage.
bool seemsWhole(const QByteArray &file, const Catalog &catalog)
{
    const std::vector<Record> records = recordsOf(file, catalog);
    return std::all_of(records.begin(), records.end(),
                       [](const Record &record) { return record.layout().isWhole(); });
}

TEST(Damage, ThatCancelsOutIsHardlyEverTakenForAWholeFile)
{
    Random random(seed());
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        const int texts = catalog.fieldCount() - catalog.firstCommentary();
        int unseen = 0;
        constexpr int kFiles = 200;
        for (int round = 0; texts > 0 && round < kFiles; ++round) {
            const auto records = randomRecords(random, catalog, Writing::Usual, 6);
            const int record = below(random, 5);
            const Fault doubled{record, catalog.firstCommentary() + below(random, texts), true};
            const Fault missing{record + 1, below(random, catalog.firstCommentary()), false};
            unseen += seemsWhole(damaged(records, {doubled, missing}), catalog) ? 1 : 0;
        }
        // In talk shows nearly all details are names.
        EXPECT_LE(unseen, row.kind == DataFileKind::TalkShows ? kFiles / 5 : kFiles / 50)
            << row.content;
    }
}

/// Talk shows as authors write them, but with a full commentary, and with no names if so wished.
std::vector<RecordLines> fullTalkShows(Random &random, bool hasNames)
{
    const Catalog &catalog = Catalog::of(DataFileKind::TalkShows);
    auto records = randomRecords(random, catalog, Writing::Usual, 6);
    for (RecordLines &record : records) {
        for (int field = 0; field < catalog.fieldCount(); ++field) {
            const KnownField &known = catalog.fields().at(std::size_t(field));
            const bool isName = known.words.isEmpty() && known.field->coding == Coding::AsShown;
            if (catalog.isCommentary(field)) {
                record[field] = randomSentence(random, catalog, record.at(field - 1));
            } else if (isName && !hasNames) {
                record[field] = "Any";
            }
        }
    }
    return records;
}

/// How many of some files have no problem although one talk show has a line too many at the end of
/// its full commentary, and the next one lacks a detail: all lines between stand in the wrong
/// fields, but nearly all of these take any text.
/// \param stray the line too many; empty: the one before it again
int countUnseen(Random &random, bool hasNames, const QByteArray &stray, int files)
{
    const Catalog &catalog = Catalog::of(DataFileKind::TalkShows);
    int unseen = 0;
    for (int file = 0; file < files; ++file) {
        auto records = fullTalkShows(random, hasNames);
        const int record = below(random, 5);
        RecordLines &tooLong = records[std::size_t(record)];
        tooLong << (stray.isEmpty() ? tooLong.back() : stray);
        records[std::size_t(record) + 1].removeAt(below(random, catalog.firstCommentary()));
        int number = 0;
        const std::vector<Record> found = recordsOf(bytesOf(records), catalog);
        const bool isSeen = std::any_of(found.begin(), found.end(), [&](const Record &one) {
            ++number;
            return !problemsOf(one, number, number == int(found.size())).empty();
        });
        unseen += isSeen ? 0 : 1;
    }
    return unseen;
}

TEST(Damage, ThatCancelsOutInTalkShowsIsToldByTheHost)
{
    Random random(seed());
    for (const bool hasNames : {false, true}) {
        EXPECT_EQ(countUnseen(random, hasNames, "That is all for tonight.", 200), 0);
        EXPECT_EQ(countUnseen(random, hasNames, "<hostname> waves", 200), 0);
        // One in five of these sentences, such as "Silence", nobody can tell from a name.
        const int unseen = countUnseen(random, hasNames, {}, 200);
        EXPECT_LE(unseen, 50);
        if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
            std::printf("Talk shows %s names, last line doubled, a detail missing in the next one: "
                        "%d of 200 files seem clean\n",
                        hasNames ? "with" : "without", unseen);
        }
    }
}

TEST(Damage, ToTwoRecordsOfAFileIsFound)
{
    Random random(seed());
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        Tally tally;
        for (int round = 0; round < 500; ++round) {
            const auto records = randomRecords(random, catalog, Writing::Usual, kRecords);
            const int first = below(random, kRecords - 1);
            const int second = first + 1 + below(random, kRecords - first - 1);
            const auto fault = [&](int record) {
                return Fault{record, below(random, catalog.fieldCount()), below(random, 2) == 0};
            };
            tally.add(records, {fault(first), fault(second)}, catalog);
        }
        show(QByteArray(row.content) + ", two faults", tally);
        // A line too many near the end of one record and one too few near the start of the next
        // may cancel out.
        EXPECT_GE(percent(tally.records, tally.files), 95.0) << row.content;
        EXPECT_GE(percent(tally.asGood, tally.faults), 95.0) << row.content;
    }
}

TEST(Damage, ToOneLineOfRandomFilesIsFound)
{
    Random random(seed());
    Tally tally;
    for (int round = 0; round < 1000; ++round) {
        const auto kind = DataFileKind(below(random, int(kDataFileKinds.size())));
        const Catalog &catalog = Catalog::of(kind);
        const auto records = randomRecords(random, catalog, Writing::Usual, 1 + below(random, 40));
        const Fault fault = {below(random, int(records.size())),
                             below(random, catalog.fieldCount()), below(random, 2) == 0};
        tally.add(records, {fault}, catalog);
    }
    expectFound(tally, "random files of any kind, one fault");
    showCertain(tally);
    EXPECT_GE(percent(tally.alike, tally.faults), 77.0);
}

TEST(Damage, IsNeverSeenInUndamagedFilesWhateverOddContentsTheyHave)
{
    Random random(seed());
    for (int round = 0; round < 1000; ++round) {
        const auto kind = DataFileKind(below(random, int(kDataFileKinds.size())));
        const Catalog &catalog = Catalog::of(kind);
        const Writing writing = round % 10 == 0 ? Writing::Usual : Writing::Odd;
        const auto records = randomRecords(random, catalog, writing, 1 + below(random, 40));
        const auto found = recordsOf(bytesOf(records), catalog);
        ASSERT_EQ(found.size(), records.size()) << "round " << round;
        for (std::size_t record = 0; record < found.size(); ++record) {
            ASSERT_EQ(found[record].bytes(), bytesOf(records[record])) << "round " << round;
            ASSERT_TRUE(found[record].layout().isWhole()) << "round " << round << "\n"
                                                          << found[record].bytes().constData();
        }
    }
}

} // namespace
} // namespace tarvold::records
