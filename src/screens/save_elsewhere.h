#pragma once

#include "datafiles/data_file_kind.h"

#include <QString>

class QWidget;

namespace tarvold {

class Screens;

/// Saving to another file after a save failed because of its file.
namespace saveelsewhere {

/// A save that failed.
struct FailedSave
{
    QWidget *asking; ///< the screen in front of the user
    QString title;   ///< of the message
    QString text;    ///< of the message
    DataFileKind kind;
};

/// Shows that a save failed and offers to choose another file. Returns `true` if the user chose
/// one: its name is now in the box of this kind on the main menu, and the caller should retry.
/// Otherwise the box is unchanged.
///
/// A new name gets the extension ".tvd". Records are appended to an existing file; stipulations
/// overwrite it, after a question.
bool offer(Screens &screens, const FailedSave &failed);

} // namespace saveelsewhere
} // namespace tarvold
