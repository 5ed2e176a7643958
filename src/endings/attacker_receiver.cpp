#include "endings/attacker_receiver.h"

#include "datafiles/record_fields.h"
#include "screens/lists.h"

#include <array>

namespace tarvold {
namespace {

constexpr char kManagerGenderHelp[] =
    "Manager's Gender ~ If a manager isn't involved in the finish, choose 'N/A'. If "
    "their gender doesn't matter, use 'Any'. Otherwise, you can specify for example, a "
    "female wrestler distracting a male wrestler.";
constexpr char kManagerWorkerHelp[] =
    "Manager - Worker? ~ The manager involved in the match may be a small business man, "
    "or a full time wrestler. They would both be involved in matches in different ways. "
    "This allows you to specify your finish to an active wrestler, or a retired "
    "wrestler/non-worker.";

/// The rows of both screens, without what each side names and explains on its own.
constexpr std::array<Field, 10> kRows = {{
    {.control = "Text2", .label = "Label5", .designText = "Any"},
    {.control = "Combo3", .label = "Label4", .items = lists::kDispositions},
    {.control = "Combo1", .label = "Label2", .items = lists::kRingStyles},
    {.control = "Combo2", .label = "Label3", .items = lists::kGenders},
    {.control = "Combo4", .label = "Label6", .items = lists::kNaYesNo},
    {.control = "Text1", .label = "Label7", .designText = "N/A"},
    {.control = "Combo5",
     .label = "Label8",
     .items = lists::kManagerGenders,
     .help = kManagerGenderHelp},
    {.control = "Combo6", .label = "Label9", .items = lists::kNaYesNo, .help = kManagerWorkerHelp},
    {.control = "Combo7", .label = "Label10", .items = lists::kFinisherTypes},
    {.control = "Text3", .label = "Label11", .designText = "N/A"},
}};

/// What a row is for one side.
struct SideRow
{
    const RecordField *field;
    const char *help = nullptr; ///< nullptr: both sides have the same
};

constexpr std::array<Field, 10> rowsOf(const std::array<SideRow, 10> &side)
{
    std::array<Field, 10> rows = kRows;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows.at(row).field = side.at(row).field;
        if (side.at(row).help != nullptr) {
            rows.at(row).help = side.at(row).help;
        }
    }
    return rows;
}

constexpr auto kAttackerFields = rowsOf({{
    {.field = &fields::kAttackerNames,
     .help = "Attacker(s) Name(s) ~ Here you can specify a finish for a certain wrestler, or 2 "
             "attacking wrestlers (if a double team move). For one wrestler, just type in their "
             "name. For 2 wrestlers in a double team finish, type both names, separated by a "
             "comma (Eg. 'Rocco Vance,Dex Vance'). If you don't want it to be for a specific "
             "wrestler's name, use 'Any'."},
    {.field = &fields::kAttackerDisposition,
     .help = "Attacker(s) Disposition ~ This lets you specify a finish for a certain disposition. "
             "Eg. a heel attacker might win by pulling the tights, or having his feet on the "
             "ropes."},
    {.field = &fields::kAttackerRingStyle,
     .help = "Attacker(s) Ring Style ~ Allows you to specify your finish so it only occurs with "
             "wrestlers of a certain ring style. Eg. A high flying move for a cruiserweight "
             "wrestler."},
    {.field = &fields::kAttackerGender,
     .help = "Attacker(s) Gender ~ You can specify a gender so that this finish only happens when "
             "the winning wrestler is a certain gender. Eg. A woman's match may end differently "
             "to a men's match."},
    {.field = &fields::kAttackerHoldsTitle,
     .help = "Attacker is the title holder ~ This can only be used for singles titles. It lets "
             "you create finishes where for example, a champion is trying desperately to hang "
             "onto his title."},
    {.field = &fields::kAttackerManager,
     .help = "Attacker's Manager Name ~ If you want the winning wrestler's manager involved in "
             "the finish, either type in a specific manager's name, or type 'Any'. If you need "
             "there not to be a manager, use 'None'. If a manager isn't involved, use 'N/A'."},
    {.field = &fields::kAttackerManagerGender},
    {.field = &fields::kAttackerManagerWorks},
    {.field = &fields::kAttackerFinisher,
     .help = "Finisher Type ~ This is important for normal finishes - if its a submission "
             "finisher for example, you would use something like '<wrestler name> got <opponent> "
             "in the <finishername>, forcing him to tap out!' Top Rope means the attacking "
             "wrestler's finisher involves coming off the top rope, with his opponent in the ring "
             "(eg. a frog splash)."},
    {.field = &fields::kAttackerStable,
     .help = "Stable ~ This allows you to specify the name of a stable, or involve a general "
             "stable by typing 'Any'. This allows finishes for example, where members of that "
             "stable come out to help their team-mate win, or maybe deliver a post match beating "
             "to the loser. If a stable isn't involved, use 'N/A'."},
}});

constexpr auto kReceiverFields = rowsOf({{
    {.field = &fields::kReceiverName,
     .help = "Receiver Name ~ Here you can specify a finish for a certain wrestler, by typing in "
             "their name. If you don't want it to be for a specific wrestler's name, use 'Any'."},
    {.field = &fields::kReceiverDisposition,
     .help = "Receiver Disposition ~ This lets you specify this finish to only happen when the "
             "loser is a certain disposition. For example, a heel loser, when losing by DQ, might "
             "cost himself the match by hitting a low blow in front of the referee."},
    {.field = &fields::kReceiverRingStyle,
     .help = "Receiver Ring Style ~ Allows you to specify your finish so it only occurs with "
             "wrestlers of a certain ring style. Eg. A high flying move for a cruiserweight "
             "wrestler."},
    {.field = &fields::kReceiverGender,
     .help = "Receiver Gender ~ You can specify a gender so that this finish only happens when "
             "the losing wrestler is a certain gender. Eg. A woman's match may end differently to "
             "a men's match."},
    {.field = &fields::kReceiverHoldsTitle,
     .help = "Receiver is the title holder ~ This can only be used for singles titles. Eg. If the "
             "receiver (loser) is the title holder, if they lost by DQ it could be because they "
             "deliberatelty brought the belt in and hit their opponent with it so they wouldn't "
             "lose the title."},
    {.field = &fields::kReceiverManager,
     .help = "Receiver's Manager Name ~ If you want the losing wrestler's manager involved in the "
             "finish, either type in a specific manager's name, or type 'Any'. If you need there "
             "not to be a manager, use 'None'. If a manager isn't involved, use 'N/A'."},
    {.field = &fields::kReceiverManagerGender},
    {.field = &fields::kReceiverManagerWorks},
    {.field = &fields::kReceiverFinisher,
     .help = "Finisher Type ~ Specifying the receiver's (loser's) finisher type allows you to "
             "write a finish such as, the loser had the winner in his finisher, and the winner "
             "tapped out, but the winner's manager had the referee distracted."},
    {.field = &fields::kReceiverStable,
     .help = "Stable ~ This allows you to specify the name of a stable, or involve a general "
             "stable by typing 'Any'. This allows finishes for example, where members of that "
             "stable come out to help their team-mate, but get him DQ'd, or maybe to fend off an "
             "beating from the winner's stable on their team-mate. If a stable isn't involved, "
             "use 'N/A'."},
}});

/// An empty manager name means that no manager is involved, so the manager's other fields are
/// reset.
const Fill kFills[] = {
    {"Text2", "Any"},
    {"Text1", "N/A", {"Combo5", "Combo6"}},
    {"Text3", "N/A"},
};

} // namespace

std::span<const Field> Form5::fields()
{
    return kAttackerFields;
}

Form5::Form5(Screens & /*screens*/)
    : DetailsScreen({.name = kName,
                     .heading = "ATTACKER DETAILS",
                     .fields = kAttackerFields,
                     .helpLabel = "Label13",
                     .fills = kFills,
                     .noteLabel = "Label14",
                     .note = "Attacker = the one who makes the pin/wins by DQ etc"})
{
}

std::span<const Field> Form6::fields()
{
    return kReceiverFields;
}

Form6::Form6(Screens & /*screens*/)
    : DetailsScreen({.name = kName,
                     .heading = "RECEIVER DETAILS",
                     .fields = kReceiverFields,
                     .helpLabel = "Label13",
                     .fills = kFills,
                     .noteLabel = "Label14",
                     .note = "Receiver = The one who gets pinned/submits/loses by DQ etc"})
{
}

} // namespace tarvold
