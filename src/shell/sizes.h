#pragma once

/// The sizes and spaces of all screens, in device-independent pixels.
namespace tarvold {

/// The least height of anything that a user aims at.
inline constexpr int kTargetHeight = 28;

/// The least width of anything that a user aims at: the parts of a scroll bar, a list's arrow.
inline constexpr int kTargetWidth = 24;

inline constexpr int kRowGap = 6;  ///< between the rows of one block
inline constexpr int kGap = 12;    ///< between blocks, and between a label and what it belongs to
inline constexpr int kMargin = 18; ///< between the window's edge and what is in it

} // namespace tarvold
