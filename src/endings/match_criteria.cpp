#include "endings/match_criteria.h"

#include "controls/combo_box.h"
#include "datafiles/record_fields.h"
#include "screens/lists.h"
#include "screens/screens.h"

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *kAllMatchTypes[] = {
    "Any",
    "Singles",
    "Tag Team",
    "Triple Threat",
    "3 Way Dance",
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
    "Women's 3 Way Dance",
    "Women's 6 Person Tag",
    "Intergender Match",
    "Intergender Tag Team",
    "Intergender 6 Person Tag",
    "Battle Royal",
};
constexpr const char *kShortMatchTypes[] = {"Singles", "Tag Team", "Women's Match",
                                            "Women's Tag Team"};
constexpr const char *kFinishes[] = {"Normal", "DQ"};

constexpr Field kCriteriaFields[] = {
    {.control = "Combo3",
     .label = "Label4",
     .field = &fields::kMatchType,
     .items = kAllMatchTypes,
     .help = "Match Type ~ You can limit this match finish to only appear in a certain type of "
             "match, if you wish.",
     .helpOn = HelpOn::FocusAndClick},
    {.control = "Combo12",
     .label = "Label4",
     .field = &fields::kBasicMatchType,
     .items = kShortMatchTypes,
     .help = "Match Type ~ Specify which type of match this ending will be used for.",
     .spokenName = "Match Type, short list"},
    {.control = "Text2",
     .label = "Label5",
     .field = &fields::kStipulation,
     .designText = "Any",
     .help = "Stipulation ~ Either use 'Any' or specify a certain stipulation such as 'Ladder "
             "Match'. If you specify the Stipulation, this finish will only occur during that "
             "type of match.",
     .helpOn = HelpOn::FocusAndClick},
    {.control = "Combo1",
     .label = "Label6",
     .field = &fields::kTitleOnTheLine,
     .items = lists::kYesNoNa,
     .help = "Title On The Line ~ Allows you to only have this match finish happen when a title "
             "is on the line, or not on the line.",
     .helpOn = HelpOn::FocusAndClick},
    {.control = "Combo2",
     .label = "Label7",
     .field = &fields::kTitleChangesHands,
     .items = lists::kYesNoNa,
     .help = "Title Changes Hands ~ This means you can include in your match finish things like "
             "'<wrestler name> wins the <title name>!'",
     .helpOn = HelpOn::FocusAndClick},
    {.control = "Combo4",
     .label = "Label8",
     .field = &fields::kMatchFinish,
     .items = kFinishes,
     .help = "Match Finish ~ This means you can write different finishes depending on whether the "
             "winner wins a normal way, or by disqualification. NOTE: For a DQ finish, the "
             "'attacker' is the winning wrestler. The 'receiver' is the wrestler that loses by DQ.",
     .helpOn = HelpOn::FocusAndClick},
    {.control = "Combo10",
     .label = "Label14",
     .field = &fields::kDqPossible,
     .items = lists::kNaYesNo,
     .help = "DQ Possible? ~ If DQ is possible, you can write things that are done behind the "
             "referee's back. If DQ isn't possible, you can freely include weapon shots without "
             "involving the referee.",
     .helpOn = HelpOn::FocusAndClick},
};

const Fill kCriteriaFills[] = {{"Text2", "Any"}};

constexpr ControlRef kFeudType = {"Form8", "Combo3"};

QString feudTypeOf(const QString &matchType)
{
    const bool isSingles = matchType == "Women's Match"_L1 || lists::isSingles(matchType);
    return QLatin1StringView(isSingles ? lists::kSingles : lists::kTagTeam);
}

} // namespace

std::span<const Field> Form4::fields()
{
    return kCriteriaFields;
}

Form4::Form4(Screens &screens)
    : DetailsScreen({.name = kName,
                     .heading = "GENERAL DETAILS",
                     .fields = kCriteriaFields,
                     .helpLabel = "Label2",
                     .fills = kCriteriaFills})
{
    addHiddenLabel("matchreports", u"remember there is more than 1 combo for match type"_s);
    auto &shortMatchType = control<ComboBox>("Combo12");
    connect(&shortMatchType, &ComboBox::chosen, this, [&screens, &shortMatchType] {
        // Also for a turn, which does not need it.
        screens.setText(kFeudType, feudTypeOf(shortMatchType.currentText()));
    });
}

} // namespace tarvold
