#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace tarvold::testing {

/// The name that assistive technology announces for a control.
QString spokenName(QWidget &control);

/// The controls of a window that can get the focus, including hidden ones that another flow uses.
QList<QWidget *> focusableControls(const QWidget &window);

/// Fails the test unless every control that can get the focus has a unique name.
void expectOwnNames(const QWidget &window);

/// The controls that Tab stops at, starting with the focused one, until it comes round.
QList<QWidget *> tabStops(QWidget &window);

/// Fails the test unless Tab stops at every visible control that can get the focus, from top to
/// bottom and from left to right within a row.
void expectReadingOrder(QWidget &window);

/// Presses Tab until the control with this name has the focus.
void tabTo(QWidget &window, const char *name);

} // namespace tarvold::testing
