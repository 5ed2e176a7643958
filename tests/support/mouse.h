#pragma once

#include <QPoint>
#include <Qt>

#include <chrono>

class QWidget;

/// Simulates the mouse as the desktop reports it: each event goes to the window that is under the
/// pointer at that moment, with a timestamp, and Qt detects double clicks.
namespace tarvold::testing::mouse {

/// The simulated time that the program sees. It advances only by clicks, each of which comes after
/// a pause, and by pass() and keepBusy().
std::chrono::steady_clock::time_point now();

/// Lets time pass while the program handles its events.
void pass(std::chrono::milliseconds pause);

/// Simulates a busy program: from now on, events arrive this much later than their timestamps. 0
/// means that the program has caught up.
void keepBusy(std::chrono::milliseconds late);

/// Clicks at a position on the desktop.
void click(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Presses and holds a mouse button, after a pause so long that it is no double click.
void press(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Presses and holds a mouse button so that it is the second press of a double click, if the
/// position is the same.
void pressAgain(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Releases a mouse button.
void release(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Clicks again, at once or after pass(), so that Qt takes it for the second click of a double
/// click, if the position is the same.
void clickAgain(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Clicks twice within the double click interval.
void doubleClick(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Drags from one position to another.
void drag(const QPoint &from, const QPoint &to);

/// The centre of a control, in desktop coordinates.
QPoint middleOf(const QWidget &control);

} // namespace tarvold::testing::mouse
