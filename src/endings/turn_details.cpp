#include "endings/turn_details.h"

#include "datafiles/record_fields.h"
#include "screens/lists.h"

namespace tarvold {
namespace {

constexpr const char *kTurnDispositions[] = {"Face",         "Heel", "Turning Face",
                                             "Turning Heel", "Any",  "N/A"};
constexpr const char *kTurningSides[] = {"Winning Side", "Losing Side"};

constexpr char kDispositionHelp[] =
    "Choose the disposition of the wrestlers involved so you can specify whether tag partner 1 "
    "turns on tag partner 2, winning wrestler turns on losing wrestler etc. Singles matches "
    "involve "
    "wrestler 1 and 2, and in tag matches wrestler 1 and 2 are on one team, 3 and 4 are on the "
    "other.";

constexpr Field kTurnFields[] = {
    {.control = "Combo1",
     .label = "Label2",
     .field = &fields::kWrestler1Disposition,
     .items = kTurnDispositions,
     .help = kDispositionHelp},
    {.control = "Combo2",
     .label = "Label3",
     .field = &fields::kWrestler2Disposition,
     .items = kTurnDispositions,
     .help = kDispositionHelp},
    {.control = "Combo3",
     .label = "Label4",
     .field = &fields::kWrestler3Disposition,
     .items = kTurnDispositions,
     .help = kDispositionHelp},
    {.control = "Combo4",
     .label = "Label5",
     .field = &fields::kWrestler4Disposition,
     .items = kTurnDispositions,
     .help = kDispositionHelp},
    {.control = "Combo5",
     .label = "Label6",
     .field = &fields::kTurningSide,
     .items = kTurningSides,
     .help = "Specify whether it is the winning side or the losing side which is turning."},
    {.control = "Combo6",
     .label = "Label7",
     .field = &fields::kAttackerTurns,
     .items = lists::kYesNoNa,
     .help =
         "Use this option only if the turn is in a tag team match, and one wrestler is turning "
         "on his partner. If you choose Yes, this ending will only happen when the wrestler who "
         "turns is the one who scores the pin/submission. Choosing No means it will only happen "
         "when the turning wrestler does NOT score the winning pin/submission."},
    {.control = "Combo7",
     .label = "Label8",
     .field = &fields::kReceiverTurns,
     .items = lists::kYesNoNa,
     .help =
         "Use this option only if the turn is in a tag team match, and one wrestler is turning "
         "on his partner. If you choose Yes, this ending will only happen when the wrestler who "
         "turns is the one who is pinned/submits. Choosing No means it will only happen when "
         "the turning wrestler is NOT the one who is pinned/submits."},
};

} // namespace

std::span<const Field> Form10::fields()
{
    return kTurnFields;
}

Form10::Form10(Screens & /*screens*/)
    : DetailsScreen(
          {.name = kName, .heading = "TURN DETAILS", .fields = kTurnFields, .helpLabel = "Label13"})
{
}

} // namespace tarvold
