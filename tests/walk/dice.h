#pragma once

#include <iterator>
#include <random>

namespace tarvold::testing {

/// A random number generator whose sequence depends only on the seed.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// A number from 0 to `limit` - 1.
    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }

    bool chance(int percent) { return below(100) < percent; }

    /// A random element of a non-empty container.
    template <class Things>
    const auto &pick(const Things &things)
    {
        return *std::next(std::begin(things), below(static_cast<int>(std::size(things))));
    }

private:
    std::mt19937 m_engine;
};

} // namespace tarvold::testing
