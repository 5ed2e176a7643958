#include "records/alignment.h"

#include <algorithm>
#include <limits>

namespace tarvold::records {
namespace {

constexpr int kNever = std::numeric_limits<int>::max() / 4;

/// The steps of a cell are two bits each.
constexpr int kBitsPerStep = 2;
constexpr unsigned kStepMask = (1U << kBitsPerStep) - 1;

constexpr std::uint8_t coded(int last, int before)
{
    return std::uint8_t(before << (last * kBitsPerStep));
}

} // namespace

Alignment::Alignment(const LineCosts &costs, Records records)
    : m_costs(costs)
    , m_records(records)
    , m_columns(costs.fieldCount() + 1)
    , m_row(std::size_t(m_columns))
    , m_next(std::size_t(m_columns))
{
    clear();
}

void Alignment::clear()
{
    m_steps.clear();
    std::fill(m_next.begin(), m_next.end(), Cell{kNever, kNever, kNever});
    m_next.front()[Matched] = 0;
    finishRow(true);
}

/// The step with the least cost. Of several it is the one that puts a gap as late as possible: what
/// is missing from a commentary is then "-BLANK-" at its end.
Alignment::Step Alignment::best(const Cell &cell)
{
    Step found = Missing;
    for (const Step step : {Surplus, Matched}) {
        if (cell[step] < cell[found]) {
            found = step;
        }
    }
    return found;
}

void Alignment::add(Sort sort, bool isDoubled)
{
    const std::uint16_t *const cost = m_costs.row(sort);
    const int off = isDoubled ? m_costs.doubled(sort) : 0;
    const int surplus =
        (sort == Sort::Empty ? LineCosts::kSurplusEmpty : LineCosts::kSurplus) - off;
    const int surplusToo = std::max(LineCosts::kSurplusToo - off, LineCosts::kBit);

    const std::size_t start = m_steps.size();
    m_steps.resize(start + std::size_t(m_columns));
    std::uint8_t *const steps = m_steps.data() + start;
    // Only the lines before the first record are none of a record before.
    const bool isInFront = m_records == Records::One || lines() == 1;
    Cell before{kNever, kNever, kNever};
    Step bestBefore = Matched;
    for (int column = 0; column < m_columns; ++column) {
        const Cell &above = m_row[std::size_t(column)];
        const Step bestAbove = best(above);
        Cell &cell = m_next[std::size_t(column)];
        cell[Matched] = column == 0 ? kNever : before[bestBefore] + cost[column - 1];
        cell[Missing] = kNever;
        const int opened = above[bestAbove] + surplus;
        const int extended = above[Surplus] + surplusToo;
        const bool isFurther = extended <= opened;
        cell[Surplus] =
            column == 0 && !isInFront && !isFurther ? kNever : std::min(extended, opened);
        steps[column] = std::uint8_t(coded(Matched, bestBefore) |
                                     coded(Surplus, isFurther ? int(Surplus) : int(bestAbove)));
        before = above;
        bestBefore = bestAbove;
    }
    finishRow(false);
}

/// Passes on the costs of fields that are left out.
void Alignment::passMissing(int from)
{
    std::uint8_t *const steps = m_steps.data() + m_steps.size() - std::size_t(m_columns);
    for (int column = from; column < m_columns; ++column) {
        const Cell &left = m_next[std::size_t(column - 1)];
        Cell &cell = m_next[std::size_t(column)];
        const Step step = left[Surplus] < left[Matched] ? Surplus : Matched;
        const int opened = left[step] + LineCosts::kMissing;
        const int extended = left[Missing] + LineCosts::kMissingToo;
        const int cost = std::min(opened, extended);
        if (cost < cell[Missing]) {
            cell[Missing] = cost;
            const int before = extended <= opened ? int(Missing) : int(step);
            const unsigned mask = kStepMask << (int(Missing) * kBitsPerStep);
            steps[column] = std::uint8_t((steps[column] & ~mask) | coded(Missing, before));
        }
    }
}

void Alignment::finishRow(bool isFirst)
{
    if (isFirst) {
        m_steps.assign(std::size_t(m_columns), 0);
    }
    passMissing(1);
    if (m_records == Records::Many) {
        // The next record begins. A way that leaves out a whole record is never the cheapest.
        std::uint8_t *const steps = m_steps.data() + m_steps.size() - std::size_t(m_columns);
        const Cell &end = m_next.back();
        Cell &begin = m_next.front();
        const Step step = end[Surplus] < end[Matched] ? Surplus : Matched;
        if (end[step] < begin[Matched]) {
            begin[Matched] = end[step];
            begin[Missing] = end[Missing];
            steps[0] = std::uint8_t((steps[0] & ~kStepMask) | coded(Matched, step));
        }
        if (!isFirst) {
            begin[Missing] = end[Missing];
            passMissing(1);
        }
    }
    m_row.swap(m_next);
}

int Alignment::costAtEnd() const
{
    return m_row.back()[best(m_row.back())];
}

int Alignment::cheapestColumn() const
{
    const auto cheapest = std::min_element(m_row.begin(), m_row.end(), [](auto &one, auto &other) {
        return one[best(one)] < other[best(other)];
    });
    return int(cheapest - m_row.begin());
}

int Alignment::leastCost() const
{
    const Cell &cell = m_row[std::size_t(cheapestColumn())];
    return cell[best(cell)];
}

Alignment::Path Alignment::pathToEnd() const
{
    return path(m_columns - 1);
}

Alignment::Path Alignment::cheapestPath() const
{
    return path(cheapestColumn());
}

Alignment::Path Alignment::path(int column) const
{
    Path path;
    int line = lines();
    path.fieldOfLine.resize(std::size_t(line), -1);
    Step step = best(m_row[std::size_t(column)]);
    while (line > 0 || column > 0) {
        const std::uint8_t steps =
            m_steps[std::size_t(line) * std::size_t(m_columns) + std::size_t(column)];
        const auto before = Step((steps >> (int(step) * kBitsPerStep)) & kStepMask);
        if (column == 0 && step != Surplus) {
            path.starts.push_back(line);
            column = m_columns - 1;
            // A run of missing lines goes on across the records.
            step = step == Missing ? Missing : before;
            continue;
        }
        if (step == Matched) {
            path.fieldOfLine[std::size_t(line - 1)] = column - 1;
        }
        line -= step == Missing ? 0 : 1;
        column -= step == Surplus ? 0 : 1;
        step = before;
    }
    std::reverse(path.starts.begin(), path.starts.end());
    return path;
}

} // namespace tarvold::records
