#include "endings/normal_commentary.h"

#include "endings/ending_tags.h"

namespace tarvold {

Form7::Form7(Screens &screens)
    : CommentaryScreen(
          screens, {.name = kName,
                    .heading = "THE MATCH FINISH",
                    .instructions =
                        "Here you have up to 10 lines of commentary which you can type in for this "
                        "match ending. Where specific details are needed, such as a wrestler's "
                        "name, click on the list above to insert the relevant code.",
                    .tags = endingtags::kNormal,
                    .addCaption = "Add This Finish",
                    .missingMessage = "You haven't written the match finish!",
                    .question = "Add this finish to the file?",
                    .kind = DataFileKind::NormalEndings,
                    .layout = normalEndingLayout})
{
}

} // namespace tarvold
