#pragma once

namespace tarvold {
class Editor;
class Screen;
} // namespace tarvold

/// What the benchmarks do with the editor's screens.
namespace tarvold::bench {

/// Waits until a screen is on the display and has nothing left to do.
void settle(Screen &screen);

/// Presses a button of a screen and returns once the next screen is painted.
/// \param part the control of the next screen that has to be painted; none for the screen itself
void pressUntilPainted(Editor &editor, const char *from, const char *button, const char *next,
                       const char *part = nullptr);

} // namespace tarvold::bench
