#pragma once

#include <QString>

namespace tarvold {
class Screen;
}

/// Invariants that must hold whenever the program waits for the user. Each function returns an
/// error message, or an empty text.
namespace tarvold::testing::checks {

/// Exactly one window of the program is visible, and can be used.
QString windows();

/// The controls of the visible screen are in a valid state.
QString controls(const Screen &screen);

/// The visible screen, or null.
Screen *visibleScreen();

} // namespace tarvold::testing::checks
