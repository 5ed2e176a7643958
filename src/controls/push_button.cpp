#include "controls/push_button.h"

#include "controls/controls.h"
#include "controls/long_text.h"
#include "controls/sizes.h"
#include "controls/text_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

/// Keys press a button without taking the focus from the box that is typed in.
void endTyping()
{
    QWidget *focused = QApplication::focusWidget();
    QLineEdit *box = focused == nullptr ? nullptr : controls::textBoxOf(*focused);
    if (auto *textBox = qobject_cast<TextBox *>(box)) {
        emit textBox->typingEnded();
    }
}

} // namespace

PushButton::PushButton(const QString &caption, QWidget *parent) : QPushButton(caption, parent)
{
    setMinimumWidth(fontMetrics().horizontalAdvance(caption) + 2 * kControlHeight);
    setAutoDefault(true);
}

void PushButton::setKeys(const QKeySequence &keys, const QString &name)
{
    auto *shortcut = new QShortcut(keys, this, this, [this] {
        endTyping();
        click();
    });
    shortcut->setAutoRepeat(false); // a held key would run through all screens
    m_keys = keys.toString(QKeySequence::NativeText);
    setAccessibleName(name);
    setAccessibleDescription(m_keys); // by default the tooltip, which repeats the name
    setToolTip(name.isEmpty() ? m_keys : u"%1 (%2)"_s.arg(name, m_keys));
}

void PushButton::setPurpose(const QString &purpose)
{
    setAccessibleDescription(withKeys(purpose));
    showPurpose(purpose);
}

void PushButton::showPurpose(const QString &purpose)
{
    setToolTip(longtext::toolTip(withKeys(purpose)));
}

QString PushButton::withKeys(const QString &purpose) const
{
    return m_keys.isEmpty() ? purpose : u"%1 (%2)"_s.arg(purpose, m_keys);
}

void PushButton::keyPressEvent(QKeyEvent *event)
{
    if (!event->isAutoRepeat()) {
        QPushButton::keyPressEvent(event);
    }
}

} // namespace tarvold
