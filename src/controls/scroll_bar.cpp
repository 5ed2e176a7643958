#include "controls/scroll_bar.h"

#include "controls/sizes.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <cstdlib>

namespace tarvold {

ScrollBar::ScrollBar(int minimum, int maximum, QWidget *parent) : QScrollBar(Qt::Horizontal, parent)
{
    setRange(minimum, maximum);
    setSingleStep(1);
    setPageStep(1);
    setTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(kControlHeight);
}

bool ScrollBar::event(QEvent *event)
{
    // The release event goes to another window, so end the drag here.
    if (event->type() == QEvent::Hide || event->type() == QEvent::WindowBlocked) {
        cancelDrag();
    }
    return QScrollBar::event(event);
}

void ScrollBar::cancelDrag()
{
    setSliderPosition(value());
    setSliderDown(false);
    QHideEvent hidden; // makes the base class release its pressed part
    QScrollBar::hideEvent(&hidden);
    update();
}

void ScrollBar::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        triggerAction(SliderSingleStepAdd);
        return;
    case Qt::Key_Left:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        triggerAction(SliderSingleStepSub);
        return;
    default:
        QScrollBar::keyPressEvent(event);
    }
}

void ScrollBar::wheelEvent(QWheelEvent *event)
{
    const int turn = event->angleDelta().y();
    if (!hasFocus() || turn == 0) {
        event->ignore();
        return;
    }
    // Touchpads report fractions of a notch.
    m_turned += turn;
    const int notches = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned %= QWheelEvent::DefaultDeltasPerStep;
    for (int count = std::abs(notches); count > 0; --count) {
        triggerAction(notches > 0 ? SliderSingleStepAdd : SliderSingleStepSub);
    }
    event->accept();
}

} // namespace tarvold
