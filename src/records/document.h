#pragma once

#include "datafiles/data_file_kind.h"
#include "disk/file_error.h"
#include "records/changes.h"
#include "records/entries.h"
#include "records/reading.h"

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QUndoStack>

#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace tarvold::records {

/// What was done to a record since the file was loaded or saved.
enum class EntryState { Unchanged, Edited, Added, Moved, Deleted };

/// One data file: its records and the changes to them, which can be undone without limit and reach
/// the disk only by a save.
///
/// Every byte of a record that nobody touched stays as it is, whatever it holds. Nothing is read or
/// written but by open(), reload(), save(), saveAs(), copyTo(), takeGrowth() and isFileUnchanged().
///
/// A record is known by its index among those that are shown, from 0, which changes when records
/// before it are added or go, or by its id, which never does until the file is loaded again, see
/// loads().
class Document : public QObject
{
    Q_OBJECT
public:
    explicit Document(QObject *parent = nullptr);

    /// Loads a file. On an error the document is as it was.
    /// \param name as the user typed it
    /// \param kind of its records
    /// \param progress of dividing it into records; stopping that is an error
    [[nodiscard]] Result<void> open(const QString &name, DataFileKind kind,
                                    const Progress &progress = {});

    /// The same with bytes that the caller has just read from the file, such as to guess its kind.
    [[nodiscard]] Result<void> take(const QString &name, const QByteArray &bytes, DataFileKind kind,
                                    const Progress &progress = {});

    /// The same with where the records start in these bytes, see splitIntoRecords().
    void take(const QString &name, const QByteArray &bytes, DataFileKind kind,
              std::vector<qsizetype> starts);

    /// Loads the first records of a file to be looked at: nothing can be changed until the file is
    /// loaded whole.
    void takeBeginning(const QString &name, const QByteArray &bytes, DataFileKind kind);
    /// Whether these are all that is loaded.
    bool isBeginning() const { return m_isBeginning; }

    /// Reads the file again and forgets all changes.
    [[nodiscard]] Result<void> reload();

    /// How often a file was loaded. An id is that of the same record as long as this is the same,
    /// whatever is reset meanwhile.
    int loads() const { return m_loads; }

    const QString &fileName() const { return m_name; }
    DataFileKind kind() const { return m_kind; }
    /// What the file held when it was last loaded or saved.
    const QByteArray &file() const { return m_file; }
    const Catalog &catalog() const { return Catalog::of(m_kind); }
    int count() const { return m_entries.count(); }
    const Entry &entry(int index) const { return m_entries.at(index); }
    /// Where the record with this id is; nothing if it is not shown.
    std::optional<int> indexOf(int id) const;
    /// The same, but for one that is not shown where the record behind it is, or else the last one;
    /// nothing if none is shown, or none ever had that id.
    std::optional<int> indexFrom(int id) const;
    /// The same as indexOf() for all ids there are; -1: it is not shown.
    std::vector<int> indexesById() const;
    EntryState stateOf(int index) const;
    /// The last record that is not deleted, whose line end may be missing; -1: there is none.
    int last() const;
    bool isChanged() const { return !m_undo.isClean(); }
    QUndoStack &undoStack() { return m_undo; }

    /// \name Changes. Each is one step to undo. One that changes no byte is none.
    ///
    /// Only the last line of the file may lack its end: a record that is not the last one gets a CR
    /// LF as a part of the change. So does one that ends with a lone CR when an empty line comes to
    /// follow it.
    /// \{
    void replace(int index, const QByteArray &bytes, const QString &what);
    /// Replaces many records at once, such as by all repairs.
    void replace(const std::vector<std::pair<int, QByteArray>> &records, const QString &what);
    /// Deleted records are shown until the next save, but those that the file never held go at
    /// once.
    void remove(const std::vector<int> &indexes);
    void restore(const std::vector<int> &indexes);
    /// The copy comes next to the record.
    void duplicate(int index);
    /// Moves a record up (-1) or down (1) by one, unless it is at the end.
    void move(int index, int by);
    /// \}

    /// Replaces the file atomically, see rewriteFile(). Deleted records are no longer shown then,
    /// but undoing their deletion brings them back. What was only added to the end of the file
    /// since it was loaded is kept, see takeGrowth().
    /// \param mayOverwrite asked if the file was changed in any other way; without it, or if it
    ///        says no, the error says `ChangedByAnother`
    /// \return see isInFile(); all changes are kept after any other error
    [[nodiscard]] Result<void> save(const std::function<bool()> &mayOverwrite);

