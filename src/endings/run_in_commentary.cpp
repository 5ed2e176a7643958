#include "endings/run_in_commentary.h"

#include "endings/ending_tags.h"

namespace tarvold {

Form9::Form9(Screens &screens)
    : CommentaryScreen(screens, endingtags::table(kName, endingtags::runIn(),
                                                  DataFileKind::RunInEndings, runInEndingLayout))
{
}

} // namespace tarvold
