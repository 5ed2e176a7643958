#include "controls/announcement.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace tarvold {
namespace {

QAccessibleInterface *newNotification(const QString & /*className*/, QObject *object)
{
    auto *announcement = qobject_cast<Announcement *>(object);
    return announcement == nullptr ? nullptr
                                   : new QAccessibleWidget(announcement, QAccessible::Notification);
}

} // namespace

Announcement::Announcement(QWidget *parent) : QWidget(parent)
{
    QAccessible::installFactory(newNotification); // repeated calls do no harm
    setFixedSize(0, 0);
    hide();
}

void Announcement::tell(const QString &text)
{
    setAccessibleName(text);
    hide();
    show(); // Qt notifies assistive technology of this
}

void Announcement::hideEvent(QHideEvent *event)
{
    hide(); // or it would be shown, and read out again, with its window
    QWidget::hideEvent(event);
}

} // namespace tarvold
