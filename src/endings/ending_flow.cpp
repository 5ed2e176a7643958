#include "endings/ending_flow.h"

#include "endings/attacker_receiver.h"
#include "endings/feud_details.h"
#include "endings/match_criteria.h"
#include "endings/normal_commentary.h"
#include "endings/run_in_commentary.h"
#include "endings/turn_commentary.h"
#include "endings/turn_details.h"
#include "screens/screens.h"

namespace tarvold::endingflow {

std::span<const FlowStep> chain()
{
    // A flow label that is neither of the first two leads to the turn screens.
    static const FlowStep steps[] = {
        {"Form4", "Form1", {{nullptr, "Form5"}}},
        {"Form5", "Form4", {{nullptr, "Form6"}}},
        {"Form6", "Form5", {{"normal", "Form7"}, {"feuds", "Form8"}, {nullptr, "Form10"}}},
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

} // namespace tarvold::endingflow
