#include "support/window_watch.h"

#include "screens/screen.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>

namespace tarvold::testing {
namespace {

auto visibleScreens()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::count_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return qobject_cast<const Screen *>(window) != nullptr && window->isVisible();
    });
}

} // namespace

WindowWatch::WindowWatch()
{
    qApp->installEventFilter(this);
}

bool WindowWatch::eventFilter(QObject *watched, QEvent *event)
{
    const bool isScreen = qobject_cast<Screen *>(watched) != nullptr;
    if (isScreen && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
        m_sawNone = m_sawNone || visibleScreens() == 0;
        m_sawTwo = m_sawTwo || visibleScreens() == 2;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvold::testing
