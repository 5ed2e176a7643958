#pragma once

#include <QString>

namespace tarvold {

using namespace Qt::StringLiterals;

/// Whether a name matches "*.tvd": any text, even none, with the lower-case extension at the end.
inline bool isTvdName(const QString &name)
{
    return name.endsWith(".tvd"_L1);
}

} // namespace tarvold
