#pragma once

#include "datafiles/record.h"

#include <array>

namespace tarvold {

/// The six kinds of data files.
enum class DataFileKind {
    NormalEndings,
    RunInEndings,
    TurnEndings,
    Interviews,
    TalkShows,
    Stipulations,
};

/// What the program knows of one kind of data file.
struct DataFileKindRow
{
    DataFileKind kind;
    const char *defaultName; ///< the name proposed for such a file
    const char *content;     ///< what the file holds, in words
    RecordFormat format;     ///< the lines of each record

    int linesPerRecord() const { return static_cast<int>(format.size()); }
};

/// All kinds, a row each.
extern const std::array<DataFileKindRow, 6> kDataFileKinds;

/// The row of one kind.
const DataFileKindRow &rowOf(DataFileKind kind);

} // namespace tarvold
