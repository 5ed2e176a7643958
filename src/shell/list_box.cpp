#include "shell/list_box.h"

#include "shell/sizes.h"

#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>

namespace tarvold {
namespace {

/// Rows that are tall enough to be hit, and that tell their whole text where it does not fit.
class TallRows : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, kTargetHeight});
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip || !index.isValid()) {
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        }
        const QString text = index.data().toString();
        const bool fits = view->fontMetrics().horizontalAdvance(text) < view->viewport()->width();
        QToolTip::showText(event->globalPos(), fits ? QString() : Qt::convertFromPlainText(text),
                           view);
        return true;
    }
};

} // namespace

ListBox::ListBox(QWidget *parent) : QListView(parent)
{
    setItemDelegate(new TallRows(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
}

std::optional<int> ListBox::selectedRow() const
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? std::nullopt : std::optional(selected.front().row());
}

QModelIndex ListBox::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // With no row to start from, the toolkit would go to the first one whatever the key.
    if (action == MoveEnd && !currentIndex().isValid() && model() != nullptr) {
        return model()->index(model()->rowCount() - 1, 0);
    }
    return QListView::moveCursor(action, modifiers);
}

void ListBox::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    if (selectionModel() != nullptr && !selectionModel()->hasSelection()) {
        selectionModel()->clearCurrentIndex();
    }
}

} // namespace tarvold
