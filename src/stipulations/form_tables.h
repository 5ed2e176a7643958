#pragma once

#include "screens/form_grid.h"

#include <array>
#include <span>

/// The tables of the stipulation form.
namespace tarvold::stipulationform {

/// The rows above and below the table of values.
std::span<const Field> upperFields();
std::span<const Field> lowerFields();

/// A column of the table of values: its caption and its two combo boxes.
struct ValueColumn
{
    const char *label;
    const char *caption;
    const char *draw;
    const char *entertainment;
    bool offersNa; ///< "NA" stands before the numbers
};
extern const std::array<ValueColumn, 4> kValueColumns;

/// "NA", "1" to "100", or the numbers alone.
Items valueItems(bool offersNa);

/// A line of a record that a control shows as it is.
struct PlainLine
{
    int line; ///< from 1
    const char *control;
    const char *newValue; ///< what a new stipulation starts from
};
extern const std::array<PlainLine, 15> kPlainLines;

/// What the quality combo box offers, and the words in the file.
struct QualityWord
{
    const char *item;
    const char *word;
};
extern const std::array<QualityWord, 3> kQualities;

} // namespace tarvold::stipulationform
