#pragma once

#include "support/field_checks.h"

namespace tarvold::testing {

/// The fields of the receiver screen.
inline const std::vector<ExpectedField> kReceiver = {
    {"Text2",
     "Label5",
     "Receiver Name",
     {},
     "Any",
     false,
     "Receiver Name ~ Here you can specify a finish for a certain wrestler, by typing in their "
     "name. If you don't want it to be for a specific wrestler's name, use 'Any'."},
    {"Combo3",
     "Label4",
     "Receiver Disposition",
     {"Any", "Face", "Heel"},
     "Any",
     false,
     "Receiver Disposition ~ This lets you specify this finish to only happen when the loser is a "
     "certain disposition. For example, a heel loser, when losing by DQ, might cost himself the "
     "match by hitting a low blow in front of the referee."},
    {"Combo1",
     "Label2",
     "Receiver Ring Style",
     {"Any", "Basic Wrestler", "Big Man", "Cruiserweight", "Hardcore", "High Flyer",
      "Old Heavyweight", "Powerful", "Technical", "Non-Worker"},
     "Any",
     false,
     "Receiver Ring Style ~ Allows you to specify your finish so it only occurs with wrestlers of "
     "a certain ring style. Eg. A high flying move for a cruiserweight wrestler."},
    {"Combo2",
     "Label3",
     "Receiver Gender",
     {"Any", "Male", "Female"},
     "Any",
     false,
     "Receiver Gender ~ You can specify a gender so that this finish only happens when the losing "
     "wrestler is a certain gender. Eg. A woman's match may end differently to a men's match."},
    {"Combo4",
     "Label6",
     "Receiver Is The Title Holder?",
     {"N/A", "Yes", "No"},
     "N/A",
     false,
     "Receiver is the title holder ~ This can only be used for singles titles. Eg. If the receiver "
     "(loser) is the title holder, if they lost by DQ it could be because they deliberatelty "
     "brought the belt in and hit their opponent with it so they wouldn't lose the title."},
    {"Text1",
     "Label7",
     "Receiver Manager Name",
     {},
     "N/A",
     false,
     "Receiver's Manager Name ~ If you want the losing wrestler's manager involved in the finish, "
     "either type in a specific manager's name, or type 'Any'. If you need there not to be a "
     "manager, use 'None'. If a manager isn't involved, use 'N/A'."},
    {"Combo5",
     "Label8",
     "Receiver Manager's Gender",
     {"N/A", "Any", "Male", "Female"},
     "N/A",
     false,
     "Manager's Gender ~ If a manager isn't involved in the finish, choose 'N/A'. If their gender "
     "doesn't matter, use 'Any'. Otherwise, you can specify for example, a female wrestler "
     "distracting a male wrestler."},
    {"Combo6",
     "Label9",
     "Receiver Manager - Worker?",
     {"N/A", "Yes", "No"},
     "N/A",
     false,
     "Manager - Worker? ~ The manager involved in the match may be a small business man, or a full "
     "time wrestler. They would both be involved in matches in different ways. This allows you to "
     "specify your finish to an active wrestler, or a retired wrestler/non-worker."},
    {"Combo7",
     "Label10",
     "Receiver Finisher Type",
     {"Any", "Pin", "Submission", "Top Rope"},
     "Any",
     false,
     "Finisher Type ~ Specifying the receiver's (loser's) finisher type allows you to write a "
     "finish such as, the loser had the winner in his finisher, and the winner tapped out, but the "
     "winner's manager had the referee distracted."},
    {"Text3",
     "Label11",
     "Receiver Stable",
     {},
     "N/A",
     false,
     "Stable ~ This allows you to specify the name of a stable, or involve a general stable by "
     "typing 'Any'. This allows finishes for example, where members of that stable come out to "
     "help their team-mate, but get him DQ'd, or maybe to fend off an beating from the winner's "
     "stable on their team-mate. If a stable isn't involved, use 'N/A'."},
};

} // namespace tarvold::testing
