#include "stipulations/form_tables.h"

#include <string>
#include <vector>

namespace tarvold::stipulationform {
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
constexpr const char *kQualityItems[] = {"Just Standard Ability", "Just Hardcore Ability",
                                         "50% Standard, 50% Hardcore"};

constexpr Bar kInjuryRisk = {
    .valueLabel = "risk", .designText = "5%", .prefix = "", .followsDrag = true};

// clang-format off
constexpr Field kUpperFields[] = {
    {.control = "matchtype",    .label = "Label1", .caption = "Connected With Match Type:",            .items = kMatchTypes},
    {.control = "stipulation",  .label = "Label2", .caption = "Name Of Stipulation:"},
    {.control = "matchshowsas", .label = "Label3", .caption = "Shows On Results Screen As:"},
    {.control = "dqposs",       .label = "Label4", .caption = "Is DQ Possible In This Match?:",        .items = kYesNo},
    {.control = "usedefault",   .label = "Label5", .caption = "Use Default Commentary Also?:",         .items = kYesNo},
    {.control = "runins",       .label = "Label6", .caption = "Can There Be Run-Ins For This Match?:", .items = kYesNo},
    {.control = "HScroll1",     .label = "Label7", .caption = "Injury Risk (5% = Normal)",             .bar = &kInjuryRisk},
};

constexpr Field kLowerFields[] = {
    {.control = "exclusive",    .label = "Label15", .caption = "Exclusive To A Promotion?:",           .items = kYesNo},
    {.control = "prominitials", .label = "Label16", .caption = "Promotion Initials:"},
    {.control = "matchquality", .label = "Label17", .caption = "Rate Match Quality By:",               .items = kQualityItems},
    {.control = "titleneeded",  .label = "Label18", .caption = "Does a title have to be on the line?:", .items = kYesNo},
};
// clang-format on

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

} // namespace

const std::array<ValueColumn, 4> kValueColumns = {{
    {"Label10", "Current", "drawcurrent", "entcurrent", false},
    {"Label11", "Maximum", "drawmax", "entmax", false},
    {"Label12", "When Used, Decrease By", "drawdec", "entdec", true},
    {"Label13", "Increase Daily By", "drawinc", "entinc", true},
}};

/// Line 6 is always "No"; lines 8, 17 and 18 are not shown as they are.
const std::array<PlainLine, 15> kPlainLines = {{
    {1, "matchtype", "Singles"},
    {2, "stipulation", ""},
    {3, "matchshowsas", ""},
    {4, "dqposs", "Yes"},
    {5, "usedefault", "No"},
    {7, "runins", "Yes"},
    {9, "drawcurrent", "50"},
    {10, "entcurrent", "50"},
    {11, "drawmax", "50"},
    {12, "entmax", "50"},
    {13, "drawdec", "NA"},
    {14, "entdec", "NA"},
    {15, "drawinc", "NA"},
    {16, "entinc", "NA"},
    {19, "titleneeded", "No"},
}};

const std::array<QualityWord, 3> kQualities = {{
    {"Just Standard Ability", "No"},
    {"Just Hardcore Ability", "Yes"},
    {"50% Standard, 50% Hardcore", "Both"},
}};

std::span<const Field> upperFields()
{
    return kUpperFields;
}

std::span<const Field> lowerFields()
{
    return kLowerFields;
}

Items valueItems(bool offersNa)
{
    const Items items = naAndNumbers();
    return offersNa ? items : items.subspan(1);
}

} // namespace tarvold::stipulationform
