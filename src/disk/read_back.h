#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvold {

/// Whether the file that a path means now holds these lines, and will keep them: what another
/// program copied or moved is brought to the disk as well. They are looked for where they were
/// written, and anywhere else only when they are not there. A file that may not be read counts as
/// holding them when it is the written one and long enough.
/// \param handle the file that the bytes were written and synced to
/// \return nothing with the system's error code set when that cannot be found out
[[nodiscard]] std::optional<bool> isWritten(const QString &path, int handle, qint64 place,
                                            QByteArrayView bytes);

} // namespace tarvold
