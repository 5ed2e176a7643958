#include "controls/bounded_column.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tarvold {

void BoundedColumn::setMost(const QSize &most)
{
    m_most = most;
    invalidate();
}

void BoundedColumn::setGeometry(const QRect &place)
{
    const int width = std::min(place.width(), m_most.width());
    const int needed = hasHeightForWidth() ? heightForWidth(width) : sizeHint().height();
    const QSize size(width, std::min(place.height(), std::max(m_most.height(), needed)));
    const QWidget *parent = parentWidget();
    const Qt::LayoutDirection direction =
        parent != nullptr ? parent->layoutDirection() : Qt::LeftToRight;
    QVBoxLayout::setGeometry(
        QStyle::alignedRect(direction, Qt::AlignLeft | Qt::AlignTop, size, place));
}

int BoundedColumn::heightForWidth(int width) const
{
    return QVBoxLayout::heightForWidth(std::min(width, m_most.width()));
}

int BoundedColumn::minimumHeightForWidth(int width) const
{
    return QVBoxLayout::minimumHeightForWidth(std::min(width, m_most.width()));
}

} // namespace tarvold
