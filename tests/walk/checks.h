#pragma once

#include <QString>

#include <map>

namespace tarvold {
class Screen;
}

/// Invariants that must hold whenever the program waits for the user. Each function returns an
/// error message, or an empty text.
namespace tarvold::testing::checks {

/// Exactly one window of the program is visible beside the records windows, and can be used.
QString windows();

/// The controls of the visible screen are in a valid state.
QString controls(const Screen &screen);

/// What the author has put in on all screens: texts, bars, the yellow line and the last tag, by
/// screen and control.
std::map<QString, QString> contents();

/// The visible screen, or null.
Screen *visibleScreen();

} // namespace tarvold::testing::checks
