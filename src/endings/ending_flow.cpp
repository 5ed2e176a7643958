#include "endings/ending_flow.h"

#include "endings/attacker_receiver.h"
#include "endings/ending_commentary.h"
#include "endings/feud_details.h"
#include "endings/match_criteria.h"
#include "endings/turn_details.h"
#include "screens/main_menu.h"

namespace tarvold::endingflow {
namespace {

constexpr const char *kKept = nullptr;

// clang-format off
constexpr ValueRow kCriteriaValues[] = {
    //           normal    run-in     turn
    {"Combo3",  {"Any",    kKept,     kKept}},
    {"Combo12", {kKept,    "Singles", "Singles"}},
    {"Combo1",  {"N/A",    "N/A",     "N/A"}},
    {"Combo2",  {"N/A",    "N/A",     "N/A"}},
    {"Combo4",  {"Normal", "Normal",  "Normal"}},
    {"Combo10", {"N/A",    "N/A",     "N/A"}},
    {"Text2",   {"Any",    "Any",     "Any"}},
};

/// Names are kept for run-ins and turns, so that a name typed for one ending is offered again for
/// the next. The hidden manager name of a turn is "Any".
constexpr ValueRow kSideValues[] = {
    //           normal run-in turn
    {"Text1",   {"N/A", "N/A", "Any"}},
    {"Text2",   {"Any", kKept, kKept}},
    {"Combo3",  {"Any", "Any", kKept}},
    {"Combo1",  {"Any", "Any", "Any"}},
    {"Combo2",  {"Any", "Any", "Any"}},
    {"Combo4",  {"N/A", "N/A", "N/A"}},
    {"Combo5",  {"N/A", "N/A", kKept}},
    {"Combo6",  {"N/A", "N/A", kKept}},
    {"Combo7",  {"Any", "Any", "Any"}},
    {"Text3",   {"N/A", "N/A", kKept}},
};
// clang-format on

constexpr ScreenValues kValues[] = {
    {"Form4", kCriteriaValues},
    {"Form5", kSideValues},
    {"Form6", kSideValues},
};

/// All three tag lists show the first tag of a normal ending, even where it is not their own first.
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

const std::array<EndingRow, 3> kEndings = {{
    {"normal", "Form7", kNormalValues},
    {"feuds", "Form9", kRunInValues},
    {"turns", "Form11", kTurnValues},
}};

const EndingRow &endingRow(MatchEnding kind)
{
    return kEndings.at(static_cast<std::size_t>(kind));
}

std::span<const ScreenValues> values()
{
    return kValues;
}

std::span<const FlowStep> chain()
{
    // Any other text of the flow label leads to the turn screens.
    static const FlowStep steps[] = {
        {"Form4", "Form1", {{nullptr, "Form5"}}},
        {"Form5", "Form4", {{nullptr, "Form6"}}},
        {"Form6",
         "Form5",
         {{endingRow(MatchEnding::Normal).flowLabel, "Form7"},
          {endingRow(MatchEnding::RunIn).flowLabel, "Form8"},
          {nullptr, "Form10"}}},
        {"Form7", "Form6"},
        {"Form8", "Form6", {{nullptr, "Form9"}}},
        {"Form9", "Form8"},
        {"Form10", "Form6", {{nullptr, "Form11"}}},
        {"Form11", "Form10"},
    };
    return steps;
}

void declare(Screens &screens)
{
    screens.declare<Form4>();
    screens.declare<Form5>();
    screens.declare<Form6>();
    screens.declare<Form7>();
    screens.declare<Form8>();
    screens.declare<Form9>();
    screens.declare<Form10>();
    screens.declare<Form11>();
}

void enter(Screens &screens, MatchEnding kind)
{
    const EndingRow &ending = endingRow(kind);
    screens.setText(kLabel, QLatin1StringView(ending.flowLabel));
    auto &commentary = dynamic_cast<CommentaryScreen &>(screens[ending.commentary]);
    const RecordFormat format = rowOf(commentary.table().kind).format;
    for (const auto &[name, rows] : kValues) {
        Screen &screen = screens[name];
        dynamic_cast<DetailsScreen &>(screen).showFieldsOf(format);
        for (const ValueRow &row : rows) {
            if (const char *value = row.values.at(static_cast<std::size_t>(kind)); value != kKept) {
                screen.setText(row.control, QLatin1StringView(value));
            }
        }
    }
    screens.apply(ending.ownValues);
    commentary.startAfresh();
    screens.get<Form4>().replace(screens.get<Form1>());
}

} // namespace tarvold::endingflow
