#pragma once

#include "records/record_sort.h"
#include "records/search.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <optional>
#include <vector>

namespace tarvold::records {

class Document;
class ProblemScan;

/// Shows the records of a document as a table, all or those that are searched for, in the order of
/// the file or of one column. Makes texts only for visible rows. Long searches and sorts are done
/// in parts between two events, so that nothing waits for them.
///
/// A change never takes the chosen record out of the list: it stays until another one is chosen,
/// and rows keep their places until the next sort. What the file got at its end comes where it is
/// sorted.
class RecordListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column {
        Number, ///< in the file, from 1
        State,  ///< what was done to it, in a word
        Telling ///< the first of the kind's own columns; behind the last one are problems
    };

    /// \param document kept by the caller for as long as the model lives, as is `scan`
    RecordListModel(const Document &document, const ProblemScan &scan, QObject *parent = nullptr);

    /// Whose records it shows.
    const Document &document() const { return m_document; }

    /// The column that says how many problems a record has.
    int problemColumn() const { return Telling + int(m_telling.size()); }

    /// The record in a row, by its index in the document.
    int indexAt(int row) const;
    /// The row of a record; -1 if it is not shown.
    int rowOf(int index) const;

    /// Shows the records in which a text stands, see SearchText. The first of them are shown when
    /// this returns. A search that runs is over.
    void setSearch(const QString &text);
    /// Shows only records with problems, as they are found, and those that are deleted but still in
    /// the file.
    void setOnlyProblems(bool isOnly);
    bool isFiltered() const { return m_isOnlyProblems || !m_search.isEmpty(); }
    bool isSearching() const { return m_isSearching; }

    /// Sorts by a column; -1: in the order of the file. The first click brings the changed records
    /// and those with most problems to the top. By problems it sorts once more when the scan has
    /// found all of them, also one that was stopped and goes on, but not after each change.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    int sortColumn() const { return m_sortColumn; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }

    /// Tells which record the user is at; -1: none. It is shown then.
    void setChosen(int index);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// Other rows are shown, or in another order: the view's current row is still that of the
    /// record that it was at, but there is none if that is no longer shown.
    void rearranged();
    /// A search has found all, or a sort is done.
    void settled();

private:
    // What is shown of a record.
    QString textAt(int index, int column) const;
    QString accessibleText(int index) const;
    QVariant colourOf(int index, int column) const;
    const QStringList &tellingTexts(int index) const;
    void tellOfData(int first, int last);

    // Which rows are shown.
    bool isWanted(int index);
    bool isAhead(int index) const;
    void search(const SearchText &text, bool isNarrower);
    bool stopSearch();
    void searchAnew();
    void searchOn();
    std::vector<int> searchSlice();
    void append(const std::vector<int> &found);
    void update(int first, int last);
    void update(const std::vector<int> &indexes);
    void reconsider();
    void insertRow(int index);
    void removeRow(int row);
    void showRows(std::vector<int> rows);
    void removeLost();
    void renumberRows();

    // Their order.
    int rankOf(int index) const { return m_ranks[std::size_t(index)]; }
    void setOrder(std::vector<int> order);
    void arrange(std::vector<int> order);
    void addToOrder(int first, int last);
    bool isGrowth(int first, int last) const;
    bool isSortedByNumber() const
    {
        return m_sortColumn < Telling || m_sortColumn == problemColumn();
    }
    bool isSortedBefore(int one, int other) const;
    int sortKeyOf(int index) const;
    QString sortTextOf(int index) const;
    void sortOn();
    void sortAnew();

    // What the document and its scan tell.
    void noteReset();
    void noteChange(const std::vector<int> &indexes);
    void noteInsertion(int first, int last);
    void noteRemoval(int first, int last);
    void noteProblems(int first, int last);
    void tellOfRecords(int first, int last);

    const Document &m_document;
    const ProblemScan &m_scan;
    QStringList m_telling; ///< captions of the kind's own columns

    std::vector<int> m_order; ///< all records, sorted
    std::vector<int> m_ranks; ///< the place of each in `m_order`
    std::vector<int> m_rows;  ///< those that are shown, in that order
    std::vector<int> m_rowOf; ///< the row of each record; -1: not shown

    SearchText m_search;
    bool m_isOnlyProblems = false;
    bool m_isSearching = false;
    std::vector<int> m_candidates; ///< of the search that runs
    std::size_t m_next = 0;        ///< of the candidates
    QTimer m_searchTimer;

    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_isSortedTooSoon = false;   ///< by problems, before all were found
    std::optional<RecordSort> m_sort; ///< that runs
    QTimer m_sortTimer;

    int m_chosen = -1; ///< the id of a record; -1: none
    int m_kept = -1;   ///< the same once it was shown: it stays although it is no longer wanted
    std::vector<int> m_formerlyChosen; ///< ids
    QTimer m_choiceTimer;

    mutable int m_textsOf = -1; ///< the record whose texts were made last
    mutable QStringList m_texts;
};

} // namespace tarvold::records
