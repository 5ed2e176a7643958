#pragma once

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

/// Contrast of two colours by WCAG 2.2 (https://www.w3.org/TR/WCAG22/).
namespace tarvold::testing::contrast {

/// The minimum that WCAG requires for text (success criterion 1.4.3).
inline constexpr double kText = 4.5;

/// The minimum that it requires for controls and focus marks (1.4.11 and 2.4.13).
inline constexpr double kControl = 3.0;

/// The relative luminance of a colour, 0 for black to 1 for white; WCAG 2.2, "relative luminance".
inline double luminance(const QColor &colour)
{
    // A table, because pictures have millions of pixels.
    static const auto linear = [] {
        std::array<double, 256> values{};
        for (std::size_t channel = 0; channel < values.size(); ++channel) {
            const double share = double(channel) / 255;
            values.at(channel) =
                share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    return 0.2126 * linear.at(std::size_t(colour.red())) +
           0.7152 * linear.at(std::size_t(colour.green())) +
           0.0722 * linear.at(std::size_t(colour.blue()));
}

/// The contrast ratio of two colours in either order, 1 to 21; WCAG 2.2, "contrast ratio".
inline double ratio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace tarvold::testing::contrast
