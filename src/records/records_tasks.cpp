#include "records/records_tasks.h"

#include "controls/busy_cursor.h"
#include "records/problem_scan.h"
#include "records/record_list_model.h"
#include "records/record_list_view.h"
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
{
}

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
    connect(&m_document, &Document::changed, &listener, [&](int from, int last) {
        note(from);
        const auto now = m_document.indexOf(id);
        if (now && *now != before && *now >= from && *now <= last) {
            moved = now;
        }
    });
    connect(&m_document, &Document::inserted, &listener, note);
    connect(&m_document, &Document::removed, &listener, note);
    change();
    if (moved) {
        goTo(*moved);
    } else if (first >= 0 && m_document.count() > 0) {
        goTo(std::min(first, m_document.count() - 1));
    }
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
    const bool isAllChecked = m_scan.checked() >= m_document.count() && !m_scan.isRunning();
    emit said(isAllChecked ? u"No problems."_s : u"No problem found so far."_s);
}

void RecordsTasks::repair(const std::vector<int> &records, const QString &what)
{
    if (!m_typing.keep()) {
        return;
    }
    const BusyCursor busy;
    std::vector<std::pair<int, QByteArray>> repaired;
    int left = 0; // records with problems that have no repair
    const int last = m_document.last();
    for (const int index : records) {
        const Entry &entry = m_document.entry(index);
        if (entry.isDeleted || m_scan.isSound(index)) {
            continue;
        }
        QByteArray bytes =
            records::repairAll(Record(entry.bytes, m_document.catalog()), index == last);
        if (bytes == entry.bytes) {
            left += m_scan.problemsAt(index).empty() ? 0 : 1;
        } else {
            repaired.emplace_back(index, std::move(bytes));
        }
    }
    if (!repaired.empty()) {
        m_document.replace(repaired, what);
    }
    emit said(words::repaired(int(repaired.size()), left));
}

void RecordsTasks::repairSelected()
{
    repair(selected(), u"Repair Selected Records"_s);
}

void RecordsTasks::repairAll()
{
    std::vector<int> all(std::size_t(m_document.count()));
    std::iota(all.begin(), all.end(), 0);
    repair(all, u"Repair All Problems"_s);
}

} // namespace tarvold::records
