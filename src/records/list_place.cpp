#include "records/list_place.h"

#include "records/record_list_model.h"
#include "records/record_list_view.h"

#include <QScrollBar>

#include <algorithm>

namespace tarvold::records {

ListPlace::ListPlace(Document &document, const RecordListModel &model, RecordListView &list)
    : QObject(&list)
    , m_document(document)
    , m_model(model)
    , m_list(list)
    , m_view(document)
    , m_selected(document)
{
    connect(&document, &Document::aboutToReset, this, &ListPlace::remember);
    connect(&document, &Document::reset, this, &ListPlace::find);
    for (const auto &signal : {&RecordListModel::rearranged, &RecordListModel::settled}) {
        connect(&model, signal, this, &ListPlace::goBack);
    }
    connect(&model, &RecordListModel::rowsInserted, this, &ListPlace::goBack);
    const auto forget = [this] { m_isAwaited = false; };
    connect(&document, &Document::inserted, this, forget);
    connect(&document, &Document::removed, this, forget);
    connect(list.selectionModel(), &QItemSelectionModel::currentRowChanged, this, forget);
}

void ListPlace::remember()
{
    // The place before is still the wanted one. A file that is written in place is empty meanwhile.
    if (m_isAwaited || m_document.count() == 0) {
        return;
    }
    std::vector<int> view;
    for (const QModelIndex &index : {m_list.currentIndex(), m_list.indexAt(QPoint(0, 0))}) {
        if (index.isValid()) {
            view.push_back(m_model.indexAt(index.row()));
        }
    }
    std::vector<int> selected;
    for (const int row : m_list.selectedRows()) {
        selected.push_back(m_model.indexAt(row));
    }
    m_view.remember(view);
    m_selected.remember(selected);
    m_sideways = m_list.horizontalScrollBar()->value();
}

void ListPlace::find()
{
    m_viewFound = m_view.foundByNumber();
    m_selectedFound = m_selected.found();
    if (m_view.isSameLoad()) { // if it is still waited for, those that are gone must stay so
        m_view.remember(m_viewFound);
        m_selected.remember(m_selectedFound);
    }
    m_isAwaited = !m_viewFound.empty();
    goBack();
}

void ListPlace::goBack()
{
    const int current = m_isAwaited ? m_model.rowOf(m_viewFound.front()) : -1;
    if (current < 0) {
        return;
    }
    m_isAwaited = false;
    const int top = m_viewFound.size() > 1 ? m_model.rowOf(m_viewFound[1]) : -1;
    if (top >= 0) {
        m_list.scrollTo(m_model.index(top, 0), QAbstractItemView::PositionAtTop);
    }
    m_list.selectionModel()->setCurrentIndex(m_model.index(current, 0),
                                             QItemSelectionModel::NoUpdate);
    select();
    m_list.horizontalScrollBar()->setValue(m_sideways);
}

void ListPlace::select()
{
    std::vector<int> rows;
    for (const int record : m_selectedFound) {
        if (const int row = m_model.rowOf(record); row >= 0) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    // Whole rows at once, and those that follow each other as one range: where Qt makes the ranges,
    // it compares each with all others.
    QItemSelection selection;
    for (std::size_t place = 0; place < rows.size();) {
        const int first = rows[place];
        int last = first;
        for (; place < rows.size() && rows[place] <= last + 1; ++place) {
            last = rows[place];
        }
        selection.append(QItemSelectionRange(m_model.index(first, 0),
                                             m_model.index(last, m_model.columnCount() - 1)));
    }
    m_list.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

} // namespace tarvold::records
