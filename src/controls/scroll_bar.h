#pragma once

#include <QScrollBar>

namespace tarvold {

/// The horizontal scroll bar of all screens, a control for whole numbers.
///
/// It is reached by Tab. Right, Up and Page Up raise the value by one, Left, Down and Page Down
/// lower it. During a drag sliderMoved() tells where the thumb is; valueChanged() comes when it is
/// let go. When the bar is hidden or blocked by a message box before that, the thumb goes back to
/// the value, and sliderMoved() tells so. A notch of the wheel turns it by one, and only while it
/// has the focus.
class ScrollBar : public QScrollBar
{
    Q_OBJECT
public:
    /// A bar for the values from `minimum` to `maximum`.
    ScrollBar(int minimum, int maximum, QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void cancelDrag();

    int m_turned = 0; ///< by the wheel since the last whole notch, in its own units
};

} // namespace tarvold
