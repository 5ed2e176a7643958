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
constexpr milliseconds kGlimpsed{100}; // on a screen, if the last press is long enough ago
constexpr milliseconds kUnhurried{225};
constexpr milliseconds kBurst{1000};

/// What the user sees at a place of a window.
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

/// Hands a double click to a control as the press that it was meant to be.
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
    // Windows hear of the mouse before their controls do. The second press comes to them twice, as
    // a press and then as a double click; Qt hands only the latter on.
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
        // What the desktop hides, and shows again, keeps its picture.
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
    // Tooltips go at every press, and are never under the pointer.
    if (control.isWindow() && control.isHidden() && control.windowType() != Qt::ToolTip) {
        m_uncoveredAt = m_clock();
    }
}

void DoubleClickGuard::noteWhenPainted(QWidget &control)
{
    if (m_paintedAt.contains(&control)) {
        return;
    }
    // It is on the display once the whole window is painted, and then events are handled again.
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

/// A press that was made while the program was busy comes late. The clock of the display can't be
/// compared with ours, but two of its times can: the press was made no later than so long after
/// the one before it. Over more than a burst of clicks the two clocks would drift apart.
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
        return false; // it was hidden while the press was on its way
    }
    // A press that closed a list comes once more, with the same time, to what is below it.
    return !press.isNewHere || press.stamp == m_last.stamp || !isNear(press.place, m_last.place) ||
           isSeen(press);
}

bool DoubleClickGuard::isSeen(const Press &press) const
{
    const auto paintedAt = m_paintedAt.constFind(press.control);
    if (paintedAt == m_paintedAt.constEnd()) {
        return false;
    }
    // A wrong answer costs more than a screen too far, from which "<<" leads back.
    const bool isGlimpseEnough =
        press.stamp - m_last.stamp >= kUnhurried && !press.control->window()->isModal();
    const auto seenFor = press.time - std::max(*paintedAt, m_uncoveredAt);
    return seenFor >= (isGlimpseEnough ? kGlimpsed : kSeen);
}

} // namespace tarvold
