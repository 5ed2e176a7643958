#pragma once

#include "support/field_checks.h"

namespace tarvold::testing {

/// The fields of the attacker screen.
inline const std::vector<ExpectedField> kAttacker = {
    {"Text2",
     "Label5",
     "Attacker(s) Name(s)",
     {},
     "Any",
     false,
     "Attacker(s) Name(s) ~ Here you can specify a finish for a certain wrestler, or 2 attacking "
     "wrestlers (if a double team move). For one wrestler, just type in their name. For 2 "
     "wrestlers in a double team finish, type both names, separated by a comma (Eg. 'Rocco "
     "Vance,Dex Vance'). If you don't want it to be for a specific wrestler's name, use 'Any'."},
    {"Combo3",
     "Label4",
     "Attacker(s) Disposition",
     {"Any", "Face", "Heel"},
     "Any",
     false,
     "Attacker(s) Disposition ~ This lets you specify a finish for a certain disposition. Eg. a "
     "heel attacker might win by pulling the tights, or having his feet on the ropes."},
    {"Combo1",
     "Label2",
     "Attacker(s) Ring Style",
     {"Any", "Basic Wrestler", "Big Man", "Cruiserweight", "Hardcore", "High Flyer",
      "Old Heavyweight", "Powerful", "Technical", "Non-Worker"},
     "Any",
     false,
     "Attacker(s) Ring Style ~ Allows you to specify your finish so it only occurs with wrestlers "
     "of a certain ring style. Eg. A high flying move for a cruiserweight wrestler."},
    {"Combo2",
     "Label3",
     "Attacker(s) Gender",
     {"Any", "Male", "Female"},
     "Any",
     false,
     "Attacker(s) Gender ~ You can specify a gender so that this finish only happens when the "
     "winning wrestler is a certain gender. Eg. A woman's match may end differently to a men's "
     "match."},
    {"Combo4",
     "Label6",
     "Attacker Is The Title Holder?",
     {"N/A", "Yes", "No"},
     "N/A",
     false,
     "Attacker is the title holder ~ This can only be used for singles titles. It lets you create "
     "finishes where for example, a champion is trying desperately to hang onto his title."},
    {"Text1",
     "Label7",
     "Attacker(s) Manager Name",
     {},
     "N/A",
     false,
     "Attacker's Manager Name ~ If you want the winning wrestler's manager involved in the finish, "
     "either type in a specific manager's name, or type 'Any'. If you need there not to be a "
     "manager, use 'None'. If a manager isn't involved, use 'N/A'."},
    {"Combo5",
     "Label8",
     "Attacker(s) Manager's Gender",
     {"N/A", "Any", "Male", "Female"},
     "N/A",
     false,
     "Manager's Gender ~ If a manager isn't involved in the finish, choose 'N/A'. If their gender "
     "doesn't matter, use 'Any'. Otherwise, you can specify for example, a female wrestler "
     "distracting a male wrestler."},
    {"Combo6",
     "Label9",
     "Attacker(s) Manager - Worker?",
     {"N/A", "Yes", "No"},
     "N/A",
     false,
     "Manager - Worker? ~ The manager involved in the match may be a small business man, or a full "
     "time wrestler. They would both be involved in matches in different ways. This allows you to "
     "specify your finish to an active wrestler, or a retired wrestler/non-worker."},
    {"Combo7",
     "Label10",
     "Attacker(s) Finisher Type",
     {"Any", "Pin", "Submission", "Top Rope"},
     "Any",
     false,
     "Finisher Type ~ This is important for normal finishes - if its a submission finisher for "
     "example, you would use something like '<wrestler name> got <opponent> in the <finishername>, "
     "forcing him to tap out!' Top Rope means the attacking wrestler's finisher involves coming "
     "off the top rope, with his opponent in the ring (eg. a frog splash)."},
    {"Text3",
     "Label11",
     "Attacker(s) Stable",
     {},
     "N/A",
     false,
     "Stable ~ This allows you to specify the name of a stable, or involve a general stable by "
     "typing 'Any'. This allows finishes for example, where members of that stable come out to "
     "help their team-mate win, or maybe deliver a post match beating to the loser. If a stable "
     "isn't involved, use 'N/A'."},
};

} // namespace tarvold::testing
