#pragma once

#include "datafiles/stipulation_format.h"
#include "disk/file_error.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <deque>
#include <optional>
#include <utility>
#include <vector>

namespace tarvold {

/// The match stipulations of one file: a flat list of lines, 19 for each stipulation.
///
/// Lines are kept as the bytes that were read, so that what nobody edits is written back unchanged.
/// A stipulation is known by the index of its first line. Reading past the end gives empty lines.
class StipulationTable
{
public:
    static constexpr int kLinesPerRecord = int(kStipulationFormat.size());

    /// The lines of one stipulation to be stored.
    using Record = std::array<std::optional<QByteArray>, kLinesPerRecord>;

    /// Replaces the table by a file's lines. A missing file is created empty. On an error the table
    /// is as it was; a file that was missing is so still, unless the error says that it may not be.
    /// \param name as the user typed it
    [[nodiscard]] std::optional<FileError> load(const QString &name);

    /// What becomes of the file when another program changed it since it was loaded or written
    /// back. A file of another name is always written over.
    enum class IfChanged { Refuse, Overwrite };

    /// Writes all lines back to a file, see rewriteFile().
    /// \param name as the user typed it
    [[nodiscard]] std::optional<FileError> writeBack(const QString &name,
                                                     IfChanged ifChanged = IfChanged::Refuse);

    /// How many lines there are.
    int lineCount() const { return static_cast<int>(stipulations.size()); }

    /// A line; an empty one past the end.
    QByteArrayView line(int index) const;

    /// A stipulation's text in the list: match type and name, joined by " / ".
    QByteArray displayText(int index) const;

    /// The indexes of all stipulations that the list shows as `displayText`, in their order. None
    /// of them is behind the last line.
    std::vector<int> find(const QByteArray &displayText) const;

    /// What the list shows after loading: every stipulation.
    std::vector<int> allRecords() const;

    /// What the list shows after a change: every stipulation whose first line is not empty.
    std::vector<int> namedRecords() const;

    /// How often this match type and name stand one after the other, at any place in the table but
    /// `except`.
    int countKey(QByteArrayView matchType, QByteArrayView name, int except) const;

    /// Adds a stipulation at the end. A line that is not there is left out.
    void append(const Record &record);

    /// Overwrites a stipulation. A line that is not there is left as it was.
    void replace(int index, const Record &record);

    /// Removes the stipulation that starts at an index.
    void remove(int index);

    /// All lines as they are now, to go back to when they could not be written: it lasts until the
    /// table is loaded or written back.
    using Snapshot = std::vector<QByteArrayView>;
    Snapshot snapshot() const { return stipulations; }

    /// Goes back to a snapshot of this table.
    void restore(Snapshot snapshot) { stipulations = std::move(snapshot); }

private:
    /// Replaces the table by the lines of a file that is there. On an error it is as it was.
    [[nodiscard]] std::optional<FileError> read(const QString &name);

    /// Keeps the bytes of an edited line until the table is loaded or written back.
    QByteArrayView keep(const QByteArray &line);

    /// Makes all lines views of the file that they were written to.
    void moveInto(QByteArray file);

    QString m_name;                  ///< of the file that was last read or written back
    QByteArray m_file;               ///< what it held then
    std::deque<QByteArray> m_edited; ///< the bytes of lines that were edited since
    Snapshot stipulations;           ///< all lines, in order: views of the one or the other
};

} // namespace tarvold
