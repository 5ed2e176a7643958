#pragma once

#include "records/problems.h"
#include "records/record.h"
#include "records/record_fields_view.h"

#include <QWidget>

#include <vector>

class QLabel;

namespace tarvold {
class Announcement;
}

namespace tarvold::records {

class PaneScroll;
class ProblemList;
class RecordTabs;
class ShownView;

/// The chosen record: its conditions in a sentence, its problems, and below them two tabs, the
/// commentary as its audience reads it and all lines as they are written. Ctrl+1 and Ctrl+2 go to
/// the tabs. Where the window is too low for all that, the pane scrolls as a whole.
///
/// It changes nothing itself: it tells what the user wants, and is told the outcome by
/// updateRecord() and setProblems(), which may come while a signal is being sent. It keeps no bytes
/// of the records that it is given.
class RecordPane : public QWidget
{
    Q_OBJECT
public:
    enum class View { AsShown, AsWritten };

    explicit RecordPane(QWidget *parent = nullptr);
    ~RecordPane() override;
    Q_DISABLE_COPY_MOVE(RecordPane)

    /// Shows another record, from its top. What is pending for the one before is lost: call
    /// commit() first.
    void showRecord(const Record &record);
    /// Shows the same record with other bytes, such as after an undo: the focus, the cursor, the
    /// scroll positions and what is pending stay.
    void updateRecord(const Record &record);
    /// Makes what the tab behind needs from now on, so that it is shown without a pause.
    void prepare();
    /// Shows that no record is chosen.
    void clear();
    /// Shows the problems of the record that is shown; call it after showRecord(), and whenever
    /// they may have changed. A change of their number is announced if the window is in use.
    void setProblems(const std::vector<Problem> &problems);
    /// Whether the record can be changed; a deleted one cannot.
    void setEditable(bool editable);

    /// Keeps text that the user has put into an editor and not left yet, by lineEdited(). Call it
    /// before another record is chosen, and before any command, such as undo, save or close.
    /// \return `false` if the text has a character that the file cannot hold: a message tells the
    /// user, the text stays in its editor, and the command should not go on
    bool commit();
    /// Whether there is such text.
    bool hasPending() const;

    View view() const;
    void setView(View view);
    /// Shows the record as written, with the focus in a field's editor.
    void goToField(int field);
    /// Marks the lines that hold a text, and scrolls to the first of them, now and in each record
    /// that is shown from now on. An empty text ends that.
    void setSearch(const QString &text);
    /// Goes to the next line that holds that text, round the end. Returns whether there is one.
    bool goToNextMatch();
    /// Shows where a problem is.
    void goTo(const Problem &problem);

    QSize sizeHint() const override;

signals:
    /// The user changed a field of the record.
    /// \param line as it stands in the file, without an end; see Record::withLine()
    void lineEdited(int field, const QByteArray &line);
    /// The user wants a problem repaired.
    void repairRequested(const tarvold::records::Problem &problem);
    /// Something was done; to be told in passing.
    void said(const QString &text);
    /// Whether there is text that was not left yet, see hasPending(), may have changed.
    void pendingChanged();

private:
    void addTabs();
    void tell(const Record &record);
    void repair(const Problem &wanted);
    void showRepaired(const Problem &problem, const RecordFieldsView::Lines &before);

    QLabel *m_conditions;
    ProblemList *m_problems;
    RecordTabs *m_tabs;
    ShownView *m_shown;
    RecordFieldsView *m_fields;
    PaneScroll *m_scroll; ///< has all of these
    Announcement *m_announcement;
    bool m_areProblemsNew = true; ///< those that come next are not compared with the ones before
};

} // namespace tarvold::records
