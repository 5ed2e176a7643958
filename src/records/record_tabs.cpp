#include "records/record_tabs.h"

#include <QLayout>
#include <QTabBar>

#include <algorithm>

namespace tarvold::records {
namespace {

constexpr int kLines = 10; ///< of text, in a view that scrolls by itself

/// The least height of a view without one of its own.
int neededBy(const QWidget &view, int width)
{
    const QLayout &layout = *view.layout();
    return layout.hasHeightForWidth() ? layout.totalMinimumHeightForWidth(width) : 0;
}

} // namespace

RecordTabs::RecordTabs(QWidget *parent) : QTabWidget(parent)
{
    connect(this, &QTabWidget::currentChanged, this, [this] { updateGeometry(); });
}

void RecordTabs::setRoom(int height)
{
    if (m_room != height) {
        m_room = height;
        updateGeometry();
    }
}

QSize RecordTabs::sizeHint() const
{
    return minimumSizeHint();
}

QSize RecordTabs::minimumSizeHint() const
{
    const int bar = tabBar()->sizeHint().height();
    const int usual = std::min(bar + kLines * fontMetrics().height(), m_room);
    const int needed = currentWidget() != nullptr ? neededBy(*currentWidget(), width()) : 0;
    return {QTabWidget::minimumSizeHint().width(), std::max(usual, bar + needed)};
}

} // namespace tarvold::records
