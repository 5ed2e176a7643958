#pragma once

/// The sizes and spaces of all screens, in device-independent pixels.
namespace tarvold {

/// The height of text boxes, combo boxes, scroll bars and buttons, at least.
inline constexpr int kControlHeight = 28;

/// The least width and height of anything that a user aims at: a list's rows, a scroll bar's parts.
/// Source: https://www.w3.org/TR/WCAG22/#target-size-minimum
inline constexpr int kLeastTarget = 24;

inline constexpr int kRowGap = 6;  ///< between the rows of one block
inline constexpr int kGap = 12;    ///< between blocks, and between a label and what it belongs to
inline constexpr int kMargin = 18; ///< between the window's edge and what is in it

} // namespace tarvold
