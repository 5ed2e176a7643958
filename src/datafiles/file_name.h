#pragma once

#include <QString>

namespace tarvold {

using namespace Qt::StringLiterals;

/// Whether a name fits the pattern "*.tvd": any text, possibly none, and the lower-case extension
/// at the very end.
inline bool isTvdName(const QString &name)
{
    return name.endsWith(".tvd"_L1);
}

} // namespace tarvold
