#pragma once

#include "screens/flow.h"

#include <span>

/// The two segment flows: details, then commentary.
namespace tarvold::segmentflow {

/// The chains of both flows.
std::span<const FlowStep> chain();

/// Makes the segment screens known.
void declare(Screens &screens);

/// Puts the screens of a flow into the state that a new segment starts from, and shows the first
/// one in the main menu's place.
void enterInterview(Screens &screens);
void enterTalkShow(Screens &screens);

} // namespace tarvold::segmentflow
