#pragma once

#include "controls/message_box.h"

#include <QString>

#include <optional>

class QWidget;

/// Lets the user choose a data file to write to, with the platform's own dialog.
namespace tarvold::filechoice {

/// What a dialog asks for.
struct Question
{
    QWidget *asking; ///< the window in front of the user
    QString title;
    QString name;  ///< of the file that is proposed, as the user typed it
    QString usual; ///< proposed instead of a name that no data file can have
    messagebox::Blocks blocks = messagebox::Blocks::Program;
};

/// Asks for a file, which need not be there. Nothing is asked before an existing one is chosen.
/// \return its path, or nothing if the user chose none
std::optional<QString> chosenPath(const Question &question);

/// A path as a file name is typed: the name alone in the current folder, else the full path.
QString nameOf(const QString &path);

/// The name with the extension of data files, in small letters.
QString withExtension(QString name);

/// Whether two names mean the same existing file.
bool areSame(const QString &one, const QString &other);

} // namespace tarvold::filechoice
