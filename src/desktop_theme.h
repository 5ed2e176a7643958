#pragma once

#include <QString>

namespace tarvold {

/// The name of the theme that desktops with GTK give to all programs on the display; empty if they
/// give none.
QString themeOfDesktop();

} // namespace tarvold
