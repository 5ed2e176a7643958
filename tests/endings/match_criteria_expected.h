#pragma once

#include "support/field_checks.h"

namespace tarvold::testing {

/// The fields of the match criteria screen.
inline const std::vector<ExpectedField> kMatchCriteria = {
    {"Combo3",
     "Label4",
     "Match Type",
     {"Any",
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
      "Battle Royal"},
     "Any",
     true,
     "Match Type ~ You can limit this match finish to only appear in a certain type of match, if "
     "you wish."},
    {"Combo12",
     "Label4",
     "Match Type",
     {"Singles", "Tag Team", "Women's Match", "Women's Tag Team"},
     "Singles",
     false,
     "Match Type ~ Specify which type of match this ending will be used for."},
    {"Text2",
     "Label5",
     "Stipulation",
     {},
     "Any",
     true,
     "Stipulation ~ Either use 'Any' or specify a certain stipulation such as 'Ladder Match'. If "
     "you specify the Stipulation, this finish will only occur during that type of match."},
    {"Combo1",
     "Label6",
     "Title On The Line?",
     {"Yes", "No", "N/A"},
     "N/A",
     true,
     "Title On The Line ~ Allows you to only have this match finish happen when a title is on the "
     "line, or not on the line."},
    {"Combo2",
     "Label7",
     "Title Changes Hands?",
     {"Yes", "No", "N/A"},
     "N/A",
     true,
     "Title Changes Hands ~ This means you can include in your match finish things like '<wrestler "
     "name> wins the <title name>!'"},
    {"Combo4",
     "Label8",
     "Match Finish",
     {"Normal", "DQ"},
     "Normal",
     true,
     "Match Finish ~ This means you can write different finishes depending on whether the winner "
     "wins a normal way, or by disqualification. NOTE: For a DQ finish, the 'attacker' is the "
     "winning wrestler. The 'receiver' is the wrestler that loses by DQ."},
    {"Combo10",
     "Label14",
     "DQ Possible In This Match?",
     {"N/A", "Yes", "No"},
     "N/A",
     true,
     "DQ Possible? ~ If DQ is possible, you can write things that are done behind the referee's "
     "back. If DQ isn't possible, you can freely include weapon shots without involving the "
     "referee."},
};

} // namespace tarvold::testing
