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

/// Keeps a stray press, such as the second one of a double click, from a button that the user can't
/// have seen yet.
///
/// Buttons stay in their places from screen to screen, so a double click on one would press the
/// next screen's button too, and a screen would be skipped that nobody saw; a message box that
/// opens under the pointer would be answered. But who clicks through screens that they know well
/// means every click, and is often faster than the double click time of the desktop. What tells the
/// two apart is how long the user has seen what is under the pointer: a press counts if that is
/// 200 ms or longer, however fast the clicks come. On a screen, not in a message box, 100 ms are
/// enough if the last press is 225 ms ago: a screen comes when the button is let go, so at four
/// clicks a second it is seen no longer.
///
/// "Seen" starts once the control was painted after it was shown, and no window above it has gone
/// since. Left alone are a press elsewhere than the one before it, one on the control that the one
/// before it pressed, all presses while a list or menu is open, and the keyboard. A press on what
/// is hidden by now never counts.
///
/// A press that counts, on another control than the one before it, comes to the control as a press,
/// even where Qt takes it for the second of a double click: a text box puts the cursor there and
/// selects no word, a list selects a row and edits nothing.
class DoubleClickGuard : public QObject
{
    Q_OBJECT
public:
    using Time = std::chrono::steady_clock::time_point;
    /// Tells what time it is; never goes back.
    using Clock = std::function<Time()>;

    /// Watches all windows of the program. There must be a QApplication, which outlives it.
    explicit DoubleClickGuard(Clock clock = &std::chrono::steady_clock::now);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Press
    {
        QPointer<QWidget> control;
        QPoint place;                    ///< on the desktop
        std::chrono::milliseconds stamp; ///< by the clock of the display
        Time time;                       ///< by ours: never earlier than it was made
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
