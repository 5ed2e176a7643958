#pragma once

#include "disk/file.h"

#include <QByteArrayView>

#include <functional>
#include <optional>

namespace tarvold {

/// A temporary file that is to replace an old file in the same folder. It is removed with this
/// object unless it has replaced the old file, which stays as it is until then.
class Replacement
{
public:
    /// \param path with all links followed; no file need be there
    explicit Replacement(FilePath path) : m_path(std::move(path)) {}
    ~Replacement();
    Q_DISABLE_COPY_MOVE(Replacement)

    /// Creates the temporary file with the permissions and attributes of the old one, and brings
    /// all its bytes to the disk.
    [[nodiscard]] Result<void> write(QByteArrayView bytes);

    /// Renames the temporary file over the old one, atomically. `Busy` when another program
    /// prevents that.
    /// \param old the open old file with its lock, if there is one. Where the system replaces no
    ///        open file it is closed for that, and stays closed.
    [[nodiscard]] Result<void> takeName(File &old);

    /// Brings the rename to the disk.
    [[nodiscard]] Result<void> syncName();

private:
    /// Tries random names beside the old file until `take` does not say that the name `Exists`, and
    /// notes the name of the temporary file.
    [[nodiscard]] Result<void>
    takeTemporaryName(const std::function<Result<void>(const FilePath &)> &take);

    FilePath m_path;
    File m_file;
    std::optional<FilePath> m_temporaryName; ///< while it has one; a file may have none at first
    bool m_wasDenied = false; ///< the last rename on Windows, though nobody had the old file open
};

} // namespace tarvold
