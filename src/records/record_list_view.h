#pragma once

#include <QTreeView>

#include <vector>

namespace tarvold::records {

/// The list of a file's records: rows of columns, any number of which can be selected.
///
/// A click on a column's head sorts by it, a second click sorts the other way round, and a third
/// one goes back to the order of the file.
class RecordListView : public QTreeView
{
    Q_OBJECT
public:
    explicit RecordListView(QWidget *parent = nullptr);

    /// See allWanted().
    void selectAll() override;
    void setModel(QAbstractItemModel *model) override;

    /// Goes back to the order of the file.
    void showFileOrder();

    /// The selected rows, from top to bottom.
    std::vector<int> selectedRows() const;

    /// Makes a row the current and only selected one, and scrolls to it.
    void goTo(int row);

    /// What is shown while there are no rows.
    void setPlaceholder(const QString &text);

    /// Shows a column in another place, from 0 at the left.
    void showBeside(int column, int place);

    /// Gives the columns the widths that their heads and first rows need, when the list is shown,
    /// as only then its room is known. \param first, last columns that should be in sight; they are
    /// made narrower for that
    void fitColumns(int first, int last);

    /// The role of a head for the longest text that its column may come to show; none: that is not
    /// known.
    static constexpr int kLongestText = Qt::UserRole;

    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles = {}) override;

signals:
    /// All records are about to be selected, or the last one to be gone to. Those that are still to
    /// be loaded are wanted now.
    void allWanted();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fitColumns();
    void narrow(std::vector<int> &widths, const std::vector<int> &least) const;
    void widenSorted();

    int m_first = 0;
    int m_last = -1;         ///< see fitColumns(); before the first call there are none
    bool m_isFitted = false; ///< to the room that it has
    QString m_placeholder;
};

} // namespace tarvold::records
