#pragma once

#include "disk/file_error.h"

#include <QString>

#include <optional>
#include <utility>

namespace tarvold {

/// What changes when a file is written or replaced.
struct FileState
{
    quint64 device;
    quint64 number; ///< of the file on its device
    qint64 size;
    qint64 modified; ///< in nanoseconds since 1970
    qint64 changed;  ///< in nanoseconds since 1970

    bool operator==(const FileState &) const = default;
};

/// Whether a file was changed so recently that another change may leave its state as it is: many
/// file systems take times from a clock that ticks only every few milliseconds.
[[nodiscard]] bool mayChangeUnseen(const FileState &state);

/// A path for system calls. A name that the user typed is a QString until ofTyped() has checked it,
/// so the compiler keeps the two apart.
class FilePath
{
public:
    /// What a path may mean, when links are followed.
    enum class Kind {
        Nothing,
        File,
        Folder,
        Other, ///< such as a pipe or a device
    };

    /// The path for a name that the user typed; a relative one starts at the current folder. A
    /// leading colon is part of the name and does not mean Qt's built-in resources.
    /// \return an error when no file can have this name
    [[nodiscard]] static Result<FilePath> ofTyped(const QString &name);

    /// The same, but also an error when the name means a folder, a pipe or a device. A file that is
    /// not there yet is fine.
    [[nodiscard]] static Result<FilePath> ofOrdinary(const QString &name);

    /// A path that the system gave, or that was made of one.
    [[nodiscard]] static FilePath ofSystem(QString path) { return FilePath(std::move(path)); }

    /// The path as Qt takes it.
    const QString &text() const { return m_text; }

    /// The absolute path. Where ".." follows a folder that may be a symbolic link, it stays, as
    /// only the system can follow that. Looks at no file, so it takes no time.
    [[nodiscard]] QString absolute() const;

    bool operator==(const FilePath &) const = default;

    /// What the path means. A pipe is not waited for.
    [[nodiscard]] Kind kind() const;

    /// Whether the path means anything.
    [[nodiscard]] bool exists() const;

    /// The state of the file; none when it cannot be found.
    [[nodiscard]] std::optional<FileState> state() const;

    /// The path with all symbolic links followed, also when nothing is there. An error when they
    /// cannot be followed, such as a link to nothing on Windows.
    [[nodiscard]] Result<FilePath> real() const;

    /// Removes the file; symbolic links to it stay.
    [[nodiscard]] Result<void> remove() const;

    /// Brings the file's entry in its folder to the disk, needed after the file got this name. A
    /// folder that may be written to but not listed, or that the system never syncs, is left to the
    /// system.
    [[nodiscard]] Result<void> syncFolder() const;

private:
    explicit FilePath(QString text) : m_text(std::move(text)) {}
    /// Whether files can have this name at all.
    static bool canBeName(const QString &name);

    QString m_text;
};

} // namespace tarvold
