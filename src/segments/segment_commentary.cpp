#include "segments/segment_commentary.h"

#include "controls/message_box.h"
#include "screens/lists.h"
#include "segments/segment_flow.h"

namespace tarvold {
namespace {

/// Both screens show these, so the talk show one also says "interview segment".
constexpr char kInstructions[] =
    "Here you have up to 10 lines of commentary which you can type in for this interview segment. "
    "Where specific details are needed, such as a wrestler's name, click on the list above to "
    "insert the relevant code.";

constexpr ControlRef kFeudType = {"Form12", "Combo3"};
constexpr Refusal kThirdWrestler = {kFeudType, lists::isSingles,
                                    "Wrestler 3 can only be involved if the Feud Type is Tag Team.",
                                    messagebox::kTitle};
constexpr Refusal kFourthWrestler = {
    kFeudType, lists::isSingles, "Wrestler 4 can only be involved if the Feud Type is Tag Team.",
    messagebox::kTitle};
constexpr Refusal kTagTeam = {kFeudType, lists::isSingles,
                              "Tag Teams can only be involved if the Feud Type is Tag Team.",
                              messagebox::kTitle};

constexpr CommentaryTag kInterviewTags[] = {
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

constexpr CommentaryTag kTalkShowTags[] = {
    {"Host Name", "<hostname>"},
    {"Guest 1 Long Name", "<guest1longname>"},
    {"Guest 1 Short Name", "<guest1shortname>"},
    {"Guest 2 Long Name", "<guest2longname>"},
    {"Guest 2 Short Name", "<guest2shortname>"},
    {"Talk Show Name", "<talkshowname>"},
};

} // namespace

CommentaryTable Form13::commentaryTable()
{
    return {.name = kName,
            .heading = "THE INTERVIEW SEGMENT",
            .instructions = kInstructions,
            .tags = kInterviewTags,
            .addCaption = "Add This Interview Segment",
            .missingMessage = "You haven't written the interview segment!",
            .question = "Add this interview segment to the file?",
            .kind = DataFileKind::Interviews,
            .chain = segmentflow::chain()};
}

Form13::Form13(Screens &screens) : CommentaryScreen(screens, commentaryTable()) {}

CommentaryTable Form15::commentaryTable()
{
    return {.name = kName,
            .heading = "THE TALK SHOW SEGMENT",
            .instructions = kInstructions,
            .tags = kTalkShowTags,
            .addCaption = "Add This Talk Show Segment",
            .missingMessage = "You haven't written the talk show segment!",
            .question = "Add this talk show segment to the file?",
            .kind = DataFileKind::TalkShows,
            .chain = segmentflow::chain()};
}

Form15::Form15(Screens &screens) : CommentaryScreen(screens, commentaryTable()) {}

} // namespace tarvold
