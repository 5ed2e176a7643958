#pragma once

#include "datafiles/data_file_kind.h"
#include "disk/file_error.h"

#include <QString>

#include <functional>

namespace tarvold {

/// What to import, and where to.
struct ImportRequest
{
    QString source; ///< the file to copy the records of
    QString target; ///< the file that they are added to, as the user typed it
    DataFileKind kind;
};

/// Which file made an import fail, and why.
struct ImportFailure
{
    QString file;
    FileError error;
};

/// Copies all records of the source to the end of the target, which is created when it is missing.
///
/// Records whose first line is empty are left out. So are stipulations whose match type and name
/// the target already has; `tellDuplicate` is called with a message for each match, in the order of
/// the source and, within that, of the target, and may block. Atomic: after a failure the
/// target is as it was, unless the error says otherwise.
[[nodiscard]] tl::expected<void, ImportFailure>
importRecords(const ImportRequest &request,
              const std::function<void(const QString &)> &tellDuplicate);

} // namespace tarvold
