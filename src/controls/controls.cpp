#include "controls/controls.h"

#include "controls/combo_box.h"

#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>

#include <limits>

namespace tarvold::controls {

using namespace Qt::StringLiterals;

QString textOf(const QWidget &control)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(&control)) {
        return combo->currentText();
    }
    if (const auto *box = qobject_cast<const QLineEdit *>(&control)) {
        return box->text();
    }
    if (const auto *label = qobject_cast<const QLabel *>(&control)) {
        return label->text();
    }
    if (const auto *bar = qobject_cast<const QScrollBar *>(&control)) {
        return QString::number(bar->value());
    }
    qFatal("the control %s holds no text", qPrintable(control.objectName()));
}

int numericValue(const QString &text)
{
    static const QRegularExpression leadingNumber(u"^\\s*[+-]?[0-9]+"_s);
    const double value = leadingNumber.match(text).captured().toDouble();
    return static_cast<int>(
        qBound<double>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

void setTextOf(QWidget &control, const QString &text)
{
    if (auto *combo = qobject_cast<ComboBox *>(&control)) {
        combo->setText(text);
    } else if (auto *box = qobject_cast<QLineEdit *>(&control)) {
        box->setText(text);
    } else if (auto *label = qobject_cast<QLabel *>(&control)) {
        label->setText(text);
    } else if (auto *bar = qobject_cast<QScrollBar *>(&control)) {
        bar->setValue(text.toInt());
    } else {
        qFatal("the control %s holds no text", qPrintable(control.objectName()));
    }
}

QLineEdit *textBoxOf(QWidget &control)
{
    const auto *combo = qobject_cast<QComboBox *>(&control);
    return combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit *>(&control);
}

void describe(QWidget &control, const QString &name, const QString &purpose)
{
    // Screen readers read the text of a combo box instead of its name, so the box inside it gets
    // both as well.
    for (QWidget *spoken : {&control, static_cast<QWidget *>(textBoxOf(control))}) {
        if (spoken != nullptr) {
            spoken->setAccessibleName(name);
            spoken->setAccessibleDescription(purpose);
        }
    }
}

} // namespace tarvold::controls
