#pragma once

#include <QString>

namespace tarvold {

/// Links the program's windows to its desktop entry, and gives all of them the icon.
/// \param name of the entry, without its extension
void applyDesktopEntry(const QString &name);

} // namespace tarvold
