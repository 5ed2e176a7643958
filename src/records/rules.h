#pragma once

#include "records/catalog.h"
#include "records/line_costs.h"
#include "records/lines.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <vector>

namespace tarvold::records {

/// What a kind's records may hold, by the bytes in the file, so that a line without problems need
/// not be decoded.
class Rules
{
public:
    /// The rules of a catalog's kind. They live until the program ends.
    static const Rules &of(const Catalog &catalog);

    /// Whether a field takes only the words of its list.
    bool hasWords(int field) const { return !m_words.at(std::size_t(field)).empty(); }
    /// Whether the field takes the line: it is one of its words, or the field takes any text.
    bool takes(int field, QByteArrayView line) const;
    /// Whether a record may well hold the line there as it stands: it is not empty, and the field
    /// takes it; no name looks like a line of commentary, but commentary may be anything.
    bool isLegal(int field, QByteArrayView line) const;
    /// Whether lines are those of a whole record, each legal for its field.
    bool areLegal(const std::vector<Line> &record) const;
    /// Whether a line of commentary may come to stand in the field unnoticed, if the record before
    /// has one too many and this one lacks another line: it is the first one, and takes any text.
    bool mayHoldCommentary(int field) const
    {
        return field == 0 && !hasWords(field) && m_firstCommentary < int(m_words.size());
    }
    /// Whether its list is of numbers, apart from other words that it may have.
    bool isNumber(int field) const;

    /// A tag that commentary of this kind knows; nullptr for any other.
    const KnownTag *tag(QByteArrayView tag) const;
    /// All of them.
    const QStringList &tags() const { return m_tags; }

private:
    struct TagBytes
    {
        QByteArray bytes;
        const KnownTag *tag;
    };

    explicit Rules(const Catalog &catalog);

    const LineCosts &m_costs;
    int m_firstCommentary;
    std::vector<std::vector<QByteArray>> m_words; ///< of each field, sorted; none: any text
    std::vector<TagBytes> m_tagBytes;             ///< sorted
    QStringList m_tags;
};

} // namespace tarvold::records
