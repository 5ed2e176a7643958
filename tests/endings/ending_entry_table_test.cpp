#include "endings/ending_entry.h"
#include "endings/ending_entry_expected.h"

#include <QByteArray>

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace tarvold::testing {
namespace {

bool isAt(const ControlRef &ref, const char *screen, const char *control)
{
    return qstrcmp(ref.screen, screen) == 0 && qstrcmp(ref.control, control) == 0;
}

void expectValues(const char *screen, std::span<const ExpectedValue> expected)
{
    for (const ExpectedValue &row : expected) {
        SCOPED_TRACE(std::string(screen) + " " + row.control);
        const auto values = endingentry::values();
        const auto found = std::find_if(values.begin(), values.end(), [&](const auto &value) {
            return isAt(value.control, screen, row.control);
        });
        ASSERT_NE(found, values.end());
        for (std::size_t kind = 0; kind < 3; ++kind) {
            EXPECT_STREQ(found->values.at(kind), row.values.at(kind)) << kind;
        }
    }
}

void expectVisible(const char *screen, const char *control, std::array<bool, 3> expected)
{
    SCOPED_TRACE(std::string(screen) + " " + control);
    const auto rows = endingentry::visibility();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto &row) {
        return isAt(row.control, screen, control);
    });
    ASSERT_NE(found, rows.end());
    EXPECT_EQ(found->visible, expected);
}

TEST(EndingEntryTable, TheFlowLabelIsSetForEachKind)
{
    EXPECT_STREQ(endingentry::kFlowLabels[0], "normal");
    EXPECT_STREQ(endingentry::kFlowLabels[1], "feuds");
    EXPECT_STREQ(endingentry::kFlowLabels[2], "turns");
}

TEST(EndingEntryTable, TheCommentaryScreenOfEachKindIsEmptied)
{
    EXPECT_STREQ(endingentry::kCommentaryScreens[0], "Form7");
    EXPECT_STREQ(endingentry::kCommentaryScreens[1], "Form9");
    EXPECT_STREQ(endingentry::kCommentaryScreens[2], "Form11");
}

TEST(EndingEntryTable, EveryValueOfEachKindIsAsItShouldBe)
{
    expectValues("Form4", kCriteria);
    expectValues("Form5", kSides);
    expectValues("Form6", kSides);
    EXPECT_EQ(endingentry::values().size(), std::size(kCriteria) + 2 * std::size(kSides));
}

TEST(EndingEntryTable, EveryRowIsSeenInItsKindsOnly)
{
    expectVisible("Form4", "Combo3", {true, false, false});
    expectVisible("Form4", "Combo12", {false, true, true});
    for (const char *control : kHiddenForTurns) {
        expectVisible("Form5", control, {true, true, false});
        expectVisible("Form6", control, {true, true, false});
    }
    EXPECT_EQ(endingentry::visibility().size(), 2 + 2 * std::size(kHiddenForTurns));
}

TEST(EndingEntryTable, TheKindsOwnScreensAreSet)
{
    for (const MatchEnding kind : {MatchEnding::Normal, MatchEnding::RunIn, MatchEnding::Turn}) {
        const auto &expected = kOwn[static_cast<std::size_t>(kind)];
        const auto own = endingentry::ownValues(kind);
        ASSERT_EQ(own.size(), expected.size());
        for (const OwnValueText &row : expected) {
            SCOPED_TRACE(std::string(row.screen) + " " + row.control);
            const auto found = std::find_if(own.begin(), own.end(), [&](const auto &value) {
                return isAt(value.control, row.screen, row.control);
            });
            ASSERT_NE(found, own.end());
            EXPECT_STREQ(found->value, row.value);
        }
    }
}

TEST(EndingEntryTable, ANameTypedForARunInIsKeptForTheNextOneAndNotForANormalEnding)
{
    int names = 0;
    for (const auto &row : endingentry::values()) {
        if (isAt(row.control, "Form5", "Text2") || isAt(row.control, "Form6", "Text2")) {
            ++names;
            EXPECT_STREQ(row.values[0], "Any");
            EXPECT_EQ(row.values[1], nullptr);
            EXPECT_EQ(row.values[2], nullptr);
        }
    }
    EXPECT_EQ(names, 2);
}

} // namespace
} // namespace tarvold::testing
