#pragma once

#include "records/catalog.h"
#include "records/line_sort.h"
#include "records/lines.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tarvold::records {

/// What a line costs where it stands, in eighths of a bit: the less likely, the dearer.
///
/// Costs are logarithms of rough probabilities, so that the cheapest way to read a file is the
/// likeliest. They are estimates of how authors fill in the screens.
class LineCosts
{
public:
    static constexpr int kBit = 8;

    /// The costs of a kind. Lives until the program ends.
    static const LineCosts &of(DataFileKind kind);

    /// The costs of a line for all fields, in their order.
    /// \param isDoubled whether it is the same as the one before it. In a commentary it costs
    /// little then, whatever it is: the crowd chants
    const std::uint16_t *row(Sort sort, bool isDoubled = false) const
    {
        const std::vector<std::uint16_t> &costs = isDoubled ? m_chantCosts : m_costs;
        return costs.data() + std::size_t(sort) * std::size_t(m_fieldCount);
    }

    /// How odd a line is for a field: 0 for all that its screen offers. Costs have it, too.
    int oddnessOf(int field, Sort sort) const
    {
        return m_oddness[std::size_t(field) * kSorts + std::size_t(sort)];
    }

    /// How odd lines are for the fields of a record, one by one; nothing if they are not as many.
    std::optional<int> oddnessOf(const std::vector<Line> &record) const;
    /// The most oddness of a record that is taken as it stands.
    static constexpr int kMostOddness = 12 * kBit;

    int fieldCount() const { return m_fieldCount; }

    /// \name A missing line, and each further one beside it.
    /// \{
    int missing(int field) const { return m_missing[std::size_t(field)]; }
    static constexpr int kMissingToo = 7 * kBit;
    /// \}
    /// All lines of a record from some field on, whose writing was interrupted.
    static constexpr int kRestMissing = 20 * kBit;
    /// \name A surplus line, and each further one beside it.
    /// \{
    static constexpr int kSurplus = 14 * kBit;
    static constexpr int kSurplusEmpty = 9 * kBit;
    static constexpr int kSurplusToo = 8 * kBit;
    static constexpr int kSurplusSame = 3 * kBit; ///< if it is the same text as the one before it
    /// \}
    /// A surplus line behind the last one of a record; and the same of a record by itself, where a
    /// text that is strange there must not count as commentary.
    static constexpr int kSurplusBetween = 11 * kBit;
    int surplusBehind() const { return m_surplusBehind; }
    /// What is taken off for a surplus line that is the same as the one before it. Not for a
    /// further word: records have many that are the same, and each would be cheap to leave out.
    int doubled(Sort sort) const { return m_doubled[std::size_t(sort)]; }

private:
    /// How many sorts there may be.
    static constexpr std::size_t kSorts = 256;

    explicit LineCosts(const Catalog &catalog);
    void put(int field, Sort sort, double oddness, double rareness);
    void putWords(int field, const KnownField &known);

    /// \name Words that screens start with often stand one below the other, texts hardly ever.
    /// \{
    static constexpr std::uint8_t kDoubledWord = 5 * kBit;
    static constexpr std::uint8_t kDoubledNumber = 6 * kBit;
    static constexpr std::uint8_t kDoubledText = 8 * kBit;
    /// \}
    /// The most that a commentary's line costs which is the same as the one before it.
    static constexpr std::uint16_t kChant = 3 * kBit;

    /// \name A missing line. The screens write none for a finisher type or a quality that is not in
    /// its list.
    /// \{
    static constexpr int kMissing = 15 * kBit;
    static constexpr int kMissingCode = 13 * kBit;
    /// \}

    int m_fieldCount;
    int m_surplusBehind;
    std::vector<int> m_missing;              ///< by field
    std::vector<std::uint16_t> m_costs;      ///< by sort, then by field
    std::vector<std::uint16_t> m_chantCosts; ///< the same of lines that are doubled
    std::vector<std::uint8_t> m_oddness;     ///< by field, then by sort
    std::array<std::uint8_t, kSorts> m_doubled{};
};

} // namespace tarvold::records
