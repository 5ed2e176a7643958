#pragma once

#include "controls/message_box.h"

#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

/// Lets the user choose data files, with the platform's own dialog.
namespace tarvold::filechoice {

/// What a dialog asks for.
struct Question
{
    QWidget *asking; ///< the window in front of the user
    QString title;
    QString name;  ///< of the file that is proposed, as the user typed it
    QString usual; ///< proposed instead of a name that no data file can have
    messagebox::Blocks blocks = messagebox::Blocks::Program;
    bool proposesName = true; ///< else only the folder of that file
};

/// Asks for a file to write to, which need not be there. Nothing is asked before an existing one is
/// chosen. \return its path, or nothing if the user chose none
std::optional<QString> chosenPath(const Question &question);

/// Asks for files to read, which are there; blocks only the window that asks.
/// \return their paths; none if the user chose none
QStringList chosenFiles(QWidget *asking, const QString &title);

/// A path as a file name is typed: the name alone in the current folder, else the full path.
QString nameOf(const QString &path);

/// The name with the extension of data files, in small letters.
QString withExtension(QString name);

/// Whether two names mean the same existing file.
bool areSame(const QString &one, const QString &other);

} // namespace tarvold::filechoice
