#pragma once

#include "screens/screens.h"

#include <array>
#include <span>

namespace tarvold {

/// The kinds of match endings.
enum class MatchEnding { Normal, RunIn, Turn };

/// What the main menu's match-ending buttons do to the screens before the first one appears.
namespace endingentry {

/// A value for each kind, in the order of MatchEnding; none keeps what the control holds.
struct ValueRow
{
    ControlRef control;
    std::array<const char *, 3> values;
};

/// Whether a control can be seen, for each kind.
struct VisibilityRow
{
    ControlRef control;
    std::array<bool, 3> visible;
};

/// The flow label's text for each kind.
extern const std::array<const char *, 3> kFlowLabels;

/// The match criteria, attacker and receiver screens.
std::span<const VisibilityRow> visibility();
std::span<const ValueRow> values();

/// The kind's own screens, the ten commentary lines excepted.
std::span<const Preset> ownValues(MatchEnding kind);

/// The commentary screen of each kind: its lines are emptied and whitened.
extern const std::array<const char *, 3> kCommentaryScreens;

/// Puts the screens into the state that a new ending of this kind starts from, and shows the first
/// one in the main menu's place.
void enter(Screens &screens, MatchEnding kind);

} // namespace endingentry
} // namespace tarvold
