#pragma once

/// The look of all windows.
namespace tarvold::look {

/// Applies the program's style and fonts: Arial everywhere and MS Sans Serif on buttons, or similar
/// fonts where a system lacks them, at the text size set on the desktop. The desktop's colours are
/// kept, unless their contrast is too low. Call it once, before the first window is created.
void apply();

} // namespace tarvold::look
