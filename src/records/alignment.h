#pragma once

#include "records/line_costs.h"
#include "records/lines.h"

#include <array>
#include <optional>
#include <vector>

namespace tarvold::records {

/// Aligns lines with the fields of one record, or of one record after the other, in the cheapest
/// way.
///
/// This is the global alignment of S. B. Needleman and C. D. Wunsch, "A general method applicable
/// to the search for similarities in the amino acid sequence of two proteins" (1970),
/// https://doi.org/10.1016/0022-2836(70)90057-4, with gaps whose further lines cost less than their
/// first, as O. Gotoh's "An improved algorithm for matching biological sequences" (1982),
/// https://doi.org/10.1016/0022-2836(82)90398-9, has them. Where records follow one another, the
/// column behind the last field leads to the one before the first. A step from any column to the
/// one behind the last field stands for a record that was cut short: it costs the same however many
/// lines are missing.
///
/// Time and memory grow with the number of lines times the number of fields: a byte for each pair.
class Alignment
{
public:
    enum class Records { One, Many };

    Alignment(const LineCosts &costs, Records records);

    /// Begins anew, at the start of a record.
    void clear();

    /// Aligns one more line. \param isDoubled whether it is the same as the line before it
    void add(Sort sort, bool isDoubled);

    /// How many lines have been added.
    int lines() const { return int(m_steps.size() / std::size_t(m_columns)) - 1; }

    /// The cost of the cheapest way if all lines end with the end of a record.
    int costAtEnd() const;
    /// The cost of the cheapest way that goes on anywhere.
    int leastCost() const;

    /// What the cheapest way makes of the lines.
    struct Path
    {
        std::vector<int> fieldOfLine; ///< -1: a surplus line
        std::vector<int> starts;      ///< the lines where records but the first one start
    };
    /// The way that ends with the end of a record.
    Path pathToEnd() const;
    /// The cheapest way that goes on anywhere.
    Path cheapestPath() const;

private:
    /// What a way did last: matched a line and a field, left out a field, or skipped a line.
    enum Step : std::uint8_t { Matched, Missing, Surplus, kSteps };
    /// The costs of the cheapest ways to each column, by their last step.
    using Row = std::array<std::vector<int>, kSteps>;

    /// Where a way left out the rest of a record: at a column, behind a step.
    struct Cut
    {
        std::uint8_t column = 0;
        std::uint8_t step = Matched;
    };

    void passSurplus(Sort sort, bool isDoubled);
    void passMissing();
    void passRest();
    void passMissingFrom(int from, bool isFirst);
    void chooseBest();
    unsigned codeOf(int line, int column, Step step) const;
    Path path(int column) const;
    int cheapestColumn() const;
    std::uint8_t *lastSteps();

    const LineCosts &m_costs;
    Records m_records;
    int m_columns; ///< one more than there are fields
    Row m_row;
    std::vector<int> m_best;              ///< the least cost of each column
    std::vector<std::uint8_t> m_bestStep; ///< its last step
    std::vector<std::uint8_t> m_steps; ///< by line, then by column: the step before each last step
    std::vector<Cut> m_cuts;           ///< by line: the cheapest one
};

} // namespace tarvold::records
