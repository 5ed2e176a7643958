#pragma once

#include "screens/flow.h"

#include <span>

/// The two segment flows: details, then commentary.
namespace tarvold::segmentflow {

/// The chains of both flows.
std::span<const FlowStep> chain();

/// What the controls of each flow start with.
std::span<const Preset> interviewValues();
std::span<const Preset> talkShowValues();

/// Registers the segment screens.
void declare(Screens &screens);

/// Prepares the screens of a flow for a new segment and shows the first one in place of the main
/// menu.
void enterInterview(Screens &screens);
void enterTalkShow(Screens &screens);

} // namespace tarvold::segmentflow
