#include "endings/feud_details.h"

#include "datafiles/record_fields.h"
#include "screens/lists.h"

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *kSides[] = {"Winners", "Losers"};
constexpr const char *kTelevised[] = {"N/A", "Yes"};

/// Only this screen shows a blank before the digits.
constexpr Bar kFeudHeat = [] {
    Bar bar = lists::kFeudHeat;
    bar.prefix = " ";
    return bar;
}();

constexpr Field kFeudFields[] = {
    {.control = "Combo3",
     .label = "Label4",
     .field = &fields::kFeudType,
     .items = lists::kFeudTypes,
     .help = "Specify whether this match ending involves a Singles feud, or a Tag Team feud."},
    {.control = "Text2",
     .label = "Label5",
     .field = &fields::kFeudingNames,
     .designText = "Any",
     .help =
         "Feuding Wrestler(s) ~ This refers to the wrestler(s) who will interfere in some way. "
         "Put 'Any' to make this ending apply to anyone, or enter the name of a wrestler to "
         "make it specific (for a specific tag team, type both names, spearated by a comma (Eg. "
         "'Rocco Vance,Dex Vance)."},
    {.control = "Combo1",
     .label = "Label2",
     .field = &fields::kFeudingDisposition,
     .items = lists::kDispositions,
     .help =
         "Feuding Wrestler's Disposition ~ Here, you can write endings based on the interfering "
         "wrestler(s) being Face or Heel, or either."},
    {.control = "Combo2",
     .label = "Label3",
     .field = &fields::kFeudingRingStyle,
     .items = lists::kRingStyles,
     .help =
         "Feuding Wrestler's Ring Style ~ You can specify this match ending to only be used for "
         "a certain style of interfering wrestler, eg only cruiserweights, or leave it open to "
         "any style."},
    {.control = "Combo7",
     .label = "Label10",
     .field = &fields::kFeudingFinisher,
     .items = lists::kFinisherTypes,
     .help = "Feuding Wrestler's Finisher Type ~ This allows you to write endings specific to the "
             "interfering wrestler using a submission finisher, for example."},
    {.control = "Combo4",
     .label = "Label6",
     .field = &fields::kFeudingWith,
     .items = kSides,
     .help = "Feuding With ~ This specifies who the interfering wrestler is going to attack, the "
             "winner(s) of the match or the loser(s)."},
    {.control = "HScroll1",
     .label = "Label7",
     .field = &fields::kHeatIncrease,
     .bar = &kFeudHeat,
     .help = "Feud Heat Increase ~ This is how much the feud bar will increase when this match "
             "ending takes place."},
    {.control = "Combo5",
     .label = "Label9",
     .field = &fields::kForTelevisedShows,
     .items = kTelevised,
     .help = "For Televised Shows? ~ If for example, the interfering wrestler was a guest "
             "commentater for the match, the ending would only be used on televised shows. If it "
             "doesn't matter whether the show is televised, choose N/A."},
};

const Fill kFeudFills[] = {{"Text2", "Any"}};

constexpr char kHelp[] = "Label13";

} // namespace

std::span<const Field> Form8::fields()
{
    return kFeudFields;
}

Form8::Form8(Screens & /*screens*/)
    : DetailsScreen({.name = kName,
                     .heading = "FEUD DETAILS",
                     .fields = kFeudFields,
                     .helpLabel = kHelp,
                     .fills = kFeudFills})
{
}

void Form8::showBrandHelp()
{
    setText(kHelp, u"Feuding Wrestlers Part Of This Brand? ~ Using this option means that for "
                   "example, if you are doing a Ruckus brand show, and a Brawlday wrestler "
                   "runs in, your match ending can emphasise that 'that wrestler doesn't "
                   "belong here'."_s);
}

void Form8::showPowerFigureHelp()
{
    setText(kHelp, u"Feud Person Is Power Figure ~ This allows you to specify match endings for "
                   "power figure vs wrestler style feuds. Eg, the wrestler could win the match "
                   "and then the power figure comes out and reverses the decision, which "
                   "increases the feud heat between the two."_s);
}

} // namespace tarvold
