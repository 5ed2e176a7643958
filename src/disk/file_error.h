#pragma once

#include <QString>

#include <tl/expected.hpp>
#include <utility>

namespace tarvold {

/// What became of a file that could not be read or written.
enum class FileOutcome {
    Unchanged,        ///< it is as it was before
    MaybeChanged,     ///< undoing the change failed as well, so a part of it may be there
    Unconfirmed,      ///< all new bytes are in it, but the disk did not confirm them
    ChangedByAnother, ///< another program changed it since it was read; nothing was written
};

/// Why a data file could not be read or written.
struct FileError
{
    QString cause; ///< in words, for the user
    FileOutcome outcome = FileOutcome::Unchanged;
};

/// A value, or why there is none.
template <typename Value>
using Result = tl::expected<Value, FileError>;

/// An error to be returned as a Result.
inline tl::unexpected<FileError> failure(QString cause,
                                         FileOutcome outcome = FileOutcome::Unchanged)
{
    return tl::unexpected(FileError{std::move(cause), outcome});
}

/// Fails when a name means no ordinary file: it is empty, no name at all, a folder, a pipe or a
/// device. A file that is not there yet is fine.
/// \param name as the user typed it
[[nodiscard]] Result<void> checkOrdinary(const QString &name);

} // namespace tarvold
