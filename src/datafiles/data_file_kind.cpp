#include "datafiles/data_file_kind.h"

#include <algorithm>

namespace tarvold {

// clang-format off
const std::array<DataFileKindRow, 6> kDataFileKinds = {{
    {DataFileKind::NormalEndings, {"Form1", "Text3"}, "normreports.tvd",  "normal match endings",       36},
    {DataFileKind::RunInEndings,  {"Form1", "Text4"}, "feudreports.tvd",  "match endings with run-ins", 44},
    {DataFileKind::TurnEndings,   {"Form1", "Text5"}, "turnreports.tvd",  "match endings with turns",   33},
    {DataFileKind::Interviews,    {"Form1", "Text6"}, "interviews.tvd",   "interview segments",         19},
    {DataFileKind::TalkShows,     {"Form1", "Text7"}, "talkshow.tvd",     "talk show segments",         19},
    {DataFileKind::Stipulations,  {"Form1", "Text1"}, "stipulations.tvd", "match stipulations",         19},
}};
// clang-format on

const DataFileKindRow &rowOf(DataFileKind kind)
{
    return *std::find_if(kDataFileKinds.begin(), kDataFileKinds.end(),
                         [kind](const DataFileKindRow &row) { return row.kind == kind; });
}

} // namespace tarvold
