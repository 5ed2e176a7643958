#include "controls/push_button.h"

#include "controls/long_text.h"
#include "controls/sizes.h"

#include <QKeyEvent>
#include <QShortcut>

namespace tarvold {

using namespace Qt::StringLiterals;

PushButton::PushButton(const QString &caption, QWidget *parent) : QPushButton(caption, parent)
{
    setMinimumWidth(fontMetrics().horizontalAdvance(caption) + 2 * kControlHeight);
    setAutoDefault(true);
}

void PushButton::setKeys(const QKeySequence &keys, const QString &name)
{
    auto *shortcut = new QShortcut(keys, this, this, &QPushButton::click);
    shortcut->setAutoRepeat(false); // a held key would run through all screens
    m_keys = keys.toString(QKeySequence::NativeText);
    setAccessibleName(name);
    setAccessibleDescription(m_keys); // by default the tooltip, which repeats the name
    setToolTip(name.isEmpty() ? m_keys : u"%1 (%2)"_s.arg(name, m_keys));
}

void PushButton::setPurpose(const QString &purpose)
{
    const QString told = m_keys.isEmpty() ? purpose : u"%1 (%2)"_s.arg(purpose, m_keys);
    setAccessibleDescription(told);
    setToolTip(longtext::toolTip(told));
}

void PushButton::keyPressEvent(QKeyEvent *event)
{
    if (!event->isAutoRepeat()) {
        QPushButton::keyPressEvent(event);
    }
}

} // namespace tarvold
