#pragma once

#include "controls/announcement.h"

#include <QEvent>
#include <QStringList>

namespace tarvold::testing {

/// Records what screen readers are told by any announcement of a screen.
class Ear : public QObject
{
public:
    explicit Ear(const QWidget &screen)
    {
        for (Announcement *each : screen.findChildren<Announcement *>()) {
            each->installEventFilter(this);
        }
    }

    QStringList told;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            told << static_cast<Announcement *>(watched)->accessibleName();
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace tarvold::testing
