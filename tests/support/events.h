#pragma once

#include "support/print.h"

class QWidget;

namespace tarvold {
class ComboBox;
}

/// Real events, sent only to what a user could reach: a control that is hidden, disabled or blocked
/// by a message box fails the test.
namespace tarvold::testing {

/// Fails the test unless a user can reach the control now.
void expectReachable(const QWidget &control);

/// Waits until the window has the keyboard, which a window manager would give it.
void expectActive(QWidget &window);

/// A left click in the middle of the control; on the text of a combo box, if that gets clicks.
void click(QWidget &control);

/// Clicks into a text or combo box, selects what is there and types the text over it.
void typeOver(QWidget &box, const QString &text);

/// Puts a text on the clipboard and pastes it at the cursor with Ctrl+V.
void paste(QWidget &box, const QString &text);

/// Turns the mouse wheel over the control: away from the user by so many notches, or towards.
void turnWheel(QWidget &control, int notches);

/// Moves two fingers on a touchpad over the control, by so many eighths of a degree: a notch of the
/// wheel has 120.
void strokeTouchpad(QWidget &control, int eighths);

/// Opens the list with a click on the arrow and clicks the item.
void pick(ComboBox &combo, const QString &item);

/// Opens the list with Alt+Down, goes to the item with arrow keys and presses Enter.
void pickByKeyboard(ComboBox &combo, const QString &item);

} // namespace tarvold::testing
