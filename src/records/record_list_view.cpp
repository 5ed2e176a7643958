#include "records/record_list_view.h"

#include "controls/list_box.h"
#include "controls/long_text.h"
#include "controls/sizes.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostCharacters = 32; ///< of a column, before the user makes it wider
constexpr int kPadding = 4;         ///< between a text and the edge of its cell

/// Draws cells with some room beside their texts, and shows a text that is too wide for its cell as
/// a tooltip.
class RecordCells : public ListRows
{
public:
    using ListRows::ListRows;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return ListRows::sizeHint(option, index) + QSize(2 * kPadding, 0);
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter,
                                              option.widget);
        QStyleOptionViewItem inner = option;
        inner.rect.adjust(kPadding, 0, -kPadding, 0);
        ListRows::paint(painter, inner, index);
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip || !index.isValid()) {
            return ListRows::helpEvent(event, view, option, index);
        }
        const bool fits = sizeHint(option, index).width() <= view->visualRect(index).width();
        const QString text = index.data().toString();
        QToolTip::showText(event->globalPos(), fits ? QString() : longtext::toolTip(text), view);
        return true;
    }
};

} // namespace

RecordListView::RecordListView(QWidget *parent) : QTreeView(parent)
{
    setObjectName(u"list"_s);
    setAccessibleName(u"Records"_s);
    setItemDelegate(new RecordCells(this));
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    header()->setObjectName(u"heads"_s);
    header()->setSectionsMovable(false);
    header()->setSortIndicatorClearable(true);
    header()->setHighlightSections(false);
}

void RecordListView::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void RecordListView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                 const QList<int> &roles)
{
    // Qt looks where each row is, in sight or not.
    const QModelIndex top = indexAt(QPoint(0, 0));
    const QModelIndex bottom = indexAt(QPoint(0, viewport()->height() - 1));
    const int first = std::max(topLeft.row(), top.row());
    const int last =
        bottom.isValid() ? std::min(bottomRight.row(), bottom.row()) : bottomRight.row();
    if (first <= last) {
        QTreeView::dataChanged(topLeft.siblingAtRow(first), bottomRight.siblingAtRow(last), roles);
    }
}

void RecordListView::showFileOrder()
{
    sortByColumn(-1, Qt::AscendingOrder);
}

std::vector<int> RecordListView::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void RecordListView::goTo(int row)
{
    const QModelIndex index = model()->index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                 QItemSelectionModel::Rows);
    scrollTo(index);
}

void RecordListView::showBeside(int column, int place)
{
    header()->moveSection(header()->visualIndex(column), place);
}

void RecordListView::fitColumns()
{
    const int most = fontMetrics().averageCharWidth() * kMostCharacters;
    for (int column = 0; column < model()->columnCount(); ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, std::min(columnWidth(column), most));
    }
}

QModelIndex RecordListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // Without a current row, Qt would go to the first row on any key.
    if (action == MoveEnd && !currentIndex().isValid() && model() != nullptr) {
        return model()->index(model()->rowCount() - 1, 0);
    }
    return QTreeView::moveCursor(action, modifiers);
}

void RecordListView::setPlaceholder(const QString &text)
{
    m_placeholder = text;
    viewport()->update();
}

void RecordListView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (model()->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_placeholder);
    }
}

void RecordListView::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    update(); // repaint the frame, which shows the focus mark
}

void RecordListView::focusOutEvent(QFocusEvent *event)
{
    QTreeView::focusOutEvent(event);
    update();
}

} // namespace tarvold::records
