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

/// What a window consists of, and where it is. All places are in the window's own
/// device-independent pixels.
namespace tarvold::testing::parts {

/// The visible widgets of a type, in no particular order.
template <class T>
QList<T *> visible(const QWidget &window)
{
    QList<T *> found = window.findChildren<T *>();
    found.removeIf([](const T *widget) { return !widget->isVisible(); });
    return found;
}

/// What a user gets to by Tab.
QList<QWidget *> focusable(const QWidget &window);

/// What a user reads or uses, whole: labels, boxes, scroll bars of forms, buttons, lists.
QList<QWidget *> items(const QWidget &window);

/// A name for messages: the object's own, or what it is.
QString nameOf(const QWidget &widget);

/// Scrolls the window, if it can be, until the widget can be seen.
void reveal(QWidget &widget);

/// Where a widget is in its window.
QRect placeOf(const QWidget &widget);

/// Where a place in a widget is in the window.
QRect placeOf(const QWidget &widget, const QRect &inside);

/// Where the text of it is drawn: as much of it as is to be seen, without what is around it.
QRect textOf(const QLabel &label);
QRect textOf(const QPushButton &button);
QRect textOf(const QLineEdit &box);

/// The room that a box has for its text, in the box's own pixels.
QRect roomOf(const QLineEdit &box);

/// Where the text of a row of a list is drawn.
QRect rowTextOf(const QAbstractItemView &list, int row);

/// A part of a combo box, in its own pixels.
QRect partOf(const QComboBox &combo, QStyle::SubControl part);

/// A part of a scroll bar, in its own pixels.
QRect partOf(const QScrollBar &bar, QStyle::SubControl part);

} // namespace tarvold::testing::parts
