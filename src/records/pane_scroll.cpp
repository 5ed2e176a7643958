#include "records/pane_scroll.h"

#include "controls/lay_out.h"
#include "controls/sizes.h"

#include <QApplication>
#include <QPointer>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvold::records {

PaneScroll::PaneScroll(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the least width has room for all
    auto *content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins({});
    m_column->setSpacing(kGap);
    setWidget(content);
    // Keeps a gap between the scroll bar and the content.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int least, int most) {
        m_column->setContentsMargins(0, 0, most > least ? kRowGap : 0, 0);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, const QWidget *now) {
        if (now != nullptr && widget()->isAncestorOf(now)) {
            reveal(*now);
        }
    });
}

void PaneScroll::reveal(const QWidget &part)
{
    const int room = viewport()->height();
    const int gap = std::clamp((room - part.height()) / 2, 0, kRowGap);
    const int top = heightOf(part) - gap;
    const int bottom = heightOf(part) + std::min(part.height(), room) + gap;
    QScrollBar &bar = *verticalScrollBar();
    bar.setValue(std::clamp(bar.value(), bottom - room, std::max(bottom - room, top)));
}

void PaneScroll::change(const std::function<void()> &changeIt)
{
    const QPointer<QWidget> focus = focusInSight(viewport()->size());
    const int before = focus != nullptr ? heightOf(*focus) : 0;
    changeIt();
    if (focus == nullptr || !focus->isVisibleTo(this)) {
        return;
    }
    layOutNow(*this);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + heightOf(*focus) - before);
    reveal(*focus);
}

QSize PaneScroll::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width() - m_column->contentsMargins().right();
    return {width + kRowGap + verticalScrollBar()->sizeHint().width(),
            QScrollArea::minimumSizeHint().height()};
}

void PaneScroll::resizeEvent(QResizeEvent *event)
{
    const QPointer<QWidget> focus = focusInSight(event->oldSize());
    emit heightChanged();
    QScrollArea::resizeEvent(event);
    if (focus != nullptr) {
        layOutNow(*this);
        reveal(*focus);
    }
}

bool PaneScroll::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDone = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest &&
        minimumSizeHint().width() != m_leastWidth) {
        m_leastWidth = minimumSizeHint().width();
        updateGeometry(); // which Qt leaves to the size of the window
    }
    return isDone;
}

QWidget *PaneScroll::focusInSight(const QSize &room) const
{
    QWidget *focus = QApplication::focusWidget();
    if (focus == nullptr || !widget()->isAncestorOf(focus)) {
        return nullptr;
    }
    const QRect place(focus->mapTo(viewport(), QPoint()), focus->size());
    return QRect(QPoint(), room).intersects(place) ? focus : nullptr;
}

/// How far below the top of the content a part of it begins.
int PaneScroll::heightOf(const QWidget &part) const
{
    return part.mapTo(widget(), QPoint()).y();
}

} // namespace tarvold::records
