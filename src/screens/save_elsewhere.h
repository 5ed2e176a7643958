#pragma once

#include "datafiles/data_file_kind.h"

#include <QString>

class QWidget;

namespace tarvold {

class Screens;

/// The way out of a save that failed because of its file: another file.
namespace saveelsewhere {

/// A save that failed.
struct FailedSave
{
    QWidget *asking; ///< the screen in front of the user
    QString title;   ///< of the message
    QString text;    ///< of the message
    DataFileKind kind;
};

/// Tells that a save failed, and offers to choose another file for it. `true` when the user did:
/// its name is in the box of this kind on the main menu, and the save is to be tried again. Else
/// the box is as it was.
///
/// A new name gets the end ".tvd". Records are added to a file that is there already; stipulations
/// are written over it, which the user is asked about.
bool offer(Screens &screens, const FailedSave &failed);

} // namespace saveelsewhere
} // namespace tarvold
