#include "support/mouse.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace tarvold::testing::mouse {
namespace {

/// Longer than any pause within a test, and half the pause between two separate clicks.
constexpr int kInterval = 10'000;

std::chrono::milliseconds lateness{0};

/// The window that gets an event: an open list or menu anywhere, else the front window at that
/// position.
QWindow *windowAt(const QPoint &place)
{
    if (const QWidget *popup = QApplication::activePopupWidget()) {
        return popup->windowHandle();
    }
    const auto isThere = [&place](const QWidget *window) {
        return window != nullptr && window->isVisible() && window->geometry().contains(place);
    };
    if (const QWidget *box = QApplication::activeModalWidget(); isThere(box)) {
        return box->windowHandle();
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), isThere);
    return found == windows.end() ? nullptr : (*found)->windowHandle();
}

void send(const QPoint &place, Qt::MouseButton button, QEvent::Type type)
{
    if (QWindow *window = windowAt(place)) {
        const Qt::MouseButtons down =
            type == QEvent::MouseButtonRelease ? Qt::MouseButtons() : Qt::MouseButtons(button);
        qt_handleMouseEvent(window, window->mapFromGlobal(place), place, down,
                            type == QEvent::MouseMove ? Qt::NoButton : button, type, {},
                            ++QTest::lastMouseTimestamp);
    }
}

/// A new window is painted first; the double click guard notes that in a later round.
void settle()
{
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) {
        QCoreApplication::processEvents();
    }
}

} // namespace

std::chrono::steady_clock::time_point now()
{
    return std::chrono::steady_clock::time_point(
        std::chrono::milliseconds(QTest::lastMouseTimestamp) + lateness);
}

void pass(std::chrono::milliseconds pause)
{
    settle();
    QTest::lastMouseTimestamp += static_cast<int>(pause.count());
}

void keepBusy(std::chrono::milliseconds late)
{
    const int less = static_cast<int>((lateness - late).count());
    QTest::lastMouseTimestamp += std::max(less, 0); // the clock must be monotonic
    lateness = late;
}

void press(const QPoint &place, Qt::MouseButton button)
{
    pass(std::chrono::milliseconds(2 * kInterval));
    send(place, button, QEvent::MouseButtonPress);
    settle();
}

void pressAgain(const QPoint &place, Qt::MouseButton button)
{
    const int before = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(kInterval);
    send(place, button, QEvent::MouseButtonPress);
    QApplication::setDoubleClickInterval(before);
    settle();
}

void release(const QPoint &place, Qt::MouseButton button)
{
    send(place, button, QEvent::MouseButtonRelease);
    settle();
}

void click(const QPoint &place, Qt::MouseButton button)
{
    press(place, button);
    release(place, button);
}

void clickAgain(const QPoint &place, Qt::MouseButton button)
{
    pressAgain(place, button);
    release(place, button);
}

void doubleClick(const QPoint &place, Qt::MouseButton button)
{
    click(place, button);
    clickAgain(place, button);
}

void drag(const QPoint &from, const QPoint &to)
{
    // Send all events at once: a drag of text runs its own event loop, which only the release ends.
    QTest::lastMouseTimestamp += 2 * kInterval;
    send(from, Qt::LeftButton, QEvent::MouseButtonPress);
    send((from + to) / 2, Qt::LeftButton, QEvent::MouseMove);
    send(to, Qt::LeftButton, QEvent::MouseMove);
    send(to, Qt::LeftButton, QEvent::MouseButtonRelease);
    QCoreApplication::processEvents();
}

QPoint middleOf(const QWidget &control)
{
    return control.mapToGlobal(control.rect().center());
}

} // namespace tarvold::testing::mouse
