#pragma once

#include <QColor>

#include <initializer_list>

/// Contrast of colours by the Web Content Accessibility Guidelines (WCAG) 2.2.
///
/// Source: https://www.w3.org/TR/WCAG22/#dfn-contrast-ratio and #dfn-relative-luminance.
namespace tarvold::contrast {

/// For text. Higher than the required 4.5 (success criterion 1.4.3), as antialiasing makes thin
/// letters paler.
inline constexpr double kText = 7;

inline constexpr double kControl = 3; ///< for outlines (1.4.11)
inline constexpr double kFocus = 4.5; ///< for the focus mark; higher than required

/// The contrast ratio of two opaque colours: from 1 (equal) to 21 (black and white).
double ratio(const QColor &one, const QColor &other);

/// The colour closest to `wanted`, darker or lighter, whose contrast ratio with every colour in
/// `behind` is at least `least`. If there is none, the colour whose smallest ratio is largest.
QColor visible(const QColor &wanted, std::initializer_list<QColor> behind, double least);

} // namespace tarvold::contrast
