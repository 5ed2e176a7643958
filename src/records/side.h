#pragma once

#include "records/teller.h"

namespace tarvold::records {

/// The fields that describe one side of a match or segment. Null: the kind does not have it.
struct SideFields
{
    const RecordField *names;
    const RecordField *disposition = nullptr;
    const RecordField *ringStyle = nullptr;
    const RecordField *gender = nullptr;
    const RecordField *holdsTitle = nullptr;
    const RecordField *manager = nullptr;
    const RecordField *managerGender = nullptr;
    const RecordField *managerWorks = nullptr;
    const RecordField *finisher = nullptr;
    const RecordField *stable = nullptr;
};

/// A side as part of a sentence.
struct Side
{
    QString text; ///< such as "Rocco Vance, a heel," before a verb; "anyone" if nothing is said
    bool isPlural = false;
    bool isAnyone = true; ///< nothing is said

    /// The same at the end of a clause, without a comma there.
    QString atEnd() const;
    QString verb(const char *singular, const char *plural) const;
};

/// Tells of one side by all its fields.
Side tellSide(Teller &teller, const SideFields &fields);

} // namespace tarvold::records
