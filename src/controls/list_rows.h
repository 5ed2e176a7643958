#pragma once

#include <QStyledItemDelegate>

namespace tarvold {

/// Draws the rows of all lists, and shows the text of a row that is too wide as a tooltip.
class ListRows : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

} // namespace tarvold
