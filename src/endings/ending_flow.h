#pragma once

#include "screens/flow.h"

#include <span>

/// The screens of the match-ending flows.
namespace tarvold::endingflow {

/// The control whose text tells which kind of match ending is being written.
inline constexpr ControlRef kLabel = {"Form1", "matchreports"};

/// The chain: three screens that all kinds share, then the branch by the flow label.
std::span<const FlowStep> chain();

/// Makes the screens of the chain known.
void declare(Screens &screens);

} // namespace tarvold::endingflow
