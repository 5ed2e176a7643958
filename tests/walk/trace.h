#pragma once

#include <QString>

/// Records the last actions of the walk, and prints them if something goes wrong, even on a crash.
namespace tarvold::testing::trace {

/// From now on, prints the last actions on a crash, a failed assertion or a timeout of an action.
/// \param seed of the walk
/// \param talk whether to print every action at once
void start(unsigned seed, bool talk);

/// Starts the next action and its timeout.
void begin(int number);

/// Records what is done.
void note(const QString &text);

/// Prints the seed, the number of the action and the last actions.
void print();

} // namespace tarvold::testing::trace
