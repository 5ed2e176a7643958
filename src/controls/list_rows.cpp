#include "controls/list_rows.h"

#include "controls/long_text.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
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
    constexpr qsizetype kMostShown = 1000;
    const QString hint = longtext::breakable(longtext::quoted(text, kMostShown));
    QToolTip::showText(event->globalPos(),
                       fits ? QString() : Qt::convertFromPlainText(hint, Qt::WhiteSpaceNormal),
                       view);
    return true;
}

} // namespace tarvold
