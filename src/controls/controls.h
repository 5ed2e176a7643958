#pragma once

#include <QString>

class QLineEdit;
class QWidget;

/// The value of a control, as text.
namespace tarvold::controls {

/// The text of a text box, combo box or label; the value of a scroll bar in plain decimal digits.
QString textOf(const QWidget &control);

/// The numeric value of a text: its leading whole number, or 0 if there is none. Values outside the
/// range of int are clamped.
int numericValue(const QString &text);

/// Sets the text of a text box, combo box or label, or the value, given in digits, of a scroll bar.
/// This never counts as a choice by the user: it inserts no tag.
void setTextOf(QWidget &control, const QString &text);

/// The text box: the control itself or the one inside a combo box; null for other controls.
QLineEdit *textBoxOf(QWidget &control);

/// Sets the name and, if given, the purpose of a control for assistive technology.
void describe(QWidget &control, const QString &name, const QString &purpose = {});

} // namespace tarvold::controls
