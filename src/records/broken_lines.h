#pragma once

#include "records/step.h"

namespace tarvold::records {

/// Makes one line of two where a line of commentary was broken in two, if that makes up for lines
/// that are too many. Such lines end like all others, so only their words tell: the first does not
/// end as a sentence does, and the second does not begin as one.
///
/// Sets Step::isSure to `false` where other lines may be meant.
void joinBroken(const Record &record, Step &step);

} // namespace tarvold::records
