#pragma once

#include "support/print.h"

class QWidget;

namespace tarvold {
class ComboBox;
}

/// Sends real events, but only to what a user could reach: a control that is hidden, disabled or
/// blocked by a message box fails the test.
namespace tarvold::testing {

/// Fails the test unless a user can reach the control now.
void expectReachable(const QWidget &control);

/// Waits until the window is active. Activates it first, as a window manager would.
void expectActive(QWidget &window);

/// Clicks the middle of the control, or the text of a combo box if it accepts clicks.
void click(QWidget &control);

/// Clicks a text or combo box, selects its text and types over it.
void typeOver(QWidget &box, const QString &text);

/// Puts a text on the clipboard and pastes it at the cursor with Ctrl+V.
void paste(QWidget &box, const QString &text);

/// Turns the mouse wheel over the control by a number of notches: away from the user if positive,
/// towards the user if negative.
void turnWheel(QWidget &control, int notches);

/// Scrolls over the control with a touchpad, in eighths of a degree; a wheel notch is 120.
void strokeTouchpad(QWidget &control, int eighths);

/// Opens the list with a click on the arrow and clicks the item.
void pick(ComboBox &combo, const QString &item);

/// Opens the list with Alt+Down, moves to the item with the arrow keys and presses Enter.
void pickByKeyboard(ComboBox &combo, const QString &item);

} // namespace tarvold::testing
