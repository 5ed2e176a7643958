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
    QAccessible::installFactory(newNotification); // once is enough, and more often does no harm
    setFixedSize(0, 0);
    hide();
}

void Announcement::tell(const QString &text)
{
    setAccessibleName(text);
    hide();
    show(); // tells assistive technology by itself
}

void Announcement::hideEvent(QHideEvent *event)
{
    hide(); // else it would be shown with its window, and read out, the next time
    QWidget::hideEvent(event);
}

} // namespace tarvold
