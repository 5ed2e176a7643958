#pragma once

#include "records/record.h"

#include <QHash>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

/// What is wrong with records, in words, and how to repair it.
namespace tarvold::records {

/// Something wrong, or doubtful, in a record.
struct Problem
{
    enum class Type {
        MissingLine,
        SurplusLine,
        BareLineEnd, ///< CR or LF alone, or CR CR LF
        NoLastLineEnd,
        Utf8,             ///< where the game reads its code page
        UnknownWord,      ///< outside the field's coding or list
        CommentaryAsName, ///< where damage before it puts a line of commentary
        UnknownTag,
        UnclosedTag,
        RefusedTag,
        EmptyFirstLine, ///< the import leaves such a record out
        EmptyLine,      ///< where "-BLANK-" belongs, or another word or a text
        SameKey,        ///< a stipulation's match type and name stand twice in the file
        SameRecord,
        OtherKind, ///< the record looks like one of another kind
    };
    Type type;
    int field = -1; ///< that it is about, or that is missing; -1: no single one
    int line = 0;   ///< of the record, from 0: where it stands, or where the missing line belongs
    QString text;   ///< a sentence or two
    QString repair =
        {}; ///< what a repair would do, such as "Put "Any" there"; empty: none is offered
    QByteArray repaired = {}; ///< the record after that repair
    bool isSingle = false;    ///< offered by itself only, as it may change a text that is right
};

/// All problems of one record by itself, in the order of its lines.
///
/// A record that looks like one of another kind has no others but in its bytes, as its lines would
/// be measured by the wrong fields. Of a line with very many wrong tags only the first are told.
/// \param number of the record, from 1, for the texts
/// \param isLast whether it is the file's last record: what is wrong at its end harms only what is
/// added to the file. A last line end is asked for in any record
std::vector<Problem> problemsOf(const Record &record, int number, bool isLast);

/// The record after all repairs that are offered, and those that are offered then, until none is.
/// Without those that are offered by themselves only. The same bytes if there is none.
QByteArray repairAll(const Record &record, bool isLast);

/// Finds what can only be seen by comparing records: the same record or key twice. Add all records
/// in their order.
class Comparison
{
public:
    explicit Comparison(const Catalog &catalog) : m_catalog(catalog) {}

    /// The problems of the next record beside those before it.
    /// \param number of the record, from 1, for the texts; without it, how many were added
    std::vector<Problem> add(const Record &record, std::optional<int> number = {});

private:
    /// Stands for a text; two texts that differ have the same one practically never.
    using Print = std::pair<std::size_t, std::size_t>;

    static Print printOf(QByteArrayView text);

    const Catalog &m_catalog;
    int m_count = 0;
    QHash<Print, int> m_records; ///< the number of the first record with these lines
    QHash<Print, int> m_keys;    ///< the same of a stipulation's match type and name
};

} // namespace tarvold::records
