#pragma once

namespace tarvold {
class Editor;
class Screen;
} // namespace tarvold

/// Functions for benchmarks of screens.
namespace tarvold::bench {

/// Waits until a screen is exposed, and handles all pending events.
void settle(Screen &screen);

/// Presses a button of a screen and returns once the next screen is painted.
/// \param part the control of the next screen that must be painted; null for the screen itself
void pressUntilPainted(Editor &editor, const char *from, const char *button, const char *next,
                       const char *part = nullptr);

} // namespace tarvold::bench
