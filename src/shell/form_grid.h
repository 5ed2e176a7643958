#pragma once

#include "shell/help_line.h"

#include <span>

class QGridLayout;

namespace tarvold {

class Screen;

/// The items of a combo box's list, in their order.
using Items = std::span<const char *const>;

/// A field of a screen: a caption label and the control beside it.
struct Field
{
    const char *control;
    const char *label; ///< a label named as that of the field before: both stand in the same place
    const char *caption;
    Items items = {};            ///< the list of a combo box; none makes a text box
    const char *designText = ""; ///< what a text box holds when the screen is made
    const char *help = nullptr;  ///< shown in the screen's help label
    HelpOn helpOn = HelpOn::Focus;
    const char *spokenName = nullptr; ///< for assistive technology where the caption is not unique
};

/// Lays fields out as rows, labels on the left and controls on the right.
class FormGrid
{
public:
    /// Adds the rows to a screen.
    /// \param help the label that shows their help texts, or none
    static QGridLayout *build(Screen &screen, std::span<const Field> fields, HelpLine *help);
};

} // namespace tarvold
