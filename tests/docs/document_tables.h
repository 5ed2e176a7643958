#pragma once

#include "datafiles/coding.h"

#include <QString>

#include <ostream>
#include <vector>

namespace tarvold::testing {

/// A row of a table of docs/file-formats.md, cell by cell.
struct DocumentRow
{
    QString line;
    QString field;
    QString source; ///< screen and control, such as "Form4, Combo3"
    QString value;  ///< without the remark after the semicolon

    bool operator==(const DocumentRow &) const = default;
};

void PrintTo(const DocumentRow &row, std::ostream *out);

/// How the document describes the value of a line with this coding.
QString valueWord(Coding coding);

/// The section on one kind of data file.
struct DocumentSection
{
    QString heading;
    QString defaultFile;
    std::vector<DocumentRow> rows;
};

/// The sections of docs/file-formats.md that have a table of lines, in the document's order.
std::vector<DocumentSection> documentSections();

} // namespace tarvold::testing
