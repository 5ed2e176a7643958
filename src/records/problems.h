#pragma once

#include "records/record.h"

#include <QString>

#include <optional>
#include <vector>

/// What is wrong with records, in words, and how to repair it.
namespace tarvold::records {

/// Something wrong, or doubtful, in a record.
struct Problem
{
    enum class Type {
        MissingLine,
        SurplusLine,
        BareLineEnd, ///< CR or LF alone
        NoLastLineEnd,
        Utf8,        ///< where the game reads its code page
        UnknownWord, ///< outside the field's coding or list
        UnknownTag,
        UnclosedTag,
        RefusedTag,
        EmptyFirstLine, ///< the import leaves such a record out
        EmptyLine,      ///< where "-BLANK-" belongs
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
};

/// All problems of one record by itself, in the order of its lines.
/// \param number of the record, from 1, for the texts
/// \param isLast whether it is the file's last record, whose last line end may be missing
std::vector<Problem> problemsOf(const Record &record, int number, bool isLast);

/// Finds what can only be seen by comparing records: the same record or key twice. Add all records
/// in their order.
class Comparison
{
public:
    explicit Comparison(const Catalog &catalog) : m_catalog(catalog) {}

    /// The problems of the next record beside those before it.
    std::vector<Problem> add(const Record &record);

private:
    const Catalog &m_catalog;
    // ... hashes
};

} // namespace tarvold::records
