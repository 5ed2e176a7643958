#pragma once

#include "datafiles/data_file_kind.h"
#include "disk/file_error.h"

#include <QString>

#include <vector>

/// What a records window says of its file.
namespace tarvold::records::words {

/// The file could not be read, so there is nothing to show.
QString notRead(const QString &name, const FileError &error);
/// Another program, or a screen of the editor, changed the file since it was loaded: asks whether
/// to overwrite it.
QString outdated(const QString &name);
/// Asks whether to save the changes before the screens of a record begin with its values.
QString unsavedBeforeSimilar(const QString &name);
/// The file became longer while there were changes, and these records were added to them.
QString grown(int records);
/// Asks whether to overwrite a file that "Save As" names.
QString inTheWay(const QString &name);
QString notSaved();
/// What a failed save leaves the user.
QString kept();
/// Records could not be copied to another file.
QString notCopied(const QString &name, const FileError &error);
/// Asks what should become of the changes before the window closes.
QString unsaved(const QString &name);
/// Asks whether to read the file again and forget the changes.
QString forgetByReload(const QString &name);
/// Asks whether to read the file as another kind of records and forget the changes.
QString forgetByKind(const QString &name, DataFileKind kind);
/// A record can't be copied to a file of another kind.
QString otherKind(const QString &name, DataFileKind found, DataFileKind kind);
/// Asks whether to add records to a file that may hold another kind.
QString uncertainKind(const QString &name, DataFileKind kind);
/// Asks whether to add records to a file whose last record is not whole.
QString outOfStep(const QString &name);
/// Asks whether to copy a record with lines missing or too many. \param number from 1
QString notWhole(DataFileKind kind, int number);
/// The file to copy records to is the one that they are in.
QString sameFile(const QString &name);
/// The kinds that a file may be of, and that the user has to choose.
QString tossUp(const std::vector<DataFileKind> &likely);
/// The usual name of a file says another kind than its records.
QString misnamed(DataFileKind named, DataFileKind kind);

QString saved(const QString &name, int records);
QString copied(const QString &name, int records);
QString deleted(int records);
/// \param left records with problems that no repair is known for
QString repaired(int records, int left);
/// The file is shown as it is on the disk now.
QString readAgain(int records);
/// "1 record", "2 records".
QString countOf(int records);

} // namespace tarvold::records::words
