#include "endings/ending_entry_expected.h"
#include "endings/ending_flow.h"

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

/// The start values of a screen; fails the test if there are none.
std::span<const endingflow::ValueRow> rowsFor(const char *screen)
{
    for (const auto &[name, rows] : endingflow::values()) {
        if (qstrcmp(name, screen) == 0) {
            return rows;
        }
    }
    ADD_FAILURE() << "no values for " << screen;
    return {};
}

void expectValues(const char *screen, std::span<const ExpectedValue> expected)
{
    const auto rows = rowsFor(screen);
    EXPECT_EQ(rows.size(), expected.size());
    for (const ExpectedValue &row : expected) {
        SCOPED_TRACE(std::string(screen) + " " + row.control);
        const auto found = std::find_if(rows.begin(), rows.end(), [&row](const auto &candidate) {
            return qstrcmp(candidate.control, row.control) == 0;
        });
        ASSERT_NE(found, rows.end());
        for (std::size_t kind = 0; kind < 3; ++kind) {
            EXPECT_STREQ(found->values.at(kind), row.values.at(kind)) << kind;
        }
    }
}

TEST(EndingEntryTable, TheFlowLabelIsSetForEachKind)
{
    EXPECT_STREQ(endingflow::kEndings[0].flowLabel, "normal");
    EXPECT_STREQ(endingflow::kEndings[1].flowLabel, "feuds");
    EXPECT_STREQ(endingflow::kEndings[2].flowLabel, "turns");
}

TEST(EndingEntryTable, TheCommentaryScreenOfEachKindIsCleared)
{
    EXPECT_STREQ(endingflow::kEndings[0].commentary, "Form7");
    EXPECT_STREQ(endingflow::kEndings[1].commentary, "Form9");
    EXPECT_STREQ(endingflow::kEndings[2].commentary, "Form11");
}

TEST(EndingEntryTable, EveryStartValueOfEachKindIsSet)
{
    expectValues("Form4", kCriteria);
    expectValues("Form5", kSides);
    expectValues("Form6", kSides);
    EXPECT_EQ(endingflow::values().size(), 3U);
}

TEST(EndingEntryTable, TheScreensOfOneKindGetTheirStartValues)
{
    for (const MatchEnding kind : {MatchEnding::Normal, MatchEnding::RunIn, MatchEnding::Turn}) {
        const auto &expected = kOwn[static_cast<std::size_t>(kind)];
        const auto own = endingflow::endingRow(kind).ownValues;
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
    for (const char *screen : {"Form5", "Form6"}) {
        for (const auto &row : rowsFor(screen)) {
            if (qstrcmp(row.control, "Text2") == 0) {
                ++names;
                EXPECT_STREQ(row.values[0], "Any");
                EXPECT_EQ(row.values[1], nullptr);
                EXPECT_EQ(row.values[2], nullptr);
            }
        }
    }
    EXPECT_EQ(names, 2);
}

} // namespace
} // namespace tarvold::testing
