#pragma once

#include "screens/help_line.h"

#include <span>

class QGridLayout;

namespace tarvold {

class Screen;

/// The items of a combo box's list, in their order.
using Items = std::span<const char *const>;

/// A scroll bar from 1 to 100 and the label beside it that shows its value with "%".
struct Bar
{
    const char *valueLabel; ///< the label's name
    const char *designText; ///< what it shows when the screen is made
    const char *prefix;     ///< what it puts before the digits once the user has moved the bar
    bool followsDrag;       ///< whether it changes during a drag, not only when the thumb is let go
};

/// A field of a screen: a caption label and the control beside it.
struct Field
{
    const char *control;
    const char *label; ///< a label named as that of the field before: both stand in the same place
    const char *caption;
    Items items = {};            ///< the list of a combo box; none makes a text box
    const Bar *bar = nullptr;    ///< makes a scroll bar
    const char *designText = ""; ///< what a text box holds when the screen is made
    const char *help = nullptr;  ///< shown in the screen's help label
    HelpOn helpOn = HelpOn::Focus;
    const char *spokenName = nullptr; ///< for assistive technology where the caption is not unique
};

/// Lays fields out as rows, labels on the left and controls on the right.
namespace formgrid {

/// Makes the rows for a screen; whoever adds the layout to the screen owns it.
/// \param help the label that shows their help texts, or none
QGridLayout *build(Screen &screen, std::span<const Field> fields, HelpLine *help);

/// The width of the labels, one for all screens: the controls stand in the same place on each.
int labelWidth(const Screen &screen);

/// Makes a field's control, without its label, and makes it known to the screen.
QWidget *newControl(Screen &screen, const Field &field);

} // namespace formgrid
} // namespace tarvold
