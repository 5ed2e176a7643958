#pragma once

#include "records/document.h"
#include "records/problems.h"

#include <QObject>

#include <optional>

namespace tarvold::records {

class ProblemScan;
class RecordListModel;
class RecordListView;
class RecordPane;

/// Shows the record of the list's current row in the pane, and makes what the user changes there a
/// change of the document.
///
/// A text that the user typed is kept before another record is shown. If that is impossible, the
/// list goes back to the record that the text belongs to.
class ChosenRecord : public QObject
{
    Q_OBJECT
public:
    ChosenRecord(Document &document, const ProblemScan &scan, RecordListModel &model,
                 RecordListView &list, RecordPane &pane);

private:
    /// Shows the record of the current row.
    void follow();
    /// Goes back to the row of the record that is shown.
    void goBack();
    void show(int index);
    void update();
    void showState(int index);
    void keepLine(int field, const QByteArray &line);
    void repair(const Problem &problem);
    int currentIndex() const;
    bool isCurrentShown() const;
    bool isShown(int first, int last) const;
    std::optional<int> shownIndex() const;
    Record recordAt(int index) const;

    Document &m_document;
    const ProblemScan &m_scan;
    RecordListModel &m_model;
    RecordListView &m_list;
    RecordPane &m_pane;
    std::optional<int> m_id; ///< of the record that is shown
    std::optional<DataFileKind> m_kind;
    bool m_isReset = false; ///< the document holds others than those that are shown
};

} // namespace tarvold::records
