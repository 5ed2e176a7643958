#pragma once

#include "datafiles/data_file_kind.h"
#include "records/catalog.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <vector>

namespace tarvold::records {

/// Finds bytes in others, with small letters taken for capital ones and the reverse.
class Matcher
{
public:
    explicit Matcher(QByteArray wanted);

    const QByteArray &folded() const { return m_wanted; }
    bool isIn(QByteArrayView bytes) const;

private:
    bool endsAt(const char *end) const;

    QByteArray m_wanted;                         ///< folded
    std::array<unsigned char, 256> m_distance{}; ///< how far to go on after a last byte
};

/// What an author types into a search box: finds records of one kind in which it stands, in any
/// line, whatever its letter case. Looks at bytes, so that large files are searched in no time.
class SearchText
{
public:
    /// Finds every record.
    SearchText() = default;
    SearchText(const QString &text, DataFileKind kind);

    bool isEmpty() const { return m_text.isEmpty(); }
    const QString &text() const { return m_text; }
    bool isIn(QByteArrayView record) const;

    /// Whether all that this finds, the other one finds as well.
    bool narrows(const SearchText &other) const;

private:
    /// A line whose screen shows another text than the file has, such as "Top Rope" for "t".
    struct CodedLine
    {
        int field;
        QByteArray word;
    };

    bool hasCoded(QByteArrayView record) const;

    QString m_text;
    const Catalog *m_catalog = nullptr;
    std::vector<Matcher> m_spellings; ///< in the encodings that a file may have
    std::vector<CodedLine> m_coded;   ///< in the order of the fields
};

} // namespace tarvold::records
