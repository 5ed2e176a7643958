#pragma once

#include <iterator>
#include <random>

namespace tarvold::testing {

/// Chance that a seed repeats.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// A number from 0 up to, but not including, the limit.
    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }

    bool chance(int percent) { return below(100) < percent; }

    /// One of some things, of which there is at least one.
    template <class Things>
    const auto &pick(const Things &things)
    {
        return *std::next(std::begin(things), below(static_cast<int>(std::size(things))));
    }

private:
    std::mt19937 m_engine;
};

} // namespace tarvold::testing
