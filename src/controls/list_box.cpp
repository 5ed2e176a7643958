#include "controls/list_box.h"

#include "controls/long_text.h"

#include <QHelpEvent>
#include <QToolTip>

namespace tarvold {

bool ListRows::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                         const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString text = index.data().toString();
    const bool fits = view->fontMetrics().horizontalAdvance(text) < view->viewport()->width();
    QToolTip::showText(event->globalPos(), fits ? QString() : longtext::toolTip(text), view);
    return true;
}

ListBox::ListBox(QWidget *parent) : QListView(parent)
{
    setItemDelegate(new ListRows(this));
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
    // Without a current row, Qt would go to the first row on any key.
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
    update(); // repaint the frame, which shows the focus mark
}

void ListBox::focusOutEvent(QFocusEvent *event)
{
    QListView::focusOutEvent(event);
    update();
}

} // namespace tarvold
