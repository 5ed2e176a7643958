#pragma once

#include <QColor>

#include <initializer_list>

/// How well colours can be told apart, by the Web Content Accessibility Guidelines 2.2.
///
/// Source: https://www.w3.org/TR/WCAG22/#dfn-contrast-ratio and #dfn-relative-luminance.
namespace tarvold::contrast {

/// What text needs so that even its thin, smoothed letters reach 4.5 (success criterion 1.4.3).
inline constexpr double kText = 7;

inline constexpr double kControl = 3; ///< what outlines need (1.4.11)
inline constexpr double kFocus = 4.5; ///< what the mark of the focus gets, more than is asked

/// The contrast of two opaque colours: from 1 for equal ones to 21 for black and white.
double ratio(const QColor &one, const QColor &other);

/// The colour closest to `wanted`, darker or lighter, that has at least the contrast `least` to
/// every colour of `behind`; where no colour has, the one whose smallest contrast is greatest.
QColor visible(const QColor &wanted, std::initializer_list<QColor> behind, double least);

} // namespace tarvold::contrast
