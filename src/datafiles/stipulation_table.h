#pragma once

#include "datafiles/stipulation_format.h"
#include "disk/file_error.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace tarvold {

/// The match stipulations of one file: a flat list of lines, 19 for each stipulation.
///
/// Lines are kept as the bytes that were read, so that what nobody edits is written back unchanged.
/// A stipulation is known by the index of its first line. Reading past the end gives empty lines.
/// A copy is independent, and cheap: both share the bytes of the file.
class StipulationTable
{
public:
    static constexpr int kLinesPerRecord = int(kStipulationFormat.size());

    /// The lines of one stipulation to be stored.
    using Record = std::array<std::optional<QByteArray>, kLinesPerRecord>;

    /// Changes a table by append(), replace() and remove().
    using Edit = std::function<void(StipulationTable &)>;

    /// Asked when another program changed the file since it was loaded or written back: whether to
    /// overwrite it. A file of another name is overwritten without asking.
    using MayOverwrite = std::function<bool()>;

    /// Replaces the table by a file's lines. A missing file is created empty. On an error the table
    /// is as it was; a file that was missing still is, unless the error says `MaybeChanged`.
    /// \param name as the user typed it
    [[nodiscard]] Result<void> load(const QString &name);

    /// Makes a change and writes it to the file, or rolls both back. While `mayOverwrite` is asked,
    /// this table is as it was before.
    /// \param name as the user typed it
    /// \return an error with `ChangedByAnother` if `mayOverwrite` said no. After `Unconfirmed` the
    ///         change is in the file and in this table; after any other error both are as they were
    [[nodiscard]] Result<void> change(const QString &name, const Edit &edit,
                                      const MayOverwrite &mayOverwrite);

    /// Whether the change that gave this result is in the file and in the table.
    static bool isInFile(const Result<void> &result);

    /// Writes all lines back to a file, see rewriteFile().
    /// \param name as the user typed it
    /// \param mayOverwrite without it, what another program changed is never overwritten
    [[nodiscard]] Result<void> writeBack(const QString &name,
                                         const MayOverwrite &mayOverwrite = {});

    /// How many lines there are.
    int lineCount() const { return static_cast<int>(stipulations.size()); }

    /// A line; an empty one past the end.
    QByteArrayView line(int index) const;

    /// A stipulation's text in the list: match type and name, joined by " / ".
    QByteArray displayText(int index) const;

    /// The indexes of all stipulations that the list shows as `displayText`, in their order. None
    /// of them is past the last line.
    std::vector<int> find(const QByteArray &displayText) const;

    /// What the list shows after loading: every stipulation.
    std::vector<int> allRecords() const;

    /// What the list shows after a change: every stipulation whose first line is not empty.
    std::vector<int> namedRecords() const;

    /// How often this match type and name follow each other, at any index of the table but
    /// `except`.
    int countKey(QByteArrayView matchType, QByteArrayView name, int except) const;

    /// Adds a stipulation at the end. A missing line is left out.
    void append(const Record &record);

    /// Overwrites a stipulation. A missing line is left as it was.
    void replace(int index, const Record &record);

    /// Removes the stipulation that starts at an index.
    void remove(int index);

private:
    using Lines = std::vector<QByteArrayView>;

    /// Replaces the table by the lines of a file that is there. On an error it is as it was.
    [[nodiscard]] Result<void> read(const QString &name);

    /// Keeps the bytes of an edited line until the table is loaded or written back.
    QByteArrayView keep(const QByteArray &line);

    /// Makes all lines views of the file that they were written to.
    void moveInto(QByteArray file);

    QString m_name;                  ///< of the file that was last read or written back
    QByteArray m_file;               ///< what it held then
    std::deque<QByteArray> m_edited; ///< the bytes of lines that were edited since
    Lines stipulations;              ///< all lines, in order: views of the one or the other
};

} // namespace tarvold
