#pragma once

#include "records/random_records.h"
#include "records/record.h"

namespace tarvold::records {

/// A line that is missing from a record, or stands there twice.
struct Fault
{
    int record;
    int field;
    bool isDoubled;
};

/// The bytes of a file with such faults, at most one in each record.
QByteArray damaged(std::vector<RecordLines> records, const std::vector<Fault> &faults);

/// How the records of a file are divided, each with the layout of its lines.
std::vector<Record> recordsOf(const QByteArray &file, const Catalog &catalog);

/// How often faults were found.
struct Tally
{
    int files = 0;
    int faults = 0;
    int records = 0; ///< files where exactly the damaged records were named
    int fields = 0;  ///< faults whose field was named
    int alike = 0;   ///< faults whose repair gives back the record that was
    int missing = 0; ///< faults of a line that is missing, and nothing else named
    int certain = 0; ///< faults for which a single field is named as the missing one
    int wrong = 0;   ///< faults of these that were at another field
    int outside = 0; ///< faults at a field that is not even among those named as possible
    int asGood = 0;  ///< faults that are alike, or whose lines suit the named fields as well

    /// Counts one damaged file.
    void add(const std::vector<RecordLines> &records, const std::vector<Fault> &faults,
             const Catalog &catalog);
    Tally &operator+=(const Tally &other);
};

} // namespace tarvold::records
