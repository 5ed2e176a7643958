#include "datafiles/record.h"

#include <gtest/gtest.h>

namespace tarvold {
namespace {

using enum Coding;

// clang-format off
const RecordField kExpected[] = {
    {"Match Type",                    {"Form4", "Combo3"},  AsShown},
    {"Stipulation",                   {"Form4", "Text2"},   AsShown},
    {"Title On The Line?",            {"Form4", "Combo1"},  AsShown},
    {"Title Changes Hands?",          {"Form4", "Combo2"},  AsShown},
    {"Match Finish",                  {"Form4", "Combo4"},  AsShown},
    {"DQ Possible In This Match?",    {"Form4", "Combo10"}, AsShown},
    {"Attacker(s) Name(s)",           {"Form5", "Text2"},   AsShown},
    {"Attacker(s) Disposition",       {"Form5", "Combo3"},  AsShown},
    {"Attacker(s) Ring Style",        {"Form5", "Combo1"},  AsShown},
    {"Attacker(s) Gender",            {"Form5", "Combo2"},  AsShown},
    {"Attacker Is The Title Holder?", {"Form5", "Combo4"},  AsShown},
    {"Attacker(s) Manager Name",      {"Form5", "Text1"},   AsShown},
    {"Attacker(s) Manager's Gender",  {"Form5", "Combo5"},  AsShown},
    {"Attacker(s) Manager - Worker?", {"Form5", "Combo6"},  AsShown},
    {"Attacker(s) Finisher Type",     {"Form5", "Combo7"},  FinisherType},
    {"Attacker(s) Stable",            {"Form5", "Text3"},   AsShown},
    {"Receiver Name",                 {"Form6", "Text2"},   AsShown},
    {"Receiver Disposition",          {"Form6", "Combo3"},  AsShown},
    {"Receiver Ring Style",           {"Form6", "Combo1"},  AsShown},
    {"Receiver Gender",               {"Form6", "Combo2"},  AsShown},
    {"Receiver Is The Title Holder?", {"Form6", "Combo4"},  AsShown},
    {"Receiver Manager Name",         {"Form6", "Text1"},   AsShown},
    {"Receiver Manager's Gender",     {"Form6", "Combo5"},  AsShown},
    {"Receiver Manager - Worker?",    {"Form6", "Combo6"},  AsShown},
    {"Receiver Finisher Type",        {"Form6", "Combo7"},  FinisherType},
    {"Receiver Stable",               {"Form6", "Text3"},   AsShown},
    {"Commentary line 1",             {"Form7", "Text1"},   AsShown},
    {"Commentary line 2",             {"Form7", "Text2"},   BlankIfEmpty},
    {"Commentary line 3",             {"Form7", "Text3"},   BlankIfEmpty},
    {"Commentary line 4",             {"Form7", "Text4"},   BlankIfEmpty},
    {"Commentary line 5",             {"Form7", "Text5"},   BlankIfEmpty},
    {"Commentary line 6",             {"Form7", "Text6"},   BlankIfEmpty},
    {"Commentary line 7",             {"Form7", "Text7"},   BlankIfEmpty},
    {"Commentary line 8",             {"Form7", "Text8"},   BlankIfEmpty},
    {"Commentary line 9",             {"Form7", "Text9"},   BlankIfEmpty},
    {"Commentary line 10",            {"Form7", "Text10"},  BlankIfEmpty},
};
// clang-format on

TEST(NormalEndingLayout, HasThirtySixLines)
{
    EXPECT_EQ(normalEndingLayout().size(), 36U);
}

TEST(NormalEndingLayout, EveryLineHasItsFieldSourceAndCoding)
{
    const RecordLayout &layout = normalEndingLayout();
    ASSERT_EQ(layout.size(), std::size(kExpected));
    for (std::size_t line = 0; line < layout.size(); ++line) {
        SCOPED_TRACE(line + 1);
        EXPECT_STREQ(layout[line].caption, kExpected[line].caption);
        EXPECT_STREQ(layout[line].source.screen, kExpected[line].source.screen);
        EXPECT_STREQ(layout[line].source.control, kExpected[line].source.control);
        EXPECT_EQ(layout[line].coding, kExpected[line].coding);
    }
}

} // namespace
} // namespace tarvold
