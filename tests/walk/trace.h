#pragma once

#include <QString>

/// What the walk did last, to be told when something goes wrong, be it the end of the program.
namespace tarvold::testing::trace {

/// From now on, a crash, an assertion and an action that never ends are told as well.
/// \param seed of the walk
/// \param talk whether every action is told at once
void start(unsigned seed, bool talk);

/// The next action begins.
void begin(int number);

/// What is done, in words.
void note(const QString &text);

/// Tells the seed, the number of the action and the last actions.
void tell();

} // namespace tarvold::testing::trace
