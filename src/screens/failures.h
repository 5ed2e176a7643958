#pragma once

#include "datafiles/record.h"
#include "disk/file_error.h"

/// The messages shown when a file or a text cannot be used.
namespace tarvold::failures {

/// What the first line of a message calls a file: its whole path; or what the user typed, if the
/// cause tells the whole path of its folder.
/// \param name as the user typed it
QString fileOf(const QString &name, const FileError &error);

/// A record could not be added to the file.
/// \param name as the user typed it
QString notSaved(const QString &name, const FileError &error);

/// The file could not be rewritten.
/// \param name as the user typed it
/// \param kept what the user has not lost
QString notRewritten(const QString &name, const FileError &error, const QString &kept);

/// Another program changed the file since it was loaded: asks whether to overwrite it.
/// \param name as the user typed it
/// \param kept what the user keeps by answering No
QString outdated(const QString &name, const QString &kept);

/// The file chosen for a list already exists: asks whether to overwrite it.
/// \param name as its box on the main menu would show it
QString inTheWay(const QString &name);

/// The file could not be read or, if it was missing, not created.
/// \param name as the user typed it
QString notLoaded(const QString &name, const FileError &error);

/// A stipulation is too long to be edited.
/// \param line the first line that is too long, from 1
/// \param length of that line; `most` characters are allowed
QString tooLongToEdit(int line, qsizetype length, qsizetype most);

/// No file to import from is selected.
QString noSource();

/// An import failed because of a file.
/// \param name the source or the target
QString notImported(const QString &name, const FileError &error);

/// A field holds a character that the data files cannot hold.
QString cannotHold(const MissingCharacter &missing);

} // namespace tarvold::failures
