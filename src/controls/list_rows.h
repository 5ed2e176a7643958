#pragma once

#include <QStyledItemDelegate>

namespace tarvold {

/// The rows of all lists: they tell their whole text where it does not fit.
class ListRows : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

} // namespace tarvold
