#pragma once

#include "records/record.h"

#include <vector>

namespace tarvold::records {

/// How the lines of a record that is out of step are meant.
///
/// A line that a bare LF or CR broke into parts is one again if that makes up for lines that are
/// too many. Texts fit any field, so that the record's own layout rarely tells where the line is
/// broken. For lines of commentary that were broken by CR LF see joinBroken().
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
    bool isSure = true;        ///< whether no other lines of commentary may be the ones too many

    static Step of(const Record &record);
};

/// Matches lines as they are meant with fields.
Layout layoutOf(const Record &record, const std::vector<Step::Whole> &wholes);

/// Fields in a row, the first and the last of them.
struct FieldRun
{
    int first;
    int last;

    bool isOne() const { return first == last; }
    bool operator==(const FieldRun &) const = default;
};

/// The fields in a row whose lines are missing.
std::vector<FieldRun> missingRuns(const Layout &layout);

/// The fields of which some may be the ones that are missing, so that nobody can tell which. Among
/// lines that suit each other's fields, such as "Any" three times, it may be any of them.
/// \param missing one of missingRuns()
/// \return the same fields if hardly any other can be meant
FieldRun fieldsInDoubt(const Record &record, const Step &step, const FieldRun &missing);

} // namespace tarvold::records
