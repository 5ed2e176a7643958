#pragma once

#include <QString>

class QLineEdit;
class QWidget;

/// The one value that each kind of control holds, as text.
namespace tarvold::controls {

/// The text of a text box, combo box or label; the value of a scroll bar in plain decimal digits.
QString textOf(const QWidget &control);

/// The numeric value of a text: its leading digits, none counting as 0. What is beyond the whole
/// numbers of the type counts as the nearest one.
int numericValue(const QString &text);

/// Puts a text into a text box, combo box or label, or a value given in digits into a scroll bar.
/// This is never a choice of the user's: no tag is inserted by it.
void setTextOf(QWidget &control, const QString &text);

/// The box that the user types into: the control itself or the one inside a combo box; else none.
QLineEdit *textBoxOf(QWidget &control);

/// Tells assistive technology what the control is called and, if it is given, what it is for.
void describe(QWidget &control, const QString &name, const QString &purpose = {});

} // namespace tarvold::controls
