#pragma once

namespace tarvold {

/// The instructions of both segment screens; they say "interview segment" on the talk show one too.
inline constexpr char kSegmentInstructions[] =
    "Here you have up to 10 lines of commentary which you can type in for this interview segment. "
    "Where specific details are needed, such as a wrestler's name, click on the list above to "
    "insert the relevant code.";

} // namespace tarvold
