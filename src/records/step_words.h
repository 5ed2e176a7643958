#pragma once

#include "records/checks.h"

/// What the problems of a record out of step have in common.
namespace tarvold::records::checks {

/// What follows from lines that are missing or too many.
/// \param isAtEnd whether no line of the record follows
QString consequence(const Examined &examined, bool isAtEnd);

/// "Ending 17 has 35 lines".
QString howManyLines(const Examined &examined);

/// The line of a field; of a broken one its last part.
int lastLineOf(const Examined &examined, int field);

} // namespace tarvold::records::checks
