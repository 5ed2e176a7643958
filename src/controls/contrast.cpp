#include "controls/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace tarvold::contrast {
namespace {

/// The linear light of a channel from 0 to 255. A table, because every painting of a control asks
/// for it a hundred times.
double linear(int channel)
{
    static const auto values = [] {
        std::array<double, 256> made{};
        for (std::size_t each = 0; each < made.size(); ++each) {
            const double share = double(each) / 255;
            made.at(each) =
                share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        }
        return made;
    }();
    return values.at(std::size_t(channel));
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) +
           0.0722 * linear(colour.blue());
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto mix = [share](double one, double other) {
        return int(std::lround(255 * (one + (other - one) * share)));
    };
    return {mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
            mix(from.blueF(), to.blueF())};
}

double leastRatio(const QColor &colour, std::initializer_list<QColor> behind)
{
    double least = ratio(Qt::black, Qt::white);
    for (const QColor &each : behind) {
        least = std::min(least, ratio(colour, each));
    }
    return least;
}

} // namespace

double ratio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor visible(const QColor &wanted, std::initializer_list<QColor> behind, double least)
{
    constexpr int kSteps = 50;
    QColor best = wanted;
    for (int step = 0; step <= kSteps; ++step) {
        for (const QColor &end : {QColor(Qt::black), QColor(Qt::white)}) {
            const QColor colour = mixed(wanted, end, double(step) / kSteps);
            if (leastRatio(colour, behind) >= least) {
                return colour;
            }
            if (leastRatio(colour, behind) > leastRatio(best, behind)) {
                best = colour;
            }
        }
    }
    return best;
}

} // namespace tarvold::contrast
