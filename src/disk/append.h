#pragma once

#include "disk/file_error.h"

#include <QByteArrayView>
#include <QString>

namespace tarvold {

/// Appends whole records to a data file, creating it when it is missing.
///
/// All or nothing: when it succeeds, the bytes are on the disk, together, in the file that
/// the name meant at the end; else the file has its old length, or is gone again when it was
/// created here (and if even that failed, the error says so).
///
/// Copies of this program wait for each other. Programs that do not may do anything to the file
/// meanwhile; after the sync it is looked up by its name once more, and the bytes are read back:
/// - The name means another file, or none: they are taken out of the file that lost the name and
///   appended to what has it now, which is a new file if there is none.
/// - The name means a copy that was made with the bytes in it, or they were moved inside the file:
///   they are not added twice, and what holds them is brought to the disk. Equal lines that stood
///   there before cannot be told from them.
/// - The file was cut or written anew in place, and the bytes are not in it: they are added again.
///
/// When that happens time after time, or when another program wrote behind bytes that have to be
/// undone, the error says that the file may have changed. Then nothing is cut off.
///
/// Undoing has one gap. It measures the file and cuts it in two system calls, and the system has
/// none that does both. What a program that takes no lock does between these two may be lost, and
/// nobody is told:
/// - What it writes behind the end is cut off.
/// - If it cuts the file to less than the old length, the file gets that length again, filled up
///   with NUL.
/// - If this append created the file, it is removed with what was written into it, and so is a file
///   that takes its name in that moment.
/// This needs a failure first: an append that succeeds cuts and removes nothing, except in a file
/// that lost its name to another one.
/// \param name as the user typed it; a relative one starts at the current folder
[[nodiscard]] Result<void> appendToFile(const QString &name, QByteArrayView bytes);

} // namespace tarvold
