#include "shell/scroll_bar.h"

#include "shell/sizes.h"

#include <QKeyEvent>
#include <QWheelEvent>

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
    triggerAction(turn > 0 ? SliderSingleStepAdd : SliderSingleStepSub);
    event->accept();
}

} // namespace tarvold
