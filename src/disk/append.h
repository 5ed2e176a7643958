#pragma once

#include "disk/file_error.h"

#include <QByteArrayView>
#include <QString>

namespace tarvold {

/// Appends whole records to a data file, creating it when it is missing.
///
/// All or nothing: on success, all bytes are on the disk, in one piece, in the file that has the
/// name at the end. On failure a rollback gives the file its old length, or removes it if it was
/// created here; if even that failed, the error says `MaybeChanged`.
///
/// Copies of this program wait for each other (advisory lock). A program that takes no lock may do
/// anything to the file meanwhile. So after the sync the name is looked up again, and the bytes are
/// read back:
/// - The name means another file, or none: the append is undone in the old file and repeated on the
///   file that has the name now, which is created if there is none.
/// - The name means a copy that was made with the bytes in it, or they were moved inside the file:
///   they are not added twice, and the file that holds them is synced. Equal lines that were there
///   before cannot be told from them.
/// - The file was truncated or rewritten in place, and the bytes are not in it: they are added
///   again.
///
/// If that happens on every try, or if another program wrote behind bytes that have to be undone,
/// the error says `MaybeChanged`, and nothing is truncated.
///
/// Undoing has a race: it gets the size of the file and truncates it in two system calls, as no
/// system has one for both. What a program that takes no lock does between these two may be lost
/// without any message:
/// - What it appends is truncated.
/// - If it truncates the file below the old length, the file gets that length again, filled with
///   NUL.
/// - If this append created the file, the file is removed with what was written to it, and so is a
///   file that gets its name in that interval.
/// This needs a failure first: an append that succeeds truncates and removes nothing, except in a
/// file that lost its name to another one.
/// \param name as the user typed it; a relative one starts at the current folder
[[nodiscard]] Result<void> appendToFile(const QString &name, QByteArrayView bytes);

} // namespace tarvold
