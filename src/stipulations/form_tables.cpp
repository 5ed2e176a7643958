#include "stipulations/form_tables.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tarvold::stipulationform {

using namespace stipulationfields;

namespace {

constexpr const char *kMatchTypes[] = {
    "Singles",
    "Tag Team",
    "Triple Threat",
    "4 Way Dance",
    "6 Way Dance",
    "3 Way Tag Team",
    "4 Way Tag Team",
    "6 Man Tag",
    "8 Man Tag",
    "10 Man Tag",
    "2 on 1 Handicap Match",
    "Women's Match",
    "Women's Tag Team",
    "Women's Triple Threat",
    "Women's 6 Person Tag",
    "Intergender Match",
    "Intergender Tag Team",
    "Intergender 6 Person Tag",
    "Battle Royal",
};
constexpr const char *kYesNo[] = {"Yes", "No"};
constexpr Bar kRiskBar = {
    .valueLabel = "risk", .designText = "5%", .prefix = "", .followsDrag = true};

/// "NA" and the numbers, kept for the whole run.
const std::vector<const char *> &naAndNumbers()
{
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> made = {"NA"};
        made.reserve(101);
        for (int number = 1; number <= 100; ++number) {
            made.push_back(std::to_string(number));
        }
        return made;
    }();
    static const std::vector<const char *> items = [] {
        std::vector<const char *> made;
        made.reserve(texts.size());
        for (const std::string &text : texts) {
            made.push_back(text.c_str());
        }
        return made;
    }();
    return items;
}

/// Kept for the whole run.
const std::vector<const char *> &qualityItems()
{
    static const std::vector<const char *> items = [] {
        std::vector<const char *> made;
        for (const CodedText &quality : codedTexts(Coding::QualityWord)) {
            made.push_back(quality.text);
        }
        return made;
    }();
    return items;
}

} // namespace

// clang-format off
constexpr std::array<FormLine, kStipulationFormat.size()> kLines = {{
    {&kMatchType,         "matchtype",    "Singles"},
    {&kName,              "stipulation",  ""},
    {&kShownAs,           "matchshowsas", ""},
    {&kDqPossible,        "dqposs",       "Yes"},
    {&kDefaultCommentary, "usedefault",   "No"},
    {&kReserved,          nullptr,        "No"},
    {&kRunIns,            "runins",       "Yes"},
    {&kInjuryRisk,        "HScroll1",     "5"},
    {&kDrawCurrent,       "drawcurrent",  "50"},
    {&kEntCurrent,        "entcurrent",   "50"},
    {&kDrawMaximum,       "drawmax",      "50"},
    {&kEntMaximum,        "entmax",       "50"},
    {&kDrawDecrease,      "drawdec",      "NA"},
    {&kEntDecrease,       "entdec",       "NA"},
    {&kDrawIncrease,      "drawinc",      "NA"},
    {&kEntIncrease,       "entinc",       "NA"},
    {&kPromotion,         "prominitials", "No"},
    {&kQuality,           "matchquality", "No"},
    {&kTitleNeeded,       "titleneeded",  "No"},
}};
// clang-format on
static_assert(std::equal(kLines.begin(), kLines.end(), kStipulationFormat.begin(),
                         [](const FormLine &line, const RecordField *field) {
                             return line.field == field;
                         }));

const std::array<ValueColumn, 4> kValueColumns = {{
    {"Label10", "Current", &kDrawCurrent, &kEntCurrent, false},
    {"Label11", "Maximum", &kDrawMaximum, &kEntMaximum, false},
    {"Label12", "When Used, Decrease By", &kDrawDecrease, &kEntDecrease, true},
    {"Label13", "Increase Daily By", &kDrawIncrease, &kEntIncrease, true},
}};

// clang-format off
std::span<const Field> upperFields()
{
    static constexpr Field kFields[] = {
        {.control = "matchtype",    .label = "Label1", .caption = kMatchType.name,         .items = kMatchTypes},
        {.control = "stipulation",  .label = "Label2", .caption = kName.name},
        {.control = "matchshowsas", .label = "Label3", .caption = kShownAs.name},
        {.control = "dqposs",       .label = "Label4", .caption = kDqPossible.name,        .items = kYesNo},
        {.control = "usedefault",   .label = "Label5", .caption = kDefaultCommentary.name, .items = kYesNo},
        {.control = "runins",       .label = "Label6", .caption = kRunIns.name,            .items = kYesNo},
        {.control = "HScroll1",     .label = "Label7", .caption = kInjuryRisk.name,        .bar = &kRiskBar},
    };
    return kFields;
}

std::span<const Field> lowerFields()
{
    static const Field kFields[] = {
        {.control = "exclusive",    .label = "Label15", .caption = "Exclusive To A Promotion?:", .items = kYesNo},
        {.control = "prominitials", .label = "Label16", .caption = kPromotion.name},
        {.control = "matchquality", .label = "Label17", .field = &kQuality, .caption = kQuality.name, .items = qualityItems()},
        {.control = "titleneeded",  .label = "Label18", .caption = kTitleNeeded.name,            .items = kYesNo},
    };
    return kFields;
}
// clang-format on

const char *controlOf(const RecordField &field)
{
    return std::find_if(kLines.begin(), kLines.end(),
                        [&field](const FormLine &line) { return line.field == &field; })
        ->control;
}

Items valueItems(bool offersNa)
{
    const Items items = naAndNumbers();
    return offersNa ? items : items.subspan(1);
}

} // namespace tarvold::stipulationform
