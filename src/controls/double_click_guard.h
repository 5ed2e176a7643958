#pragma once

#include <QEvent>
#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <chrono>
#include <functional>

class QMouseEvent;
class QWindow;

namespace tarvold {

/// Ignores a stray press, such as the second one of a double click, on a control that the user
/// can't have seen yet.
///
/// Buttons keep their places from screen to screen, so a double click on one would also press the
/// next screen's button and skip a screen that nobody saw, or answer a message box that opens under
/// the pointer. But users who click quickly through screens that they know mean every click, and
/// are often faster than the desktop's double click time. The difference is how long the control
/// under the pointer has been visible: a press counts after 200 ms, however fast the clicks are. On
/// a screen, though not in a message box, 100 ms are enough if the previous press is at least 225
/// ms old: the next screen appears when the button is released, so at four clicks per second it
/// can't be visible longer.
///
/// The time starts when the control has been painted after it was shown, and no window above it has
/// closed since. These presses always count: a press elsewhere than the previous one, one on the
/// control of the previous press, and any press while a list or menu is open. The keyboard is not
/// affected. A press on a control that has been hidden meanwhile never counts.
///
/// A press that counts, on another control than the previous one, reaches the control as a single
/// press, even if Qt takes it for the second press of a double click: a text box puts the cursor
/// there and selects no word, a list selects a row and edits nothing.
class DoubleClickGuard : public QObject
{
    Q_OBJECT
public:
    using Time = std::chrono::steady_clock::time_point;
    /// Returns the current time; must be monotonic.
    using Clock = std::function<Time()>;

    /// Watches all windows of the program. The QApplication must exist and outlive this object.
    explicit DoubleClickGuard(Clock clock = &std::chrono::steady_clock::now);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Press
    {
        QPointer<QWidget> control;
        QPoint place;                    ///< on the desktop
        std::chrono::milliseconds stamp; ///< by the display's clock
        Time time;                       ///< by our clock; not before the press was made
        bool counts;
        bool isNewHere; ///< the press before it was on another control, or did not count
    };

    bool filterWindow(const QWindow &window, QEvent &event);
    bool filterControl(QWidget &control, QEvent &event);
    void judge(const QWindow &window, const QMouseEvent &event);
    bool counts(const Press &press) const;
    bool isSeen(const Press &press) const;
    Time timeOf(std::chrono::milliseconds stamp) const;
    void noteWhenPainted(QWidget &control);
    void noteWhenGone(const QWidget &control);

    Clock m_clock;
    Press m_last = {};
    Qt::MouseButtons m_strayDown;
    QHash<const QWidget *, Time> m_paintedAt; ///< of the controls that are shown and painted
    Time m_uncoveredAt;                       ///< when a window was last hidden
};

} // namespace tarvold
