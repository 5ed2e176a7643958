#pragma once

#include <array>
#include <vector>

namespace tarvold::testing {

/// The control keeps its text.
inline constexpr const char *kKept = nullptr;

struct ExpectedValue
{
    const char *control;
    std::array<const char *, 3> values; ///< normal, run-ins, turns
};

/// A value on a screen that only one kind has.
struct OwnValueText
{
    const char *screen;
    const char *control;
    const char *value;
};

// clang-format off
/// The match criteria screen.
inline constexpr ExpectedValue kCriteria[] = {
    {"Combo3",  {"Any",    kKept,     kKept}},
    {"Combo12", {kKept,    "Singles", "Singles"}},
    {"Combo1",  {"N/A",    "N/A",     "N/A"}},
    {"Combo2",  {"N/A",    "N/A",     "N/A"}},
    {"Combo4",  {"Normal", "Normal",  "Normal"}},
    {"Combo10", {"N/A",    "N/A",     "N/A"}},
    {"Text2",   {"Any",    "Any",     "Any"}},
};

/// The same on the attacker and the receiver screen.
inline constexpr ExpectedValue kSides[] = {
    {"Text1",  {"N/A", "N/A", "Any"}},
    {"Text2",  {"Any", kKept, kKept}},
    {"Combo3", {"Any", "Any", kKept}},
    {"Combo1", {"Any", "Any", "Any"}},
    {"Combo2", {"Any", "Any", "Any"}},
    {"Combo4", {"N/A", "N/A", "N/A"}},
    {"Combo5", {"N/A", "N/A", kKept}},
    {"Combo6", {"N/A", "N/A", kKept}},
    {"Combo7", {"Any", "Any", "Any"}},
    {"Text3",  {"N/A", "N/A", kKept}},
};

/// Rows of the attacker and the receiver screen that are hidden for turns.
inline constexpr const char *kHiddenForTurns[] = {"Label4", "Combo3", "Label7",  "Text1", "Label8", "Combo5",
                                       "Label9", "Combo6", "Label11", "Text3"};

/// All other rows of these screens.
inline constexpr const char *kVisibleForTurns[] = {"Label5", "Text2",  "Label2", "Combo1",  "Label3",
                                        "Combo2", "Label6", "Combo4", "Label10", "Combo7"};

/// In the order normal, run-ins, turns.
inline const std::vector<OwnValueText> kOwn[] = {
    {{"Form7", "Combo1", "Attacker 1 Full Name"}},
    {{"Form9", "Combo1", "Attacker 1 Full Name"},
     {"Form8", "Combo3", "Singles"},
     {"Form8", "Text2", "Any"},
     {"Form8", "Combo1", "Any"},
     {"Form8", "Combo2", "Any"},
     {"Form8", "Combo7", "Any"},
     {"Form8", "Combo4", "Losers"},
     {"Form8", "HScroll1", "10"},
     {"Form8", "Label8", "10%"},
     {"Form8", "Combo5", "N/A"}},
    {{"Form10", "Combo1", "N/A"},
     {"Form10", "Combo2", "N/A"},
     {"Form10", "Combo3", "N/A"},
     {"Form10", "Combo4", "N/A"},
     {"Form10", "Combo5", "Winning Side"},
     {"Form10", "Combo6", "N/A"},
     {"Form10", "Combo7", "N/A"},
     {"Form11", "Combo1", "Attacker 1 Full Name"}},
};
// clang-format on

} // namespace tarvold::testing
