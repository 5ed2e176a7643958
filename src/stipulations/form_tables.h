#pragma once

#include "datafiles/stipulation_format.h"
#include "screens/form_grid.h"

#include <array>
#include <span>

/// The tables of the stipulation form.
namespace tarvold::stipulationform {

/// The rows above and below the table of values.
std::span<const Field> upperFields();
std::span<const Field> lowerFields();

/// A line of a stipulation on the form.
struct FormLine
{
    const RecordField *field;
    const char *control;  ///< where its text is shown; none for a line that the form does not show
    const char *newValue; ///< the line that a new stipulation starts from
};

/// All lines, in the order of kStipulationFormat.
extern const std::array<FormLine, kStipulationFormat.size()> kLines;

/// A column of the table of values: its caption and its two combo boxes.
struct ValueColumn
{
    const char *label;
    const char *caption;
    const RecordField *draw;
    const RecordField *entertainment;
    bool offersNa; ///< "NA" stands before the numbers
};
extern const std::array<ValueColumn, 4> kValueColumns;

/// The control of a field that the form shows.
const char *controlOf(const RecordField &field);

/// "NA", "1" to "100", or the numbers alone.
Items valueItems(bool offersNa);

} // namespace tarvold::stipulationform
