#pragma once

#include "records/record.h"

#include <span>
#include <vector>

namespace tarvold::records {

/// What a field says by one of its words.
struct Phrase
{
    const RecordField *field;
    const char *word; ///< as the field's screen shows it
    const char *text; ///< how to say it; empty: it says nothing
};

/// Reads the fields of a record for a text about it, and remembers which of them the text has told,
/// so that none is forgotten.
class Teller
{
public:
    explicit Teller(const Record &record);

    const Record &record() const { return m_record; }

    /// The phrase for a field's word; empty, and the field untold, if there is none in the table.
    QString tell(const RecordField &field, std::span<const Phrase> table);
    /// All phrases of the table that the record's words ask for, in the order of the table.
    QStringList tellAll(std::span<const Phrase> table);

    /// A field's text, which is thereby told; empty, and untold, where it is no name.
    QString tellName(const RecordField &field);
    /// The names of a field, several where it may hold several, see names::in(). Empty where none
    /// is a name.
    QStringList tellNames(const RecordField &field);
    /// A field's whole number, without a sign; empty, and untold, if it holds anything else.
    QString tellNumber(const RecordField &field);

    /// The field's text, told or not.
    QString text(const RecordField &field) const { return m_record.shownText(field); }
    void markTold(const RecordField &field);

    /// What is left to be told: a sentence for each field that says anything.
    QStringList rest() const;

private:
    const Record &m_record;
    std::vector<bool> m_isTold;
};

} // namespace tarvold::records
