#include "controls/lay_out.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollArea>

namespace tarvold {

void layOutNow(QScrollArea &area)
{
    area.widget()->layout()->activate();
    QEvent request(QEvent::LayoutRequest); // which the area follows
    QCoreApplication::sendEvent(area.widget(), &request);
}

} // namespace tarvold
