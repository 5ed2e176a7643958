#include "datafiles/data_file_kind.h"

#include <gtest/gtest.h>

namespace tarvold {
namespace {

struct ExpectedKind
{
    DataFileKind kind;
    const char *defaultName;
    int lines;
};

constexpr ExpectedKind kExpectedKinds[] = {
    {DataFileKind::NormalEndings, "normreports.tvd", 36},
    {DataFileKind::RunInEndings, "feudreports.tvd", 44},
    {DataFileKind::TurnEndings, "turnreports.tvd", 33},
    {DataFileKind::Interviews, "interviews.tvd", 19},
    {DataFileKind::TalkShows, "talkshow.tvd", 19},
    {DataFileKind::Stipulations, "stipulations.tvd", 19},
};

TEST(DataFileKinds, EachHasItsDefaultNameAndRecordLength)
{
    EXPECT_EQ(kDataFileKinds.size(), std::size(kExpectedKinds));
    for (const ExpectedKind &expected : kExpectedKinds) {
        SCOPED_TRACE(expected.defaultName);
        const DataFileKindRow &row = rowOf(expected.kind);
        EXPECT_EQ(row.kind, expected.kind);
        EXPECT_STREQ(row.defaultName, expected.defaultName);
        EXPECT_EQ(row.linesPerRecord(), expected.lines);
    }
}

} // namespace
} // namespace tarvold
