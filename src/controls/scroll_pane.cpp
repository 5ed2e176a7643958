#include "controls/scroll_pane.h"

#include "controls/bounded_column.h"
#include "controls/sizes.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

namespace tarvold {

namespace {

/// Gaps are a third of their normal size at the least step and half as much again at the most.
constexpr int kLeastStep = 2;
constexpr int kNormalStep = 6;
constexpr int kMostStep = 9;
/// In pixels; keeps the outlines of neighbours apart.
constexpr int kLeastGap = 3;

int verticalSpacing(const QLayout &layout)
{
    const auto *grid = qobject_cast<const QGridLayout *>(&layout);
    return grid != nullptr ? grid->verticalSpacing() : layout.spacing();
}

void setVerticalSpacing(QLayout &layout, int spacing)
{
    if (auto *grid = qobject_cast<QGridLayout *>(&layout)) {
        grid->setVerticalSpacing(spacing);
    } else {
        layout.setSpacing(spacing);
    }
}

} // namespace

ScrollPane::ScrollPane(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto *content = new QWidget;
    m_column = new BoundedColumn(content);
    m_column->setContentsMargins({});
    m_column->setSpacing(kGap);
    setWidget(content);
    // Keeps a gap between the scroll bar and the content.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int least, int most) {
        m_column->setContentsMargins(0, 0, most > least ? kRowGap : 0, 0);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now != nullptr && widget()->isAncestorOf(now)) {
            reveal(*now);
        }
    });
}

void ScrollPane::reveal(const QWidget &control)
{
    // Qt only keeps the cursor visible, which leaves boxes cut off.
    const QPoint middle = control.mapTo(widget(), control.rect().center());
    ensureVisible(middle.x(), middle.y(), 0, control.height() / 2 + kRowGap);
}

QSize ScrollPane::sizeHint() const
{
    return widget()->sizeHint();
}

void ScrollPane::resizeEvent(QResizeEvent *event)
{
    const QWidget *focus = QApplication::focusWidget();
    const bool isInSight =
        focus != nullptr && widget()->isAncestorOf(focus) &&
        QRect(QPoint(), event->oldSize())
            .intersects(QRect(focus->mapTo(viewport(), QPoint()), focus->size()));
    fitGaps();
    QScrollArea::resizeEvent(event);
    if (isInSight) {
        reveal(*focus); // a lower pane would leave it out of sight
    }
}

bool ScrollPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        fitGaps(); // rows may have been shown or hidden
    }
    return QScrollArea::eventFilter(watched, event);
}

void ScrollPane::rememberGaps()
{
    const auto remember = [this](QLayout *layout) {
        if (!m_gaps.contains(layout)) {
            m_gaps.insert(layout, verticalSpacing(*layout));
        }
    };
    remember(m_column);
    for (QGridLayout *grid : m_column->findChildren<QGridLayout *>()) {
        remember(grid);
    }
}

void ScrollPane::setGaps(int step)
{
    for (auto gap = m_gaps.constBegin(); gap != m_gaps.constEnd(); ++gap) {
        const int least = std::min(gap.value(), kLeastGap);
        const int spacing = std::max(gap.value() * step / kNormalStep, least);
        if (verticalSpacing(*gap.key()) != spacing) {
            setVerticalSpacing(*gap.key(), spacing);
        }
    }
}

int ScrollPane::neededHeight() const
{
    return m_column->hasHeightForWidth() ? m_column->heightForWidth(maximumViewportSize().width())
                                         : m_column->minimumSize().height();
}

void ScrollPane::fitGaps()
{
    const QSize room = maximumViewportSize();
    // A new spacing asks for a new layout, which comes here again.
    if (room == m_fittedRoom && neededHeight() == m_fittedHeight) {
        return;
    }
    rememberGaps();
    int step = kMostStep;
    setGaps(step);
    while (step > kLeastStep && neededHeight() > room.height()) {
        setGaps(--step);
    }
    m_fittedRoom = room;
    m_fittedHeight = neededHeight();
}

} // namespace tarvold
