#include "controls/push_button.h"

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
    const QString shown = keys.toString(QKeySequence::NativeText);
    setAccessibleName(name);
    setAccessibleDescription(shown); // by default the tooltip, which repeats the name
    setToolTip(name.isEmpty() ? shown : u"%1 (%2)"_s.arg(name, shown));
}

void PushButton::keyPressEvent(QKeyEvent *event)
{
    if (!event->isAutoRepeat()) {
        QPushButton::keyPressEvent(event);
    }
}

} // namespace tarvold
