#include "records/records_tasks.h"

#include "records/problem_scan.h"
#include "records/record_list_model.h"
#include "records/record_list_view.h"
#include "records/records_repair.h"
#include "records/window_words.h"

#include <QHeaderView>

#include <algorithm>
#include <numeric>
#include <optional>

namespace tarvold::records {

using namespace Qt::StringLiterals;

RecordsTasks::RecordsTasks(Document &document, RecordListModel &model, ProblemScan &scan,
                           RecordListView &list, Typing typing)
    : m_document(document)
    , m_model(model)
    , m_scan(scan)
    , m_list(list)
    , m_typing(std::move(typing))
    , m_repair(std::make_unique<RecordsRepair>(document, scan, m_typing))
{
    connect(m_repair.get(), &RecordsRepair::said, this, &RecordsTasks::said);
}

RecordsTasks::~RecordsTasks() = default;

int RecordsTasks::current() const
{
    const QModelIndex index = m_list.currentIndex();
    return index.isValid() ? m_model.indexAt(index.row()) : -1;
}

std::vector<int> RecordsTasks::selected() const
{
    std::vector<int> records;
    for (const int row : m_list.selectedRows()) {
        records.push_back(m_model.indexAt(row));
    }
    std::sort(records.begin(), records.end());
    return records;
}

RecordsTasks::Selection RecordsTasks::selection() const
{
    Selection selection;
    for (const int row : m_list.selectedRows()) {
        const int record = m_model.indexAt(row);
        if (record < 0) {
            continue; // the row is about to go
        }
        const bool isDeleted = m_document.entry(record).isDeleted;
        (isDeleted ? selection.hasDeleted : selection.hasKept) = true;
        if (selection.hasDeleted && selection.hasKept) {
            break;
        }
    }
    return selection;
}

bool RecordsTasks::isWholeFileShown() const
{
    return m_list.header()->sortIndicatorSection() < 0 && m_model.rowCount() == m_document.count();
}

void RecordsTasks::goTo(int record)
{
    if (const int row = m_model.rowOf(record); row >= 0) {
        m_list.goTo(row);
    }
}

void RecordsTasks::remove()
{
    if (!m_typing.keep()) {
        return;
    }
    const std::vector<int> records = selected();
    if (records.empty()) {
        emit said(u"Select the records to delete."_s);
        return;
    }
    const auto there = std::count_if(records.begin(), records.end(), [this](int record) {
        return !m_document.entry(record).isDeleted;
    });
    m_document.remove(records);
    emit said(words::deleted(int(there)));
}

void RecordsTasks::restore()
{
    if (!m_typing.keep()) {
        return;
    }
    m_document.restore(selected());
}

void RecordsTasks::duplicate()
{
    if (!m_typing.keep()) {
        return;
    }
    if (const int record = current(); record >= 0) {
        m_document.duplicate(record);
        goTo(record + 1);
    }
}

void RecordsTasks::move(int by)
{
    if (!m_typing.keep()) {
        return;
    }
    const int record = current();
    const int target = record + by;
    if (record < 0 || target < 0 || target >= m_document.count()) {
        return;
    }
    if (!isWholeFileShown()) {
        emit said(u"Records can be moved while all are shown in the file's order."_s);
        return;
    }
    m_document.move(record, by);
    goTo(target);
    emit said(u"Moved to %1."_s.arg(target + 1));
}

void RecordsTasks::undo()
{
    if (!m_typing.keep()) {
        return;
    }
    QUndoStack &stack = m_document.undoStack();
    const QString what = stack.undoText();
    if (stack.canUndo()) {
        follow([&stack] { stack.undo(); });
        emit said(u"Undone: %1."_s.arg(what));
    }
}

void RecordsTasks::redo()
{
    if (!m_typing.keep()) {
        return;
    }
    QUndoStack &stack = m_document.undoStack();
    const QString what = stack.redoText();
    if (stack.canRedo()) {
        follow([&stack] { stack.redo(); });
        emit said(u"Done again: %1."_s.arg(what));
    }
}

/// Makes a change and shows the first record that it changed, but the current one if that moved.
void RecordsTasks::follow(const std::function<void()> &change)
{
    int first = -1;
    const auto note = [&first](int record) {
        first = first < 0 ? record : std::min(first, record);
    };
    QObject listener;
    const int before = current();
    const int id = before < 0 ? -1 : m_document.entry(before).id;
    std::optional<int> moved;
    connect(&m_document, &Document::changed, &listener, [&](const std::vector<int> &indexes) {
        note(indexes.front());
        const auto now = m_document.indexOf(id);
        if (now && *now != before && std::binary_search(indexes.begin(), indexes.end(), *now)) {
            moved = now;
        }
    });
    connect(&m_document, &Document::inserted, &listener, note);
    connect(&m_document, &Document::removed, &listener, note);
    std::vector<int> ids;
    connect(&m_document, &Document::aboutToReset, &listener, [&] { ids = shownIds(); });
    connect(&m_document, &Document::reset, &listener, [&] {
        const std::vector<int> now = shownIds();
        note(
            int(std::mismatch(ids.begin(), ids.end(), now.begin(), now.end()).first - ids.begin()));
    });
    change();
    if (moved) {
        goTo(*moved);
    } else if (first >= 0 && m_document.count() > 0) {
        goTo(std::min(first, m_document.count() - 1));
    }
}

std::vector<int> RecordsTasks::shownIds() const
{
    std::vector<int> ids(std::size_t(m_document.count()));
    for (std::size_t index = 0; index < ids.size(); ++index) {
        ids[index] = m_document.entry(int(index)).id;
    }
    return ids;
}

void RecordsTasks::goToProblem(int step)
{
    if (!m_typing.keep()) {
        return;
    }
    const int rows = m_model.rowCount();
    const int start =
        m_list.currentIndex().isValid() ? m_list.currentIndex().row() : (step > 0 ? -1 : rows);
    for (int away = 1; away <= rows; ++away) {
        const int row = ((start + step * away) % rows + rows) % rows;
        const int record = m_model.indexAt(row);
        if (m_scan.countAt(record) > 0) {
            m_list.goTo(row);
            const std::vector<Problem> problems = m_scan.problemsAt(record);
            emit said(problems.empty() ? QString() : problems.front().text);
            return;
        }
    }
    emit said(m_scan.isFinished() ? u"No problems."_s : u"No problem found so far."_s);
}

void RecordsTasks::repairSelected()
{
    if (m_list.selectedRows().empty()) {
        emit said(u"Select the records to repair."_s);
        return;
    }
    m_repair->start(selected(), u"Repair Selected Records"_s);
}

void RecordsTasks::repairAll()
{
    std::vector<int> all(std::size_t(m_document.count()));
    std::iota(all.begin(), all.end(), 0);
    m_repair->start(all, u"Repair All Problems"_s);
}

} // namespace tarvold::records
