#include "shell/double_click_guard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

#include <utility>

namespace tarvold {
namespace {

/// What the user sees at a place of a window.
QWidget *widgetAt(const QWindow &window, const QPoint &place)
{
    QWidget *shown = QWidget::find(window.winId());
    QWidget *child = shown != nullptr ? shown->childAt(place) : nullptr;
    return child != nullptr ? child : shown;
}

} // namespace

DoubleClickGuard::DoubleClickGuard()
{
    qApp->installEventFilter(this);
}

bool DoubleClickGuard::eventFilter(QObject *watched, QEvent *event)
{
    // Windows hear of the mouse before their widgets do. The second press comes to them twice, as a
    // press and then as a double click; the toolkit hands only the latter on.
    if (!watched->isWindowType()) {
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return isStray(*static_cast<QWindow *>(watched), *static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return std::exchange(m_isStrayDown, false);
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool DoubleClickGuard::isStray(const QWindow &window, const QMouseEvent &event)
{
    if (event.type() == QEvent::MouseButtonPress) {
        m_before = m_pressed;
        m_pressed = widgetAt(window, event.position().toPoint());
        m_isStrayDown = false;
        return false;
    }
    // An opened list or menu has its own way with the click that opened it.
    m_isStrayDown = m_pressed != m_before && QApplication::activePopupWidget() == nullptr;
    return m_isStrayDown;
}

} // namespace tarvold
