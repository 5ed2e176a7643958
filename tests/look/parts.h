#pragma once

#include <QList>
#include <QRect>
#include <QStyle>
#include <QWidget>

class QAbstractItemView;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

/// Finds the parts of a window and their positions. Positions are in device-independent pixels of
/// the window, unless stated otherwise.
namespace tarvold::testing::parts {

/// The visible widgets of a type, in no particular order.
template <class T>
QList<T *> visible(const QWidget &window)
{
    QList<T *> found = window.findChildren<T *>();
    found.removeIf([](const T *widget) { return !widget->isVisible(); });
    return found;
}

/// The Tab stops of a window.
QList<QWidget *> focusable(const QWidget &window);

/// The parts that a user reads or uses: labels, boxes, scroll bars of forms, buttons, lists. Parts
/// of such parts are left out.
QList<QWidget *> items(const QWidget &window);

/// A name for messages: the object name, or a description.
QString nameOf(const QWidget &widget);

/// Scrolls the window, if necessary, until the widget is visible.
void reveal(QWidget &widget);

/// The rectangle of a widget in its window.
QRect placeOf(const QWidget &widget);

/// The rectangle in the window of a rectangle `inside` a widget.
QRect placeOf(const QWidget &widget, const QRect &inside);

/// What has the outline and the focus mark inside a control: of a check box only its square,
/// of tabs the current one.
QRect frameOf(const QWidget &control);

/// The rectangle in the window of the visible text.
QRect textOf(const QLabel &label);
QRect textOf(const QPushButton &button);
QRect textOf(const QLineEdit &box);

/// The rectangle for the text of a box, in its own pixels.
QRect roomOf(const QLineEdit &box);

/// The rectangle in the window of the text of a list row.
QRect rowTextOf(const QAbstractItemView &list, int row);

/// A part of a combo box, in its own pixels.
QRect partOf(const QComboBox &combo, QStyle::SubControl part);

/// A part of a scroll bar, in its own pixels.
QRect partOf(const QScrollBar &bar, QStyle::SubControl part);

} // namespace tarvold::testing::parts
