#pragma once

#include "disk/file.h"

#include <QByteArrayView>

#include <functional>
#include <optional>

namespace tarvold {

/// A temporary file beside an old file, whose name it is to take. Until it has the name it is
/// removed when this object goes, and the old file stays as it is.
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

    /// Renames the temporary file over the old one, in one step. `Busy` when another program keeps
    /// that from being done.
    /// \param old the open old file with its lock, if there is one. Where the system replaces no
    ///        open file it is closed for that, and stays closed.
    [[nodiscard]] Result<void> takeName(File &old);

    /// Brings the new name to the disk.
    [[nodiscard]] Result<void> syncName();

private:
    /// Tries random names beside the old file until `take` does not say that the name `Exists`, and
    /// notes the name of the temporary file.
    [[nodiscard]] Result<void>
    takeTemporaryName(const std::function<Result<void>(const FilePath &)> &take);

    FilePath m_path;
    File m_file;
    std::optional<FilePath> m_temporaryName; ///< while it has one; a file may have none at first
    bool m_wasDenied = false; ///< the name, and by no program that has the old file open
};

} // namespace tarvold
