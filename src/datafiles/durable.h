#pragma once

#include <QString>

#include <optional>

/// What the system offers to bring a file's bytes to the disk for good.
namespace tarvold::durable {

/// The path for a name that the user typed, so that every name means a file: a leading colon is an
/// ordinary character and not the toolkit's mark for built-in resources.
QString pathOf(const QString &name);

/// What changes when a file is written or replaced.
struct FileState
{
    quint64 device;
    quint64 number; ///< of the file on its device
    qint64 size;
    qint64 modified; ///< in nanoseconds
    qint64 changed;  ///< in nanoseconds

    bool operator==(const FileState &) const = default;
};

/// Whether a file was changed so recently that another change may leave its state as it is: many
/// systems stamp files with a clock that ticks only every few milliseconds.
bool mayChangeUnseen(const FileState &state);

/// The state of the file that the user typed this name for; none when it cannot be found.
std::optional<FileState> stateOf(const QString &name);

/// Brings an open file's bytes to the disk. `false` with the system's error code set on failure.
[[nodiscard]] bool syncFile(int handle);

/// Brings a file's entry in its folder to the disk, needed once after the file is created.
/// `false` with the system's error code set on failure.
[[nodiscard]] bool syncFolderOf(const QString &path);

} // namespace tarvold::durable
