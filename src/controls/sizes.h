#pragma once

/// Sizes and spacing of all screens, in device-independent pixels.
namespace tarvold {

/// The minimum height of text boxes, combo boxes, scroll bars and buttons.
inline constexpr int kControlHeight = 28;

/// The minimum width and height of any click target, such as a row of a list or a part of a scroll
/// bar.
/// Source: https://www.w3.org/TR/WCAG22/#target-size-minimum
inline constexpr int kLeastTarget = 24;

inline constexpr int kRowGap = 6;      ///< between the rows of a block
inline constexpr int kGap = 12;        ///< between blocks, and between a label and its control
inline constexpr int kMargin = 18;     ///< between the edge of a window and its content
inline constexpr int kTightMargin = 8; ///< above and below the content of a low window

/// The minimum height of a button that starts a task. They are all that their screen is for.
inline constexpr int kTaskButtonHeight = 36;

} // namespace tarvold
