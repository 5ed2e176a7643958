#pragma once

#include <QString>

namespace tarvold {
class Screen;
}

/// What must hold whenever the program waits for the user.
namespace tarvold::testing::checks {

/// Exactly one window of the program is to be seen and can be used. Gives what is wrong, in words,
/// or an empty text.
QString windows();

/// The controls of the screen that is to be seen are in a state that they may be in.
QString controls(const Screen &screen);

/// The window of the program that is to be seen, if there is one.
Screen *visibleScreen();

} // namespace tarvold::testing::checks
