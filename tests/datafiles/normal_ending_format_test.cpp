#include "datafiles/data_file_kind.h"

#include <gtest/gtest.h>

namespace tarvold {
namespace {

using enum Coding;

// clang-format off
const RecordField kExpected[] = {
    {"Match Type",                    AsShown},
    {"Stipulation",                   AsShown},
    {"Title On The Line?",            AsShown},
    {"Title Changes Hands?",          AsShown},
    {"Match Finish",                  AsShown},
    {"DQ Possible In This Match?",    AsShown},
    {"Attacker(s) Name(s)",           AsShown},
    {"Attacker(s) Disposition",       AsShown},
    {"Attacker(s) Ring Style",        AsShown},
    {"Attacker(s) Gender",            AsShown},
    {"Attacker Is The Title Holder?", AsShown},
    {"Attacker(s) Manager Name",      AsShown},
    {"Attacker(s) Manager's Gender",  AsShown},
    {"Attacker(s) Manager - Worker?", AsShown},
    {"Attacker(s) Finisher Type",     FinisherType},
    {"Attacker(s) Stable",            AsShown},
    {"Receiver Name",                 AsShown},
    {"Receiver Disposition",          AsShown},
    {"Receiver Ring Style",           AsShown},
    {"Receiver Gender",               AsShown},
    {"Receiver Is The Title Holder?", AsShown},
    {"Receiver Manager Name",         AsShown},
    {"Receiver Manager's Gender",     AsShown},
    {"Receiver Manager - Worker?",    AsShown},
    {"Receiver Finisher Type",        FinisherType},
    {"Receiver Stable",               AsShown},
    {"Commentary line 1",             AsShown},
    {"Commentary line 2",             BlankIfEmpty},
    {"Commentary line 3",             BlankIfEmpty},
    {"Commentary line 4",             BlankIfEmpty},
    {"Commentary line 5",             BlankIfEmpty},
    {"Commentary line 6",             BlankIfEmpty},
    {"Commentary line 7",             BlankIfEmpty},
    {"Commentary line 8",             BlankIfEmpty},
    {"Commentary line 9",             BlankIfEmpty},
    {"Commentary line 10",            BlankIfEmpty},
};
// clang-format on

TEST(NormalEndingFormat, HasThirtySixLines)
{
    EXPECT_EQ(rowOf(DataFileKind::NormalEndings).format.size(), 36U);
}

TEST(NormalEndingFormat, EveryLineHasItsFieldAndCoding)
{
    const RecordFormat format = rowOf(DataFileKind::NormalEndings).format;
    ASSERT_EQ(format.size(), std::size(kExpected));
    for (std::size_t line = 0; line < format.size(); ++line) {
        SCOPED_TRACE(line + 1);
        EXPECT_STREQ(format[line]->name, kExpected[line].name);
        EXPECT_EQ(format[line]->coding, kExpected[line].coding);
    }
}

} // namespace
} // namespace tarvold
