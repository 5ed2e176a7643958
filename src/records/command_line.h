#pragma once

#include "datafiles/data_file_kind.h"

#include <QString>
#include <QStringList>

#include <optional>

/// The command line of tarvold-records.
namespace tarvold::records::commandline {

/// What the program is asked to do.
struct Command
{
    enum class Action {
        Open,  ///< a window for each file; without a file, offer those of the folder
        Check, ///< the files, without a window
        Tell,  ///< `text`, and no more
        Fail,  ///< say `text` and end with an error
    };
    Action action = Action::Open;
    QStringList files = {};
    std::optional<DataFileKind> kind = {}; ///< of all files; none: it is guessed
    QString text = {};
};

/// Reads the arguments but those for QApplication, such as "-platform". Needs a QCoreApplication,
/// for the program's name and version. \param arguments with the program's name as the first
Command read(const QStringList &arguments);

/// Does what needs no window, and returns the exit status of the program; nothing for Open.
std::optional<int> runWithoutWindow(const Command &command);

} // namespace tarvold::records::commandline
