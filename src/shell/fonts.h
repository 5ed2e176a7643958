#pragma once

/// The typefaces of all screens.
namespace tarvold::fonts {

/// Asks for Arial everywhere and MS Sans Serif on buttons, at the size that the user has set on the
/// desktop, with look-alikes where a system lacks them. Call once, before the first window.
void apply();

} // namespace tarvold::fonts
