#pragma once

#include "records/reading.h"

#include <QByteArray>

namespace tarvold::records {

/// A record of a file, its lines matched with the fields of its kind.
class Record
{
public:
    /// \param bytes with all line ends; shared, not copied
    Record(QByteArray bytes, const Catalog &catalog);

    const Catalog &catalog() const { return *m_catalog; }
    const QByteArray &bytes() const { return m_bytes; }
    const std::vector<Line> &lines() const { return m_lines; }
    const Layout &layout() const { return m_layout; }

    /// A field's line as it stands in the file; nothing if it is missing.
    std::optional<QByteArrayView> lineBytes(int field) const;
    /// A field's line as text, as it stands in the file; nothing if its line is missing.
    std::optional<QString> lineText(int field) const;
    /// A field's text as its screen shows it: "Top Rope" for "t", nothing typed for "-BLANK-". A
    /// word that its screen does not know is shown as it stands. Empty if the line is missing.
    QString shownText(int field) const;
    /// The same by field; empty for a field that this kind does not have.
    QString shownText(const RecordField &field) const;

    /// The record with another line for a field. The line keeps its end, a missing line is inserted
    /// where it belongs, ended by CR LF; all other bytes stay, but an end becomes CR LF where two
    /// lines would become one, or the last one none. \param line as it stands in the file, without
    /// an end; encoded by encodeLine()
    QByteArray withLine(int field, QByteArrayView line) const;

    /// The record without a line and its end; all other bytes stay. \param line from 0
    QByteArray withoutLine(int line) const;

    /// The line of a field, from 0; if it is missing, where it belongs: behind the line of the last
    /// field before it.
    int placeFor(int field) const;

private:
    /// Where a line starts; the end of the bytes for the one behind the last.
    qsizetype startOf(int line) const;

    QByteArray m_bytes;
    const Catalog *m_catalog;
    std::vector<Line> m_lines;
    Layout m_layout;
};

} // namespace tarvold::records
