#pragma once

/// How all windows look.
namespace tarvold::look {

/// Takes the program's own style, Arial everywhere and MS Sans Serif on buttons, at the size that
/// the user has set on the desktop, with look-alikes where a system lacks them. The desktop's
/// colours stay, but for those that could not be told apart. Call once, before the first window.
void apply();

} // namespace tarvold::look
