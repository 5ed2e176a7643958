#pragma once

#include "screens/flow.h"

#include <array>
#include <span>

namespace tarvold {

/// The kinds of match endings.
enum class MatchEnding { Normal, RunIn, Turn };

/// The screens of the match-ending flows, and what the main menu's buttons for them do.
namespace endingflow {

/// The control whose text tells which kind of match ending is being written.
inline constexpr ControlRef kLabel = {"Form1", "matchreports"};

/// What sets one kind of match ending apart.
struct EndingRow
{
    const char *flowLabel;             ///< the text of `kLabel`
    const char *commentary;            ///< its last screen
    std::span<const Preset> ownValues; ///< what the screens that only this kind has start with
};

/// All kinds, in the order of MatchEnding.
extern const std::array<EndingRow, 3> kEndings;

/// The row of one kind.
const EndingRow &endingRow(MatchEnding kind);

/// What a control starts with for each kind, in the order of MatchEnding; nullptr keeps its text.
struct ValueRow
{
    const char *control;
    std::array<const char *, 3> values;
};

/// The start values of a screen.
struct ScreenValues
{
    const char *screen;
    std::span<const ValueRow> rows;
};

/// The start values of the screens that all kinds share.
std::span<const ScreenValues> values();

/// The chain: three shared screens, then a branch by the flow label.
std::span<const FlowStep> chain();

/// Registers the screens of the chain.
void declare(Screens &screens);

/// Prepares all screens for a new ending of this kind and shows the first one in place of the main
/// menu. Fields that are not part of the kind's record are hidden; the commentary is cleared.
void enter(Screens &screens, MatchEnding kind);

} // namespace endingflow
} // namespace tarvold
