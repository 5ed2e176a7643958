#include "datafiles/data_file_kind.h"

#include <gtest/gtest.h>

namespace tarvold {
namespace {

struct ExpectedKind
{
    DataFileKind kind;
    const char *box;
    const char *defaultName;
    int lines;
};

constexpr ExpectedKind kExpected[] = {
    {DataFileKind::NormalEndings, "Text3", "normreports.tvd", 36},
    {DataFileKind::RunInEndings, "Text4", "feudreports.tvd", 44},
    {DataFileKind::TurnEndings, "Text5", "turnreports.tvd", 33},
    {DataFileKind::Interviews, "Text6", "interviews.tvd", 19},
    {DataFileKind::TalkShows, "Text7", "talkshow.tvd", 19},
    {DataFileKind::Stipulations, "Text1", "stipulations.tvd", 19},
};

TEST(DataFileKinds, EachHasItsBoxDefaultNameAndRecordLength)
{
    EXPECT_EQ(kDataFileKinds.size(), std::size(kExpected));
    for (const ExpectedKind &expected : kExpected) {
        SCOPED_TRACE(expected.defaultName);
        const DataFileKindRow &row = rowOf(expected.kind);
        EXPECT_EQ(row.kind, expected.kind);
        EXPECT_STREQ(row.nameBox.screen, "Form1");
        EXPECT_STREQ(row.nameBox.control, expected.box);
        EXPECT_STREQ(row.defaultName, expected.defaultName);
        EXPECT_EQ(row.linesPerRecord, expected.lines);
    }
}

} // namespace
} // namespace tarvold
