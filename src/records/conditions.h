#pragma once

#include "records/teller.h"

namespace tarvold::records {

/// The parts of the sentence about a record's conditions.
struct Conditions
{
    QStringList setting; ///< such as "Tag Team", "title on the line"
    QString main;        ///< such as "a heel wins"; may be empty
    QStringList more;    ///< further clauses
};

/// Tells of a match ending, of any of the three kinds.
Conditions endingConditions(Teller &teller);
Conditions interviewConditions(Teller &teller);
Conditions talkShowConditions(Teller &teller);
Conditions stipulationConditions(Teller &teller);

} // namespace tarvold::records
