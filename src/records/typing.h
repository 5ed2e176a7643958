#pragma once

#include <functional>

namespace tarvold::records {

/// What the user has typed into the editors of a window but not left yet, so that it is in no
/// document.
struct Typing
{
    /// Makes it a change of the document. Returns `false` if that is impossible, which the user has
    /// been told then.
    std::function<bool()> keep;
    std::function<bool()> isPending;
};

} // namespace tarvold::records
