#include "shell/push_button.h"

#include "shell/sizes.h"

#include <QShortcutEvent>

namespace tarvold {

PushButton::PushButton(const QString &caption, QWidget *parent) : QPushButton(caption, parent)
{
    setMinimumWidth(fontMetrics().horizontalAdvance(caption) + 2 * kControlHeight);
    setAutoDefault(true);
}

void PushButton::setKeys(const QKeySequence &keys, const QString &name)
{
    setShortcut(keys);
    const QString shown = keys.toString(QKeySequence::NativeText);
    setAccessibleName(name);
    setAccessibleDescription(shown); // the hint would tell the name once more
    setToolTip(name.isEmpty() ? shown : QStringLiteral("%1 (%2)").arg(name, shown));
}

bool PushButton::event(QEvent *event)
{
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
        click();
        return true;
    }
    return QPushButton::event(event);
}

} // namespace tarvold
