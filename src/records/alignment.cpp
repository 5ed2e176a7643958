#include "records/alignment.h"

#include <algorithm>
#include <limits>

namespace tarvold::records {
namespace {

constexpr int kNever = std::numeric_limits<int>::max() / 4;

/// The steps of a cell are two bits each.
constexpr int kBitsPerStep = 2;
constexpr unsigned kStepMask = (1U << kBitsPerStep) - 1;

/// Stands for the step before a missing line where the whole rest of the record is missing.
constexpr int kCut = 3;

constexpr std::uint8_t coded(int last, int before)
{
    return std::uint8_t(before << (last * kBitsPerStep));
}

} // namespace

Alignment::Alignment(const LineCosts &costs, Records records)
    : m_costs(costs)
    , m_records(records)
    , m_columns(costs.fieldCount() + 1)
    , m_best(std::size_t(m_columns))
    , m_bestStep(std::size_t(m_columns))
{
    clear();
}

void Alignment::clear()
{
    m_steps.assign(std::size_t(m_columns), 0);
    m_cuts.assign(1, {});
    for (std::vector<int> &costs : m_row) {
        costs.assign(std::size_t(m_columns), kNever);
    }
    m_row[Matched].front() = 0;
    passMissing();
}

std::uint8_t *Alignment::lastSteps()
{
    return m_steps.data() + m_steps.size() - std::size_t(m_columns);
}

/// Skips a line at each column.
void Alignment::passSurplus(Sort sort, bool isDoubled)
{
    const int surplus = (sort == Sort::Empty ? LineCosts::kSurplusEmpty : LineCosts::kSurplus) -
                        (isDoubled ? m_costs.doubled(sort) : 0);
    const int behind =
        m_records == Records::One ? m_costs.surplusBehind() : LineCosts::kSurplusBetween;
    const bool isText = sort >= Sort::OtherNumber && sort < Sort::FirstWord;
    const int further = isDoubled && isText ? LineCosts::kSurplusSame : LineCosts::kSurplusToo;
    std::uint8_t *const steps = lastSteps();
    int *const skipped = m_row[Surplus].data();
    const int *const best = m_best.data();
    const std::uint8_t *const bestStep = m_bestStep.data();
    const auto skip = [&](int column, int first) {
        const int opened = best[column] + first;
        const int extended = skipped[column] + further;
        const bool isFurther = extended <= opened;
        skipped[column] = isFurther ? extended : opened;
        steps[column] = coded(Surplus, isFurther ? int(Surplus) : int(bestStep[column]));
    };
    const int last = m_columns - 1;
    for (int column = 0; column < last; ++column) {
        skip(column, surplus);
    }
    skip(last, behind);
}

void Alignment::add(Sort sort, bool isDoubled)
{
    const std::uint16_t *const cost = m_costs.row(sort, isDoubled);
    // Only the lines before the first record are none of a record before.
    const bool isInFront = m_records == Records::One || lines() == 0;
    m_steps.resize(m_steps.size() + std::size_t(m_columns));
    m_cuts.emplace_back();
    passSurplus(sort, isDoubled);
    std::uint8_t *const steps = lastSteps();
    int *const matched = m_row[Matched].data();
    const int *const best = m_best.data();
    const std::uint8_t *const bestStep = m_bestStep.data();
    if (!isInFront && (steps[0] >> (int(Surplus) * kBitsPerStep)) != Surplus) {
        m_row[Surplus].front() = kNever;
    }
    matched[0] = kNever;
    for (int column = 1; column < m_columns; ++column) {
        matched[column] = best[column - 1] + cost[column - 1];
        steps[column] = std::uint8_t(steps[column] | coded(Matched, bestStep[column - 1]));
    }
    passMissing();
}

/// Finishes a row: passes on the costs of fields that are left out, and begins the next record.
void Alignment::passMissing()
{
    int *const missing = m_row[Missing].data();
    missing[0] = kNever;
    passMissingFrom(1, true);
    passRest();
    if (m_records == Records::Many && lines() > 0) {
        // The next record begins. A way that leaves out a whole record is never the cheapest.
        const auto end = std::size_t(m_columns - 1);
        const Step step = m_row[Surplus][end] < m_row[Matched][end] ? Surplus : Matched;
        if (m_row[step][end] < m_row[Matched][0]) {
            m_row[Matched][0] = m_row[step][end];
            lastSteps()[0] = std::uint8_t((lastSteps()[0] & ~kStepMask) | coded(Matched, step));
        }
        missing[0] = missing[end];
        passMissingFrom(1, false);
    }
    chooseBest();
}

/// Leaves out the rest of a record, from wherever that is the cheapest.
void Alignment::passRest()
{
    const int *const matched = m_row[Matched].data();
    const int *const skipped = m_row[Surplus].data();
    int &atEnd = m_row[Missing].back();
    const int limit = atEnd - LineCosts::kRestMissing;
    int least = kNever;
    for (int column = 1; column + 1 < m_columns; ++column) {
        least = std::min(least, std::min(matched[column], skipped[column]));
    }
    if (least >= limit) {
        return;
    }
    int column = 1;
    while (std::min(matched[column], skipped[column]) != least) {
        ++column;
    }
    atEnd = least + LineCosts::kRestMissing;
    m_cuts.back() = {std::uint8_t(column), skipped[column] < matched[column] ? Surplus : Matched};
    std::uint8_t &steps = lastSteps()[m_columns - 1];
    steps = std::uint8_t(steps | coded(Missing, kCut));
}

/// Of several steps it chooses the one that puts a gap as late as possible: what is missing from a
/// commentary is then "-BLANK-" at its end.
void Alignment::chooseBest()
{
    const int *const matched = m_row[Matched].data();
    const int *const missing = m_row[Missing].data();
    const int *const skipped = m_row[Surplus].data();
    int *const best = m_best.data();
    std::uint8_t *const bestStep = m_bestStep.data();
    for (int column = 0; column < m_columns; ++column) {
        const int gap = std::min(missing[column], skipped[column]);
        best[column] = std::min(gap, matched[column]);
        const int step = skipped[column] < missing[column] ? int(Surplus) : int(Missing);
        bestStep[column] = std::uint8_t(matched[column] < gap ? int(Matched) : step);
    }
}

void Alignment::passMissingFrom(int from, bool isFirst)
{
    const int *const matched = m_row[Matched].data();
    const int *const skipped = m_row[Surplus].data();
    int *const missing = m_row[Missing].data();
    std::uint8_t *const steps = lastSteps();
    constexpr unsigned kMask = kStepMask << (int(Missing) * kBitsPerStep);
    for (int column = from; column < m_columns; ++column) {
        const bool isSkipped = skipped[column - 1] < matched[column - 1];
        const int opened =
            (isSkipped ? skipped[column - 1] : matched[column - 1]) + m_costs.missing(column - 1);
        const int extended = missing[column - 1] + LineCosts::kMissingToo;
        const int cost = std::min(opened, extended);
        if (!isFirst && cost >= missing[column]) {
            break;
        }
        missing[column] = cost;
        const int before = extended <= opened ? int(Missing)
                           : isSkipped        ? int(Surplus)
                                              : int(Matched);
        steps[column] = std::uint8_t((steps[column] & ~kMask) | coded(Missing, before));
    }
}

int Alignment::costAtEnd() const
{
    return m_best.back();
}

int Alignment::cheapestColumn() const
{
    return int(std::min_element(m_best.begin(), m_best.end()) - m_best.begin());
}

int Alignment::leastCost() const
{
    return *std::min_element(m_best.begin(), m_best.end());
}

Alignment::Path Alignment::pathToEnd() const
{
    return path(m_columns - 1);
}

Alignment::Path Alignment::cheapestPath() const
{
    return path(cheapestColumn());
}

/// How the cheapest reading came to a step at a line and a column.
unsigned Alignment::codeOf(int line, int column, Step step) const
{
    const std::uint8_t steps =
        m_steps[std::size_t(line) * std::size_t(m_columns) + std::size_t(column)];
    return (steps >> (int(step) * kBitsPerStep)) & kStepMask;
}

Alignment::Path Alignment::path(int column) const
{
    Path path;
    int line = lines();
    path.fieldOfLine.resize(std::size_t(line), -1);
    auto step = Step(m_bestStep[std::size_t(column)]);
    while (line > 0 || column > 0) {
        const unsigned code = codeOf(line, column, step);
        if (step == Missing && code == kCut) {
            const Cut &cut = m_cuts[std::size_t(line)];
            column = cut.column;
            step = Step(cut.step);
            continue;
        }
        const auto before = Step(code);
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
        line -= int(step != Missing);
        column -= int(step != Surplus);
        step = before;
    }
    std::reverse(path.starts.begin(), path.starts.end());
    return path;
}

} // namespace tarvold::records
