#pragma once

#include <QString>

#include <tl/expected.hpp>
#include <utility>

namespace tarvold {

class FilePath;

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
    /// The causes that have words of their own, or that code acts on.
    enum class Reason {
        Other,
        Missing,
        Exists,
        Denied, ///< the user has no permission
        Busy,   ///< another program uses the file: a retry may succeed
        ReadOnlyFile,
        ReadOnlyDisk,
        FullDisk,
        Quota,   ///< the user's share of the disk is full
        BadDisk, ///< an input or output error
        Folder,
        BelowAFile, ///< a part of the path that should be a folder is none
        LongName,
        LinkLoop,
        OddLines, ///< it can be read, but its lines are not those of whole records
    };

    QString cause; ///< in words, for the user
    FileOutcome outcome = FileOutcome::Unchanged;
    Reason reason = Reason::Other;
};

/// A value, or why there is none.
template <typename Value>
using Result = tl::expected<Value, FileError>;

/// An error to be returned as a Result.
inline tl::unexpected<FileError> failure(FileError error)
{
    return tl::unexpected(std::move(error));
}

/// \overload
inline tl::unexpected<FileError> failure(QString cause,
                                         FileOutcome outcome = FileOutcome::Unchanged)
{
    return failure({std::move(cause), outcome});
}

/// The error with the words for a reason other than `OddLines` and `Other`.
[[nodiscard]] FileError errorFor(FileError::Reason reason);

/// What an operation on a file was for.
enum class FileUse { Read, Write };

/// The same error in words that fit the path: the folder that is missing, or that the user may not
/// write in, by its whole path. Looks at the file, so it is for errors that are reported, not for
/// those that a retry follows.
[[nodiscard]] FileError withPath(FileError error, const FilePath &path, FileUse use);

/// What an error code of the system means.
[[nodiscard]] FileError systemError(int code);

/// The error of the system call that just failed; to be asked for before any other call.
[[nodiscard]] FileError systemError();

/// The result of a system call that just succeeded or failed.
[[nodiscard]] inline Result<void> resultOf(bool succeeded)
{
    return succeeded ? Result<void>() : failure(systemError());
}

} // namespace tarvold
