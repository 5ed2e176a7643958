#include "records/damage.h"

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

/// Prints a row of the table for the documents, if TARVOLD_SHOW_TABLES is set.
void show(const QByteArray &name, const Tally &tally)
{
    if (qEnvironmentVariableIsSet("TARVOLD_SHOW_TABLES")) {
        std::printf("| %s | %d | %.1f %% | %.1f %% | %.1f %% | %.1f %% |\n", name.constData(),
                    tally.files, percent(tally.records, tally.files),
                    percent(tally.fields, tally.faults), percent(tally.alike, tally.faults),
                    percent(tally.asGood, tally.faults));
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

TEST(Damage, OfOneLineAtEveryFieldIsFound)
{
    for (const DataFileKindRow &row : kDataFileKinds) {
        for (const bool isDoubled : {false, true}) {
            for (const Writing writing : {Writing::Usual, Writing::Default}) {
                const Sweep found = sweep(row.kind, writing, isDoubled);
                const QByteArray name = QByteArray(row.content) +
                                        (writing == Writing::Usual ? "" : ", as started") +
                                        (isDoubled ? ", doubled" : ", missing");
                show(name + ", details", found.details);
                show(name + ", commentary", found.commentary);
            }
        }
    }
}

TEST(Damage, AtTwoPlacesIsFound)
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
    }
}

TEST(Damage, OfRandomFilesIsFound)
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
    show("random files, one fault", tally);
}

TEST(Damage, IsNeverSeenInUndamagedFiles)
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
