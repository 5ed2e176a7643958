#pragma once

#include <QByteArray>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tarvold::records {

/// A record of a document: its bytes, and who it is.
struct Entry
{
    QByteArray bytes;       ///< with all line ends; shares the bytes of the file until it is edited
    int id = -1;            ///< the same as long as the document shows this file
    bool isDeleted = false; ///< shown until the next save
};

/// A part of a file's bytes without a copy: they live as long as any part of them. Not terminated
/// by a NUL.
QByteArray partOf(const QByteArray &file, qsizetype start, qsizetype size);

/// Whether bytes are a part of a file's, and no copy.
bool isPartOf(QByteArrayView bytes, const QByteArray &file);

/// Whether a lone CR at the end of bytes would become a part of the end of the first line behind
/// them, as that line is empty.
bool joinsLines(QByteArrayView before, QByteArrayView behind);

/// Whether bytes end with a line end.
bool isEnded(QByteArrayView bytes);

/// The same bytes, ended by CR LF if they lack a line end. Nothing stays nothing.
QByteArray ended(const QByteArray &bytes);

/// The records of a document in their order. Some are not shown, as a save removed them from the
/// file: they keep their rows, so that changes made before can be undone by row.
class Entries
{
public:
    /// How many are shown.
    int count() const { return int(m_shown.size()); }
    /// One that is shown.
    const Entry &at(int index) const { return m_all[std::size_t(rowOf(index))]; }
    int rowOf(int index) const { return m_shown.at(std::size_t(index)); }
    /// How many are shown before a row.
    int shownBefore(int row) const;

    std::vector<Entry> &all() { return m_all; }
    const std::vector<Entry> &all() const { return m_all; }

    /// Replaces all; all are shown.
    void reset(std::vector<Entry> entries);
    void insert(int row, const std::vector<Entry> &entries);
    void erase(int row, int count);
    /// Shows or hides some rows that follow each other.
    void show(int row, int count);
    void hide(int row, int count);
    /// Hides some that are shown, by their indexes.
    void hideShown(int first, int last);
    /// Shows those, and only those, for which this is true.
    void showAll(const std::function<bool(const Entry &)> &isShown);

private:
    std::vector<Entry> m_all;
    std::vector<int> m_shown; ///< rows, ascending
};

} // namespace tarvold::records
