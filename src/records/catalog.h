#pragma once

#include "datafiles/data_file_kind.h"
#include "datafiles/tags.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tarvold::records {

/// A tag of a commentary, and what refuses it.
struct KnownTag
{
    QString tag;                                  ///< such as "<recfullname>"
    QString meaning;                              ///< its item in the tag list
    int decider = -1;                             ///< the field whose text may refuse it; -1: none
    bool (*isRefused)(const QString &) = nullptr; ///< takes that text as its screen shows it
    QString message = {};                         ///< why it is refused, as its screen says
};

/// One line of a record: its field and what its screen offers for it.
struct KnownField
{
    const RecordField *field = nullptr;
    QString caption;        ///< its name, without a colon at the end
    QStringList items = {}; ///< the list that its screen offers, as shown there; empty: any text
    /// The same as they stand in the file, and behind them words that the game knows, too, although
    /// the screen does not offer them.
    QStringList words = {};
    QString newText = {}; ///< the line that the field has in a record that nobody filled in
};

/// What the screens know of one kind of record: made from their own tables, so it cannot disagree
/// with them.
///
/// A field is known here by its place in the format, from 0.
class Catalog
{
public:
    /// The catalog of a kind. Lives until the program ends.
    static const Catalog &of(DataFileKind kind);

    DataFileKind kind() const { return m_kind; }
    const std::vector<KnownField> &fields() const { return m_fields; }
    const std::vector<KnownTag> &tags() const { return m_tags; }
    int fieldCount() const { return int(m_fields.size()); }

    /// Where the commentary begins; fieldCount() for a stipulation, which has none.
    int firstCommentary() const { return m_firstCommentary; }
    bool isCommentary(int field) const { return field >= m_firstCommentary; }

    /// The place of a field; -1 if this kind has no such field.
    int placeOf(const RecordField &field) const;

private:
    explicit Catalog(DataFileKind kind);

    DataFileKind m_kind;
    std::vector<KnownField> m_fields;
    std::vector<KnownTag> m_tags;
    int m_firstCommentary = 0;
};

} // namespace tarvold::records
