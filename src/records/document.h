#pragma once

#include "datafiles/data_file_kind.h"
#include "disk/file_error.h"

#include <QByteArray>
#include <QObject>
#include <QUndoStack>

#include <functional>
#include <span>
#include <vector>

namespace tarvold::records {

/// A record of a document: its bytes, and where it comes from.
struct Entry
{
    QByteArray bytes;       ///< with all line ends; shares the bytes of the file until it is edited
    int origin = -1;        ///< its index in the file as it was loaded or saved; -1: new
    bool isDeleted = false; ///< shown until the next save, then gone
};

/// What was done to a record since the file was loaded or saved.
enum class EntryState { Unchanged, Edited, Added, Moved, Deleted };

/// One data file: its records and the changes to them, which can be undone without limit and reach
/// the disk only by a save.
///
/// Every byte of a record that nobody touched stays as it is, whatever it holds. Nothing is read or
/// written but by open(), reload(), save(), saveAs() and copyTo().
class Document : public QObject
{
    Q_OBJECT
public:
    explicit Document(QObject *parent = nullptr);

    /// Loads a file. On an error the document is as it was.
    /// \param name as the user typed it
    /// \param kind of its records
    [[nodiscard]] Result<void> open(const QString &name, DataFileKind kind);

    /// Reads the file again and forgets all changes.
    [[nodiscard]] Result<void> reload();

    /// Reads the same bytes as another kind of records. Only while nothing is changed.
    void setKind(DataFileKind kind);

    const QString &fileName() const { return m_name; }
    DataFileKind kind() const { return m_kind; }
    int count() const { return int(m_entries.size()); }
    const Entry &entry(int index) const { return m_entries.at(std::size_t(index)); }
    EntryState stateOf(int index) const;
    bool isChanged() const { return !m_undo.isClean(); }
    QUndoStack &undoStack() { return m_undo; }

    /// \name Changes. Each is one step to undo.
    /// \{
    void replace(int index, const QByteArray &bytes, const QString &what);
    /// Replaces many records at once, such as by all repairs.
    void replace(const std::vector<std::pair<int, QByteArray>> &records, const QString &what);
    void remove(const std::vector<int> &indexes);
    void restore(const std::vector<int> &indexes);
    void duplicate(int index);
    /// Moves a record up (-1) or down (1) by one.
    void move(int index, int by);
    /// \}

    /// Replaces the file atomically, see rewriteFile(). `mayOverwrite` is asked if another program
    /// changed it.
    [[nodiscard]] Result<void> save(const std::function<bool()> &mayOverwrite);
    [[nodiscard]] Result<void> saveAs(const QString &name);
    /// Appends records to the end of another file, see appendToFile().
    [[nodiscard]] Result<void> copyTo(const QString &name, const std::vector<int> &indexes) const;

    /// Whether the file still holds what was loaded or saved last.
    bool isFileUnchanged() const;

signals:
    void aboutToReset();
    void reset(); ///< all entries are others
    void aboutToInsert(int first, int last);
    void inserted(int first, int last);
    void aboutToRemove(int first, int last);
    void removed(int first, int last);
    void changed(int first, int last); ///< their bytes or states

private:
    // ...
    QString m_name;
    DataFileKind m_kind = DataFileKind::NormalEndings;
    QByteArray m_loaded; ///< entries that nobody edited share these bytes
    QByteArray m_onDisk; ///< what the file held when it was last loaded or saved
    std::vector<Entry> m_entries;
    QUndoStack m_undo;
};

} // namespace tarvold::records
