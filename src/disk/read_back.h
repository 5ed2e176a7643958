#pragma once

#include "disk/file.h"

#include <QByteArrayView>

namespace tarvold {

/// Whether the file that a path means now holds these lines, and will keep them: what another
/// program copied or moved is brought to the disk as well. They are looked for where they were
/// written, and anywhere else only when they are not there. A file that may not be read counts as
/// holding them when it is the written one and long enough.
/// \param written the file that the lines were written and synced to
[[nodiscard]] Result<bool> isWritten(const FilePath &path, const File &written, qint64 place,
                                     QByteArrayView lines);

} // namespace tarvold
