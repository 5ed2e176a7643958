#pragma once

#include <QPoint>
#include <Qt>

#include <chrono>

class QWidget;

/// The mouse as the desktop reports it: each event goes to the window that is under the pointer at
/// that moment, with a time, and Qt makes double clicks of it.
namespace tarvold::testing::mouse {

/// What time it is for the program. It stands still but for the clicks, each of which comes after a
/// pause, and for `pass` and `keepBusy`.
std::chrono::steady_clock::time_point now();

/// Lets time pass. The program does meanwhile what it has to do.
void pass(std::chrono::milliseconds pause);

/// From here on what the user does comes to the program so late, with the time at which it was
/// done. With 0 the program has caught up.
void keepBusy(std::chrono::milliseconds late);

/// Presses and releases a button at a place of the desktop.
void click(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Presses a button of the mouse, after a pause that makes it no second click, and holds it.
void press(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// The same, but as the second of a double click, given the same place.
void pressAgain(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Lets go of a button.
void release(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Clicks once more, at once or after what `pass` let pass: Qt takes it for the second click of a
/// double click, given the same place.
void clickAgain(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Clicks twice, so fast that it is a double click wherever windows allow it to be one.
void doubleClick(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Presses at one place and releases at another, with a move between.
void drag(const QPoint &from, const QPoint &to);

/// The middle of a control on the desktop.
QPoint middleOf(const QWidget &control);

} // namespace tarvold::testing::mouse
