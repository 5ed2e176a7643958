#pragma once

#include "disk/file_error.h"

#include <QByteArray>

#include <vector>

namespace tarvold {

/// The records of an import's source file, as a table of 44 lists, `import0` to `import43`: item i
/// of list K is line K + 1 of record i.
///
/// Only the file's bytes and where each record starts are stored; a list is a view of them.
class ImportTable
{
public:
    /// The table of a source file's bytes. The error says where the file is cut short.
    /// \param linesPerRecord how many lists are used
    [[nodiscard]] static Result<ImportTable> of(QByteArray bytes, int linesPerRecord);

    /// How many records the source has.
    int recordCount() const { return static_cast<int>(m_starts.size()); }

    /// An item of one of the lists; list 0 has an empty item for a record that is not to be
    /// written.
    QByteArrayView item(int list, int record) const;

    /// Empties the item of list 0: the record is not to be written.
    void skip(int record);

    /// The records to be written, each line ended by CR LF. Empties the table.
    QByteArray takeWritten();

private:
    QByteArray m_bytes;
    std::vector<qsizetype> m_starts; ///< of the records in the bytes
    std::vector<bool> m_skipped;
};

} // namespace tarvold
