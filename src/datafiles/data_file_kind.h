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
    ControlRef nameBox;      ///< the main menu box that holds the file's name
    const char *defaultName; ///< what that box holds when the program starts
    const char *content;     ///< what the file holds, in words, to tell the boxes apart
    int linesPerRecord;
};

/// All kinds, a row each.
extern const std::array<DataFileKindRow, 6> kDataFileKinds;

/// The row of one kind.
const DataFileKindRow &rowOf(DataFileKind kind);

} // namespace tarvold
