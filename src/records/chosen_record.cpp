#include "records/chosen_record.h"

#include "records/problem_scan.h"
#include "records/record_list_model.h"
#include "records/record_list_view.h"
#include "records/record_pane.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;

ChosenRecord::ChosenRecord(Document &document, const ProblemScan &scan, RecordListModel &model,
                           RecordListView &list, RecordPane &pane)
    : QObject(&pane)
    , m_document(document)
    , m_scan(scan)
    , m_model(model)
    , m_list(list)
    , m_pane(pane)
{
    connect(list.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ChosenRecord::follow);
    connect(&document, &Document::aboutToReset, this, [this] { m_isReset = true; });
    connect(&document, &Document::reset, this, &ChosenRecord::follow);
    connect(&document, &Document::changed, this, [this](const std::vector<int> &indexes) {
        const auto shown = shownIndex();
        if (shown && std::binary_search(indexes.begin(), indexes.end(), *shown)) {
            update();
        }
    });
    connect(&document, &Document::removed, this, [this] {
        if (m_id && !m_isReset && !shownIndex()) {
            show(currentIndex()); // with an empty list no other row became the current one
        }
    });
    connect(&scan, &ProblemScan::found, this, [this](int first, int last) {
        if (isShown(first, last)) {
            m_pane.setProblems(m_scan.problemsAt(*shownIndex()));
        }
    });
    connect(&pane, &RecordPane::lineEdited, this, &ChosenRecord::keepLine);
    connect(&pane, &RecordPane::repairRequested, this, &ChosenRecord::repair);
}

void ChosenRecord::follow()
{
    if (isCurrentShown()) {
        m_model.setChosen(currentIndex());
        return;
    }
    if (!m_isReset && !m_pane.commit()) {
        QMetaObject::invokeMethod(this, &ChosenRecord::goBack, Qt::QueuedConnection);
        return;
    }
    // What was kept may have started a search anew, and that have brought another current row.
    if (isCurrentShown()) {
        m_model.setChosen(currentIndex());
    } else {
        show(currentIndex());
    }
}

/// The record of the current row; -1: there is none.
int ChosenRecord::currentIndex() const
{
    return m_model.indexAt(m_list.currentIndex().row());
}

bool ChosenRecord::isCurrentShown() const
{
    const int index = currentIndex();
    return !m_isReset && index >= 0 && m_document.entry(index).id == m_id;
}

void ChosenRecord::goBack()
{
    if (const auto index = shownIndex()) {
        if (const int row = m_model.rowOf(*index); row >= 0) {
            m_list.goTo(row);
        }
    }
}

void ChosenRecord::show(int index)
{
    // After a reload the pane stays as it is, as far as the record is the same.
    const bool isUpdate = m_isReset && m_id && m_kind == m_document.kind() && !m_pane.hasPending();
    m_isReset = false;
    m_kind = m_document.kind();
    m_model.setChosen(index);
    if (index < 0) {
        m_id = std::nullopt;
        m_pane.clear();
        return;
    }
    m_id = m_document.entry(index).id;
    if (isUpdate) {
        update();
        return;
    }
    m_pane.showRecord(recordAt(index));
    showState(index);
}

void ChosenRecord::update()
{
    if (const auto index = shownIndex()) {
        m_pane.updateRecord(recordAt(*index));
        showState(*index);
    }
}

void ChosenRecord::showState(int index)
{
    m_pane.setProblems(m_scan.problemsAt(index));
    m_pane.setEditable(!m_document.entry(index).isDeleted && !m_document.isBeginning());
}

void ChosenRecord::keepLine(int field, const QByteArray &line)
{
    const auto index = shownIndex();
    if (!index) {
        return;
    }
    const QString &caption = m_document.catalog().fields().at(std::size_t(field)).caption;
    m_document.replace(*index, recordAt(*index).withLine(field, line), u"Edit "_s + caption);
}

void ChosenRecord::repair(const Problem &problem)
{
    if (const auto index = shownIndex()) {
        m_document.replace(*index, problem.repaired, problem.repair);
    }
}

std::optional<int> ChosenRecord::shownIndex() const
{
    return m_id && !m_isReset ? m_document.indexOf(*m_id) : std::nullopt;
}

bool ChosenRecord::isShown(int first, int last) const
{
    const auto index = shownIndex();
    return index && *index >= first && *index <= last;
}

Record ChosenRecord::recordAt(int index) const
{
    return {m_document.entry(index).bytes, m_document.catalog()};
}

} // namespace tarvold::records
