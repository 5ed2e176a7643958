#include "endings/turn_commentary.h"

#include "endings/ending_tags.h"

namespace tarvold {

Form11::Form11(Screens &screens)
    : CommentaryScreen(screens, endingtags::table(kName, endingtags::turn(),
                                                  DataFileKind::TurnEndings, turnEndingLayout))
{
}

} // namespace tarvold
