#include "controls/scroll_pane.h"

#include "controls/sizes.h"

#include <QApplication>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tarvold {

ScrollPane::ScrollPane(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto *content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins({});
    m_column->setSpacing(kGap);
    setWidget(content);
    // Keeps a gap between the scroll bar and the content.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int least, int most) {
        m_column->setContentsMargins(0, 0, most > least ? kRowGap : 0, 0);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now != nullptr && widget()->isAncestorOf(now)) {
            // Qt only keeps the cursor visible, which leaves boxes cut off.
            const QPoint middle = now->mapTo(widget(), now->rect().center());
            ensureVisible(middle.x(), middle.y(), 0, now->height() / 2 + kRowGap);
        }
    });
}

QSize ScrollPane::sizeHint() const
{
    return widget()->sizeHint();
}

} // namespace tarvold
