#pragma once

#include "records/record.h"

#include <vector>

namespace tarvold::records {

/// How the lines of a record that is out of step are meant.
///
/// A line that a bare LF or CR broke into parts is one again if that makes up for lines that are
/// too many. Texts fit any field, so that the record's own layout rarely tells where the line is
/// broken.
struct Step
{
    /// A line as it is meant: lines of the record, first to last.
    struct Whole
    {
        int first;
        int last;

        bool isBroken() const { return first < last; }
    };

    std::vector<Whole> wholes; ///< none if the record is not out of step
    Layout layout;             ///< of these

    static Step of(const Record &record);
};

} // namespace tarvold::records
