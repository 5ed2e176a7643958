#pragma once

#include <QScrollBar>

namespace tarvold {

/// The horizontal scroll bar of all screens, a control for whole numbers.
///
/// Tab reaches it. Right, Up and Page Up raise the value by one, Left, Down and Page Down lower it.
/// During a drag sliderMoved() reports the position; valueChanged() is emitted on release. If the
/// bar is hidden or blocked by a message box during a drag, the thumb returns to the value, and
/// sliderMoved() is emitted. Each notch of the wheel changes the value by one, but only while the
/// bar has the focus.
class ScrollBar : public QScrollBar
{
    Q_OBJECT
public:
    /// Creates a bar for the values from `minimum` to `maximum`, both included.
    ScrollBar(int minimum, int maximum, QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void cancelDrag();

    int m_turned = 0; ///< wheel angle since the last whole notch, in eighths of a degree
};

} // namespace tarvold
