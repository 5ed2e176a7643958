#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// Contrast of two colours by WCAG 2.2 (https://www.w3.org/TR/WCAG22/).
namespace tarvold::testing::contrast {

/// The minimum that WCAG requires for text (success criterion 1.4.3).
inline constexpr double kText = 4.5;

/// The minimum that it requires for controls and focus marks (1.4.11 and 2.4.13).
inline constexpr double kControl = 3.0;

/// The relative luminance of a colour, 0 for black to 1 for white; WCAG 2.2, "relative luminance".
inline double luminance(const QColor &colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The contrast ratio of two colours in either order, 1 to 21; WCAG 2.2, "contrast ratio".
inline double ratio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace tarvold::testing::contrast
