// Commentary may be anything; it makes no file look damaged.

#include "records/heavy_damage.h"

#include <gtest/gtest.h>

namespace tarvold::records {
namespace {

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

TEST(Chants, AreNotTakenForDamage)
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

TEST(Chants, AreNotTakenForDamageBesideWordsOutsideTheLists)
{
    Random random(heavySeed());
    for (int round = 0; round < 1000; ++round) {
        const Catalog &catalog = Catalog::of(DataFileKind(round % 5));
        SCOPED_TRACE(round);
        expectReadAsWritten(withChants(random, catalog, Writing::Odd), catalog);
    }
}

/// A file with chants and, in another record, a line that is missing.
TEST(Chants, AreHardlyTakenForDamageInADamagedFile)
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

} // namespace
} // namespace tarvold::records
