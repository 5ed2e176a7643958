#include "endings/ending_entry.h"

#include "endings/ending_flow.h"
#include "endings/match_criteria.h"
#include "screens/commentary_screen.h"
#include "screens/main_menu.h"
#include "screens/screens.h"

namespace tarvold::endingentry {
namespace {

constexpr const char *kKept = nullptr;

// clang-format off
constexpr VisibilityRow kVisibility[] = {
    //  control               normal run-in  turn
    {{"Form4", "Combo3"},    {true,  false, false}},
    {{"Form4", "Combo12"},   {false, true,  true}},
    {{"Form5", "Label4"},    {true,  true,  false}},
    {{"Form5", "Combo3"},    {true,  true,  false}},
    {{"Form5", "Label7"},    {true,  true,  false}},
    {{"Form5", "Text1"},     {true,  true,  false}},
    {{"Form5", "Label8"},    {true,  true,  false}},
    {{"Form5", "Combo5"},    {true,  true,  false}},
    {{"Form5", "Label9"},    {true,  true,  false}},
    {{"Form5", "Combo6"},    {true,  true,  false}},
    {{"Form5", "Label11"},   {true,  true,  false}},
    {{"Form5", "Text3"},     {true,  true,  false}},
    {{"Form6", "Label4"},    {true,  true,  false}},
    {{"Form6", "Combo3"},    {true,  true,  false}},
    {{"Form6", "Label7"},    {true,  true,  false}},
    {{"Form6", "Text1"},     {true,  true,  false}},
    {{"Form6", "Label8"},    {true,  true,  false}},
    {{"Form6", "Combo5"},    {true,  true,  false}},
    {{"Form6", "Label9"},    {true,  true,  false}},
    {{"Form6", "Combo6"},    {true,  true,  false}},
    {{"Form6", "Label11"},   {true,  true,  false}},
    {{"Form6", "Text3"},     {true,  true,  false}},
};

/// The names are kept for run-ins and turns, so that a name typed for one ending is offered again
/// for the next; the hidden manager name of a turn is "Any".
constexpr ValueRow kValues[] = {
    //  control               normal    run-in     turn
    {{"Form4", "Combo3"},    {"Any",    kKept,     kKept}},
    {{"Form4", "Combo12"},   {kKept,    "Singles", "Singles"}},
    {{"Form4", "Combo1"},    {"N/A",    "N/A",     "N/A"}},
    {{"Form4", "Combo2"},    {"N/A",    "N/A",     "N/A"}},
    {{"Form4", "Combo4"},    {"Normal", "Normal",  "Normal"}},
    {{"Form4", "Combo10"},   {"N/A",    "N/A",     "N/A"}},
    {{"Form4", "Text2"},     {"Any",    "Any",     "Any"}},
    {{"Form5", "Text1"},     {"N/A",    "N/A",     "Any"}},
    {{"Form5", "Text2"},     {"Any",    kKept,     kKept}},
    {{"Form5", "Combo3"},    {"Any",    "Any",     kKept}},
    {{"Form5", "Combo1"},    {"Any",    "Any",     "Any"}},
    {{"Form5", "Combo2"},    {"Any",    "Any",     "Any"}},
    {{"Form5", "Combo4"},    {"N/A",    "N/A",     "N/A"}},
    {{"Form5", "Combo5"},    {"N/A",    "N/A",     kKept}},
    {{"Form5", "Combo6"},    {"N/A",    "N/A",     kKept}},
    {{"Form5", "Combo7"},    {"Any",    "Any",     "Any"}},
    {{"Form5", "Text3"},     {"N/A",    "N/A",     kKept}},
    {{"Form6", "Text1"},     {"N/A",    "N/A",     "Any"}},
    {{"Form6", "Text2"},     {"Any",    kKept,     kKept}},
    {{"Form6", "Combo3"},    {"Any",    "Any",     kKept}},
    {{"Form6", "Combo1"},    {"Any",    "Any",     "Any"}},
    {{"Form6", "Combo2"},    {"Any",    "Any",     "Any"}},
    {{"Form6", "Combo4"},    {"N/A",    "N/A",     "N/A"}},
    {{"Form6", "Combo5"},    {"N/A",    "N/A",     kKept}},
    {{"Form6", "Combo6"},    {"N/A",    "N/A",     kKept}},
    {{"Form6", "Combo7"},    {"Any",    "Any",     "Any"}},
    {{"Form6", "Text3"},     {"N/A",    "N/A",     kKept}},
};
// clang-format on

/// All three tag lists show the first item of the normal one, also where it is not their own first.
constexpr char kFirstTag[] = "Attacker 1 Full Name";

constexpr Preset kNormalValues[] = {
    {{"Form7", "Combo1"}, kFirstTag},
};
constexpr Preset kRunInValues[] = {
    {{"Form9", "Combo1"}, kFirstTag}, {{"Form8", "Combo3"}, "Singles"},
    {{"Form8", "Text2"}, "Any"},      {{"Form8", "Combo1"}, "Any"},
    {{"Form8", "Combo2"}, "Any"},     {{"Form8", "Combo7"}, "Any"},
    {{"Form8", "Combo4"}, "Losers"},  {{"Form8", "HScroll1"}, "10"},
    {{"Form8", "Label8"}, "10%"},     {{"Form8", "Combo5"}, "N/A"},
};
constexpr Preset kTurnValues[] = {
    {{"Form10", "Combo1"}, "N/A"},          {{"Form10", "Combo2"}, "N/A"},
    {{"Form10", "Combo3"}, "N/A"},          {{"Form10", "Combo4"}, "N/A"},
    {{"Form10", "Combo5"}, "Winning Side"}, {{"Form10", "Combo6"}, "N/A"},
    {{"Form10", "Combo7"}, "N/A"},          {{"Form11", "Combo1"}, kFirstTag},
};

} // namespace

const std::array<const char *, 3> kFlowLabels = {"normal", "feuds", "turns"};
const std::array<const char *, 3> kCommentaryScreens = {"Form7", "Form9", "Form11"};

std::span<const VisibilityRow> visibility()
{
    return kVisibility;
}

std::span<const ValueRow> values()
{
    return kValues;
}

std::span<const Preset> ownValues(MatchEnding kind)
{
    switch (kind) {
    case MatchEnding::RunIn:
        return kRunInValues;
    case MatchEnding::Turn:
        return kTurnValues;
    case MatchEnding::Normal:
        break;
    }
    return kNormalValues;
}

void enter(Screens &screens, MatchEnding kind)
{
    const auto column = static_cast<std::size_t>(kind);
    screens.setText(endingflow::kLabel, QLatin1StringView(kFlowLabels.at(column)));
    for (const VisibilityRow &row : kVisibility) {
        screens[row.control.screen].control(row.control.control).setVisible(row.visible.at(column));
    }
    for (const ValueRow &row : kValues) {
        if (const char *value = row.values.at(column); value != kKept) {
            screens.setText(row.control, QLatin1StringView(value));
        }
    }
    screens.apply(ownValues(kind));
    Screen &commentary = screens[kCommentaryScreens.at(column)];
    dynamic_cast<CommentaryScreen &>(commentary).startAfresh();
    screens.get<Form4>().replace(screens.get<Form1>());
}

} // namespace tarvold::endingentry
