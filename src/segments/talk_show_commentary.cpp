#include "segments/talk_show_commentary.h"

#include "segments/segment_instructions.h"

namespace tarvold {
namespace {

constexpr CommentaryTag kTags[] = {
    {"Host Name", "<hostname>"},
    {"Guest 1 Long Name", "<guest1longname>"},
    {"Guest 1 Short Name", "<guest1shortname>"},
    {"Guest 2 Long Name", "<guest2longname>"},
    {"Guest 2 Short Name", "<guest2shortname>"},
    {"Talk Show Name", "<talkshowname>"},
};

} // namespace

Form15::Form15(Screens &screens)
    : CommentaryScreen(screens, {.name = kName,
                                 .heading = "THE TALK SHOW SEGMENT",
                                 .instructions = kSegmentInstructions,
                                 .tags = kTags,
                                 .addCaption = "Add This Talk Show Segment",
                                 .missingMessage = "You haven't written the talk show segment!",
                                 .question = "Add this talk show segment to the file?",
                                 .kind = DataFileKind::TalkShows,
                                 .layout = talkShowLayout})
{
}

} // namespace tarvold
