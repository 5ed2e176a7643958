#pragma once

#include <QPoint>
#include <Qt>

class QWidget;

/// The mouse as the desktop reports it: each event goes to the window that is under the pointer at
/// that moment, with a time, and the toolkit makes double clicks of it.
namespace tarvold::testing::mouse {

/// Presses and releases a button at a place of the desktop.
void click(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Clicks once more, so fast that it is the second click of a double click, given the same place.
void clickAgain(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Clicks twice, so fast that it is a double click wherever windows allow it to be one.
void doubleClick(const QPoint &place, Qt::MouseButton button = Qt::LeftButton);

/// Presses at one place and releases at another, with a move between.
void drag(const QPoint &from, const QPoint &to);

/// The middle of a control on the desktop.
QPoint middleOf(const QWidget &control);

} // namespace tarvold::testing::mouse
