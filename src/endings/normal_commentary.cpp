#include "endings/normal_commentary.h"

#include "endings/ending_tags.h"

namespace tarvold {

Form7::Form7(Screens &screens)
    : CommentaryScreen(screens, endingtags::table(kName, endingtags::normal(),
                                                  DataFileKind::NormalEndings, normalEndingLayout))
{
}

} // namespace tarvold
