#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QMouseEvent;
class QWindow;

namespace tarvold {

/// Keeps the second press of a double click from what the first one brought under the pointer.
///
/// Buttons stay in their places from screen to screen, so a double click on one would press the
/// next screen's button too, and a screen would be skipped that nobody saw; a message box that
/// opens under the pointer would be answered. While it lives, a second press counts only where the
/// first one was. Two clicks at one place within the double click time of the desktop are a double
/// click, however they were meant; slower ones and the keyboard are left alone.
class DoubleClickGuard : public QObject
{
    Q_OBJECT
public:
    /// Watches all windows of the program.
    DoubleClickGuard();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isStray(const QWindow &window, const QMouseEvent &event);

    QPointer<QWidget> m_pressed; ///< by the press of this moment
    QPointer<QWidget> m_before;  ///< by the press before it
    bool m_isStrayDown = false;
};

} // namespace tarvold
