#include "support/mouse.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace tarvold::testing::mouse {
namespace {

/// Longer than any pause between two events of a test, shorter than the pause between two clicks
/// that are none.
constexpr int kInterval = 10'000;

/// Who gets an event at a place: an open list or menu wherever it is, else what is in front there.
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

void pressAndRelease(const QPoint &place, Qt::MouseButton button)
{
    send(place, button, QEvent::MouseButtonPress);
    QCoreApplication::processEvents();
    send(place, button, QEvent::MouseButtonRelease);
    QCoreApplication::processEvents();
}

} // namespace

void click(const QPoint &place, Qt::MouseButton button)
{
    QTest::lastMouseTimestamp += 2 * kInterval;
    pressAndRelease(place, button);
}

void clickAgain(const QPoint &place, Qt::MouseButton button)
{
    const int before = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(kInterval);
    pressAndRelease(place, button);
    QApplication::setDoubleClickInterval(before);
}

void doubleClick(const QPoint &place, Qt::MouseButton button)
{
    click(place, button);
    clickAgain(place, button);
}

void drag(const QPoint &from, const QPoint &to)
{
    // All at once: a drag of text has an event loop of its own, which only the release ends.
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
