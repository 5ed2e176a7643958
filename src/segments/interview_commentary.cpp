#include "segments/interview_commentary.h"

#include "controls/message_box.h"
#include "segments/segment_instructions.h"

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

bool isSingles(const QString &feudType)
{
    return feudType == "Singles"_L1;
}

constexpr ControlRef kFeudType = {"Form12", "Combo3"};
constexpr Refusal kThirdWrestler = {kFeudType, isSingles,
                                    "Wrestler 3 can only be involved if the Feud Type is Tag Team.",
                                    messagebox::kTitle};
constexpr Refusal kFourthWrestler = {
    kFeudType, isSingles, "Wrestler 4 can only be involved if the Feud Type is Tag Team.",
    messagebox::kTitle};
constexpr Refusal kTagTeam = {kFeudType, isSingles,
                              "Tag Teams can only be involved if the Feud Type is Tag Team.",
                              messagebox::kTitle};

constexpr CommentaryTag kTags[] = {
    {"Wrestler 1 Long Name", "<wrestler1longname>"},
    {"Wrestler 1 Short Name", "<wrestler1shortname>"},
    {"Wrestler 2 Long Name", "<wrestler2longname>"},
    {"Wrestler 2 Short Name", "<wrestler2shortname>"},
    {"Wrestler 3 Long Name", "<wrestler3longname>", &kThirdWrestler},
    {"Wrestler 3 Short Name", "<wrestler3shortname>", &kThirdWrestler},
    {"Wrestler 4 Long Name", "<wrestler4longname>", &kFourthWrestler},
    {"Wrestler 4 Short Name", "<wrestler4shortname>", &kFourthWrestler},
    {"Tag Team 1", "<tagteam1>", &kTagTeam},
    {"Tag Team 2", "<tagteam2>", &kTagTeam},
    {"Interviewer Name", "<interviewer>"},
    {"Town Name", "<town>"},
};

} // namespace

Form13::Form13(Screens &screens)
    : CommentaryScreen(screens, {.name = kName,
                                 .heading = "THE INTERVIEW SEGMENT",
                                 .instructions = kSegmentInstructions,
                                 .tags = kTags,
                                 .addCaption = "Add This Interview Segment",
                                 .missingMessage = "You haven't written the interview segment!",
                                 .question = "Add this interview segment to the file?",
                                 .kind = DataFileKind::Interviews,
                                 .layout = interviewLayout})
{
}

} // namespace tarvold
