#pragma once

#include "datafiles/record.h"
#include "screens/help_line.h"

#include <span>

class QGridLayout;

namespace tarvold {

class Screen;

/// The items of a combo box, in order.
using Items = std::span<const char *const>;

/// A scroll bar from 1 to 100 and the label beside it that shows its value with "%".
struct Bar
{
    const char *valueLabel; ///< the label's name
    const char *designText; ///< what it shows when the screen is created
    const char *prefix;     ///< what it shows before the digits once the user has moved the bar
    bool followsDrag;       ///< whether it changes during a drag, not only on release
};

/// A field of a screen: a caption label and the control beside it.
///
/// A list marks a text that is none of its items where the file would lack a line for it (which the
/// coding of `field` decides), and where the list has "Yes", as other words are probably mistakes.
struct Field
{
    const char *control;
    const char *label;                  ///< the same as in the field before: both share one place
    const RecordField *field = nullptr; ///< what the control's text is saved as
    const char *caption = nullptr;      ///< the label's text, if it is not the name of `field`
    Items items = {};                   ///< the list of a combo box; empty makes a text box
    const Bar *bar = nullptr;           ///< makes a scroll bar
    const char *designText = "";        ///< what a text box holds when the screen is created
    const char *help = nullptr;         ///< shown in the screen's help label
    HelpOn helpOn = HelpOn::Focus;
    const char *spokenName = nullptr; ///< for assistive technology if the caption is not unique
};

/// Lays out fields as rows, labels on the left and controls on the right.
namespace formgrid {

/// Makes the rows of a screen and registers their controls; the caller owns the layout.
/// \param help the label that shows their help texts, or nullptr
QGridLayout *build(Screen &screen, std::span<const Field> fields, HelpLine *help);

/// What a list says of a text outside it where the file would lack a line for such a text.
QString lackingLine();

/// The width of the labels. All screens share it, so that their controls line up.
int labelWidth(const Screen &screen);

/// Makes a field's control, without its label, and registers it with the screen.
QWidget *newControl(Screen &screen, const Field &field);

} // namespace formgrid
} // namespace tarvold
