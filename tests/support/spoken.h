#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace tarvold::testing {

/// The name under which assistive technology knows a control.
QString spokenName(QWidget &control);

/// The controls of a window that can have the focus, those of another flow included.
QList<QWidget *> focusableControls(const QWidget &window);

/// Fails the test unless every control that can have the focus has a name of its own.
void expectOwnNames(const QWidget &window);

/// The controls that Tab stops at, from the one that has the focus until it comes back.
QList<QWidget *> tabStops(QWidget &window);

/// Fails the test unless Tab stops at every control that can have the focus and be seen, from top
/// to bottom and in a line from left to right.
void expectReadingOrder(QWidget &window);

/// Presses Tab until the control of this name has the focus.
void tabTo(QWidget &window, const char *name);

} // namespace tarvold::testing
