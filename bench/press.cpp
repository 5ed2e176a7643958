#include "press.h"

#include "editor.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QTest>

namespace tarvold::bench {
namespace {

/// Notes when a widget has been painted.
class PaintWatch : public QObject
{
public:
    bool painted = false;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

/// The widget that paints the content of a control.
QWidget *surfaceOf(QWidget &control)
{
    auto *area = qobject_cast<QAbstractScrollArea *>(&control);
    return area != nullptr ? area->viewport() : &control;
}

} // namespace

void settle(Screen &screen)
{
    if (!QTest::qWaitForWindowExposed(&screen)) {
        qFatal("a screen was not shown");
    }
    QCoreApplication::processEvents();
}

void pressUntilPainted(Editor &editor, const char *from, const char *button, const char *next,
                       const char *part)
{
    auto &pressed = editor.screens()[from].control<QAbstractButton>(button);
    PaintWatch watch;
    pressed.click();
    Screen &screen = editor.screens()[next];
    QWidget *watched = part != nullptr ? surfaceOf(screen.control<QWidget>(part)) : &screen;
    watched->installEventFilter(&watch);
    while (!watch.painted) {
        QCoreApplication::processEvents();
    }
    watched->removeEventFilter(&watch);
}

} // namespace tarvold::bench
