#include "records/record_list_view.h"

#include "controls/list_box.h"
#include "controls/long_text.h"
#include "controls/sizes.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostCharacters = 32; ///< of a column, before the user makes it wider
constexpr int kLeastCharacters = 9; ///< of a column, even if others are out of sight then
constexpr int kPadding = 4;         ///< between a text and the edge of its cell
constexpr int kRowsMeasured = 100;  ///< to find out how wide a column has to be

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
    header()->setResizeContentsPrecision(kRowsMeasured);
    connect(header(), &QHeaderView::sortIndicatorChanged, this, &RecordListView::widenSorted);
}

void RecordListView::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void RecordListView::selectAll()
{
    emit allWanted();
    QTreeView::selectAll();
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

void RecordListView::fitColumns(int first, int last)
{
    m_first = first;
    m_last = last;
    if (m_isFitted) { // else when it is shown
        fitColumns();
    }
}

void RecordListView::fitColumns()
{
    const int most = fontMetrics().averageCharWidth() * kMostCharacters;
    const int least = fontMetrics().averageCharWidth() * kLeastCharacters;
    std::vector<int> widths;
    std::vector<int> leastWidths;
    header()->setSortIndicatorShown(false); // its room is taken from the heads only while sorted
    for (int column = 0; column < model()->columnCount(); ++column) {
        const int head = header()->sectionSizeHint(column);
        const QString longest =
            model()->headerData(column, Qt::Horizontal, kLongestText).toString();
        const int content = std::max(sizeHintForColumn(column),
                                     fontMetrics().horizontalAdvance(longest) + 4 * kPadding);
        widths.push_back(std::max(std::min(content, most), head));
        leastWidths.push_back(std::max(least, head));
    }
    header()->setSortIndicatorShown(true);
    narrow(widths, leastWidths);
    for (int column = 0; column < model()->columnCount(); ++column) {
        setColumnWidth(column, widths.at(std::size_t(column)));
    }
    widenSorted();
}

/// Makes the widest of the columns that should be in sight narrower until all of them are, or are
/// as narrow as makes sense.
void RecordListView::narrow(std::vector<int> &widths, const std::vector<int> &least) const
{
    int excess = -viewport()->width();
    for (int column = 0; column < int(widths.size()); ++column) {
        const bool isBehind = header()->visualIndex(column) > header()->visualIndex(m_last);
        excess += isBehind ? 0 : widths.at(std::size_t(column));
    }
    for (; excess > 0; --excess) {
        auto widest = std::size_t(m_first);
        for (auto column = widest; column <= std::size_t(m_last); ++column) {
            widest =
                widths[column] - least[column] > widths[widest] - least[widest] ? column : widest;
        }
        if (widths[widest] <= least[widest]) {
            return;
        }
        --widths[widest];
    }
}

/// The sort indicator takes no room from the head of its column.
void RecordListView::widenSorted()
{
    const int column = header()->sortIndicatorSection();
    if (column >= 0 && column < header()->count()) {
        setColumnWidth(column, std::max(columnWidth(column), header()->sectionSizeHint(column)));
    }
}

void RecordListView::showEvent(QShowEvent *event)
{
    QTreeView::showEvent(event);
    if (!event->spontaneous() && !std::exchange(m_isFitted, true) && m_first <= m_last) {
        fitColumns(); // now the room is known
    }
}

QModelIndex RecordListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveEnd) {
        emit allWanted();
    }
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
