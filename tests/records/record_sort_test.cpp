#include "records/record_sort.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace tarvold::testing {
namespace {

using records::RecordSort;

/// Texts, many of which are the same, or differ only by letter case.
std::vector<QString> someTexts(int count, int different)
{
    std::mt19937 random(20240607); // NOLINT(*-msc51-cpp): the same in each run
    std::vector<QString> texts;
    for (int number = 0; number < count; ++number) {
        const QString text = QString::number(int(random() % unsigned(different)), 36);
        texts.push_back(random() % 2 == 0 ? text : text.toUpper());
    }
    return texts;
}

std::vector<int> expectedOrder(const std::vector<QString> &texts, Qt::SortOrder order)
{
    std::vector<int> expected(texts.size());
    std::iota(expected.begin(), expected.end(), 0);
    std::stable_sort(expected.begin(), expected.end(), [&](int one, int other) {
        const QString left = texts[std::size_t(one)].toCaseFolded();
        const QString right = texts[std::size_t(other)].toCaseFolded();
        return order == Qt::AscendingOrder ? left < right : right < left;
    });
    return expected;
}

TEST(RecordSort, SortsAsInOneGo)
{
    // Around the length of the shortest runs and their multiples.
    for (const int count : {0, 1, 2, 255, 256, 257, 512, 513, 1000, 5000}) {
        for (const int different : {1, 20, 100'000}) {
            const std::vector<QString> texts = someTexts(count, different);
            RecordSort sort(count, [&texts](int record) { return texts[std::size_t(record)]; });
            while (!sort.work(1)) {
            }
            for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
                EXPECT_EQ(sort.order(order), expectedOrder(texts, order))
                    << count << " records, " << different << " texts";
            }
        }
    }
}

} // namespace
} // namespace tarvold::testing
