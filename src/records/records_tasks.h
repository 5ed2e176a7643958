#pragma once

#include "records/document.h"
#include "records/typing.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace tarvold::records {

class ProblemScan;
class RecordListModel;
class RecordListView;
class RecordsRepair;

/// What the user does to the records of a window's list: deletes, moves, duplicates and repairs
/// them, takes that back, and goes from problem to problem.
class RecordsTasks : public QObject
{
    Q_OBJECT
public:
    RecordsTasks(Document &document, RecordListModel &model, ProblemScan &scan,
                 RecordListView &list, Typing typing);
    ~RecordsTasks() override;

    /// The record of the current row; -1: none.
    int current() const;
    /// The records that are selected, in the order of the file.
    std::vector<int> selected() const;
    /// Whether the list shows the records in the order of the file, and all of them.
    bool isWholeFileShown() const;
    /// Shows a record in the list, if the filter lets it through.
    void goTo(int record);

    void remove();
    void restore();
    void duplicate();
    void move(int by);
    void undo();
    void redo();

    /// Goes to the next record with a problem (1) or the one before (-1), round the end.
    void goToProblem(int step);
    /// Makes all repairs that are offered, see RecordsRepair.
    void repairSelected();
    void repairAll();
    /// What makes the repairs, a few at a time.
    RecordsRepair &repair() { return *m_repair; }

signals:
    /// Something was done, or could not be done; to be told in passing.
    void said(const QString &text);

private:
    void follow(const std::function<void()> &change);
    std::vector<int> shownIds() const;

    Document &m_document;
    RecordListModel &m_model;
    ProblemScan &m_scan;
    RecordListView &m_list;
    Typing m_typing;
    std::unique_ptr<RecordsRepair> m_repair;
};

} // namespace tarvold::records
