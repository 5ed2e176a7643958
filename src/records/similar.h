#pragma once

#include "records/record.h"

#include <QString>
#include <QStringList>

namespace tarvold {
class Screens;
}

/// "Write A Similar One": a new record that starts from another one instead of the start values.
namespace tarvold::records::similar {

/// Why no record can be begun now, in a sentence for the user; empty if one can.
QString refusal(const Screens &screens);

/// Why the screens cannot show a record; empty if they can.
QString refusal(const Record &record);

/// Fills the screens of a flow that has just been started, for records of this kind. For a
/// stipulation that is the form, with a new one.
///
/// Each control shows what it would show if the user had put the record's text there. Only a line
/// that is missing leaves its control as it was started.
/// \return what of the record the screens do not show, or will not save, as it stands in the file:
///         a sentence each
QStringList fill(Screens &screens, const Record &record);

} // namespace tarvold::records::similar
