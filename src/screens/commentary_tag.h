#pragma once

#include "screens/screens.h"

namespace tarvold {

/// Why a tag cannot be inserted now.
struct Refusal
{
    ControlRef box;                     ///< the control that decides
    bool (*isRefused)(const QString &); ///< takes the text of that control
    const char *message;                ///< what the user is told
    const char *title;                  ///< of the message box
};

/// An item of a tag list.
struct CommentaryTag
{
    const char *item;
    const char *tag;                  ///< what it inserts
    const Refusal *refusal = nullptr; ///< nullptr: never refused

    /// Why the tag would be refused now; null if it would not.
    const Refusal *refusalNow(Screens &screens) const
    {
        const bool isRefused = refusal != nullptr && refusal->isRefused(screens.text(refusal->box));
        return isRefused ? refusal : nullptr;
    }
};

} // namespace tarvold