    /// The same with another file, which is this document's file from then on. What was in it is
    /// overwritten without asking.
    [[nodiscard]] Result<void> saveAs(const QString &name);

    /// Whether the changes are in the file after a save with this result. After `Unconfirmed` they
    /// are, but the disk did not confirm that, so the user is to be told.
    static bool isInFile(const Result<void> &saved);

    /// Appends records to the end of another file, see appendToFile(), each with its line end. If
    /// that file's last line has no end, it gets one first.
    [[nodiscard]] Result<void> copyTo(const QString &name, const std::vector<int> &indexes) const;

    /// Takes over what was added to the end of the file since it was loaded or saved, such as by
    /// the screens of the editor. It comes behind all other records, as what the file holds and no
    /// change: all changes stay, and so does what can be undone.
    ///
    /// Where the file changed in another way, or where a record of any step to undo would run into
    /// the one added behind it for want of a line end, nothing is done.
    /// Nor is it where the last of them is not complete, as another program may be in the middle of
    /// it. A record may lack a line that the screens leave out.
    /// \return how many records came
    int takeGrowth();

    /// Whether the file still holds what was loaded or saved last.
    bool isFileUnchanged() const;

signals:
    void aboutToReset();
    void reset(); ///< all entries are others, or others are shown here and there
    void aboutToInsert(int first, int last);
    void inserted(int first, int last);
    void aboutToRemove(int first, int last);
    void removed(int first, int last);
    void changed(const std::vector<int> &indexes); ///< their bytes or states; ascending
    void saved();                                  ///< all states are others, but no bytes

private:
    friend class Change;

    /// A patch as it is applied forwards or backwards.
    struct Replacement
    {
        int row;
        const std::vector<Entry> &from;
        const std::vector<Entry> &to;
    };

    /// Divides bytes into records and shows them.
    [[nodiscard]] Result<void> show(const QString &name, const QByteArray &bytes, DataFileKind kind,
                                    const Progress &progress);
    void show(const QString &name, const QByteArray &bytes, DataFileKind kind,
              std::vector<qsizetype> starts, bool isBeginning);
    /// Pushes a change to the undo stack, which makes it.
    /// \param moved see Change
    void push(std::vector<Patch> patches, const QString &what, int moved = -1);
    void keepLinesApart(std::vector<Patch> &patches) const;
    void setDeleted(const std::vector<int> &indexes, bool isDeleted, const QString &what);
    /// Makes the changes of patches, or takes them back, and tells of it.
    void apply(const std::vector<Patch> &patches, bool isUndo);
    void applyAtOnce(const Replacement &patch);
    void applyInPlace(const Replacement &patch, std::vector<int> &rows);
    void replaceRun(int row, std::span<const Entry> to, bool isShown);
    void tellOfChanges(std::vector<int> rows);
    int countRuns(const std::vector<Replacement> &replacements) const;
    bool isFateSame(const Entry &from, const Entry &to) const { return isGone(from) == isGone(to); }
    void noteMove(int id);

    int originOf(int id) const { return m_origins.at(std::size_t(id)); }
    /// Whether a save took it from the file, so that only undo knows of it.
    bool isGone(const Entry &entry) const { return entry.isDeleted && originOf(entry.id) < 0; }
    QByteArrayView original(int origin) const;
    bool isOutOfPlace(int index) const;

    bool isEndedBefore(QByteArrayView added) const;
    bool areComplete(QByteArrayView added, const std::vector<qsizetype> &starts) const;
    void adopt(const QByteArray &longer, const std::vector<qsizetype> &starts);
    void visitChanges(const std::function<void(Entry &)> &visitor) const;

    QByteArray joined() const;
    void takeOver(const QString &name, const QByteArray &bytes);
    std::vector<std::pair<int, int>> deletedRuns() const;
    void hide(const std::vector<std::pair<int, int>> &runs);
    void rebase(const QByteArray &bytes);

    QString m_name;
    DataFileKind m_kind = DataFileKind::NormalEndings;
    bool m_isBeginning = false;
    QByteArray m_file; ///< what it held when it was last loaded or saved
    int m_loads = 0;
    std::vector<qsizetype> m_starts; ///< of the records in it, and its end
    Entries m_entries;
    std::vector<int> m_origins; ///< by id: its index in the file; -1: it is not in it
    QSet<int> m_moved;          ///< the ids of those that were moved since, by undo as well
    QUndoStack m_undo;
};

} // namespace tarvold::records
