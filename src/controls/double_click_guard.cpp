#include "controls/double_click_guard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tarvold {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kSeen{200};
constexpr milliseconds kGlimpsed{100}; // on a screen, if the previous press is old enough
constexpr milliseconds kUnhurried{225};
constexpr milliseconds kBurst{1000};

/// The control at a position in a window.
QWidget *controlAt(const QWindow &window, const QPoint &place)
{
    QWidget *shown = QWidget::find(window.winId());
    QWidget *child = shown != nullptr ? shown->childAt(place) : nullptr;
    return child != nullptr ? child : shown;
}

bool isNear(const QPoint &one, const QPoint &other)
{
    const QPoint way = one - other;
    return std::max(std::abs(way.x()), std::abs(way.y())) <=
           QGuiApplication::styleHints()->mouseDoubleClickDistance();
}

/// Delivers a double click to a control as the single press that the user meant.
void sendAsPress(QWidget &control, const QMouseEvent &event)
{
    QMouseEvent press(QEvent::MouseButtonPress, event.position(), event.scenePosition(),
                      event.globalPosition(), event.button(), event.buttons(), event.modifiers(),
                      event.pointingDevice());
    press.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&control, &press);
}

} // namespace

DoubleClickGuard::DoubleClickGuard(Clock clock) : m_clock(std::move(clock))
{
    qApp->installEventFilter(this);
}

bool DoubleClickGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWindowType()) {
        return filterWindow(*static_cast<QWindow *>(watched), *event);
    }
    return watched->isWidgetType() && filterControl(*static_cast<QWidget *>(watched), *event);
}

bool DoubleClickGuard::filterWindow(const QWindow &window, QEvent &event)
{
    // Windows get mouse events before their controls do. They get the second press twice, as a
    // press and then as a double click; Qt forwards only the latter.
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        judge(window, static_cast<QMouseEvent &>(event));
        return !m_last.counts;
    case QEvent::MouseButtonDblClick:
        return !m_last.counts;
    case QEvent::MouseButtonRelease: {
        const Qt::MouseButton button = static_cast<QMouseEvent &>(event).button();
        const bool isStray = m_strayDown.testFlag(button);
        m_strayDown.setFlag(button, false);
        return isStray;
    }
    default:
        return false;
    }
}

bool DoubleClickGuard::filterControl(QWidget &control, QEvent &event)
{
    switch (event.type()) {
    case QEvent::Show:
    case QEvent::Hide:
        // A window that the desktop hides and shows again keeps its picture.
        if (!event.spontaneous()) {
            m_paintedAt.remove(&control);
            noteWhenGone(control);
        }
        return false;
    case QEvent::Paint:
        noteWhenPainted(control);
        return false;
    case QEvent::MouseButtonDblClick:
        if (!m_last.isNewHere || m_last.control != &control) {
            return false;
        }
        sendAsPress(control, static_cast<QMouseEvent &>(event));
        return true;
    default:
        return false;
    }
}

void DoubleClickGuard::noteWhenGone(const QWidget &control)
{
    // Tooltips close at every press, and are never under the pointer.
    if (control.isWindow() && control.isHidden() && control.windowType() != Qt::ToolTip) {
        m_uncoveredAt = m_clock();
    }
}

void DoubleClickGuard::noteWhenPainted(QWidget &control)
{
    if (m_paintedAt.contains(&control)) {
        return;
    }
    // The control is visible once its whole window is painted, which is when events are handled
    // again.
    const auto note = [this, painted = QPointer<QWidget>(&control)] {
        if (painted != nullptr && painted->isVisible() && !m_paintedAt.contains(painted.data())) {
            m_paintedAt.insert(painted.data(), m_clock());
        }
    };
    QMetaObject::invokeMethod(this, note, Qt::QueuedConnection);
}

void DoubleClickGuard::judge(const QWindow &window, const QMouseEvent &event)
{
    const milliseconds stamp(event.timestamp());
    Press press = {controlAt(window, event.position().toPoint()),
                   event.globalPosition().toPoint(),
                   stamp,
                   timeOf(stamp),
                   true,
                   true};
    const bool isPopup = QApplication::activePopupWidget() != nullptr;
    press.isNewHere = !isPopup && (!m_last.counts || press.control != m_last.control);
    press.counts = isPopup || counts(press);
    m_last = press;
    m_strayDown.setFlag(event.button(), !press.counts);
}

/// A press made while the program was busy arrives late. The display's clock can't be compared with
/// ours, but two of its timestamps can: this press came no later than their difference after the
/// previous press. Beyond a burst of clicks the two clocks would drift apart.
DoubleClickGuard::Time DoubleClickGuard::timeOf(milliseconds stamp) const
{
    const milliseconds apart = stamp - m_last.stamp;
    const bool isBurst = m_last.time != Time() && apart >= milliseconds(0) && apart < kBurst;
    return isBurst ? std::min(m_clock(), m_last.time + apart) : m_clock();
}

bool DoubleClickGuard::counts(const Press &press) const
{
    if (press.control == nullptr) {
        return true;
    }
    if (!press.control->isVisible()) {
        return false; // hidden after the press was made
    }
    // A press that closed a list is delivered once more, with the same timestamp, to what is below
    // it.
    return !press.isNewHere || press.stamp == m_last.stamp || !isNear(press.place, m_last.place) ||
           isSeen(press);
}

bool DoubleClickGuard::isSeen(const Press &press) const
{
    const auto paintedAt = m_paintedAt.constFind(press.control);
    if (paintedAt == m_paintedAt.constEnd()) {
        return false;
    }
    // A wrong answer in a message box costs more than going one screen too far, as "<<" leads back.
    const bool isGlimpseEnough =
        press.stamp - m_last.stamp >= kUnhurried && !press.control->window()->isModal();
    const auto seenFor = press.time - std::max(*paintedAt, m_uncoveredAt);
    return seenFor >= (isGlimpseEnough ? kGlimpsed : kSeen);
}

} // namespace tarvold
