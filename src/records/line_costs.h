#pragma once

#include "records/catalog.h"
#include "records/lines.h"

#include <QByteArrayView>

#include <array>
#include <cstdint>
#include <vector>

/// How well lines suit fields, as costs: what a text is by itself, then what that costs in a field.
namespace tarvold::records {

/// What a line's text is, whatever field it stands in. From `FirstWord` on each value stands for
/// one word of the lists that the screens of all kinds offer.
enum class Sort : std::uint8_t {
    Empty,
    Blank,       ///< "-BLANK-"
    Number,      ///< 1 to 100 in plain digits
    OtherNumber, ///< other digits
    Name,        ///< short, and nothing of the others
    Sentence,    ///< long, or ends as sentences do
    Tagged,      ///< has a tag
    FirstWord,
};

/// Tells the sort of a text.
Sort sortOf(QByteArrayView text);

/// What a line costs where it stands, in eighths of a bit: the less likely, the dearer.
///
/// Costs are logarithms of rough probabilities, so that the cheapest way to read a file is the
/// likeliest. They are estimates of how authors fill in the screens.
class LineCosts
{
public:
    /// The costs of a kind. Lives until the program ends.
    static const LineCosts &of(DataFileKind kind);

    /// The costs of a line for all fields, in their order.
    const std::uint16_t *row(Sort sort) const
    {
        return m_costs.data() + std::size_t(sort) * std::size_t(m_fieldCount);
    }

    /// How odd a line is for a field: 0 for all that its screen offers. Costs have it, too.
    int oddnessOf(int field, Sort sort) const
    {
        return m_oddness[std::size_t(field) * 256 + std::size_t(sort)];
    }

    /// How odd lines are for the fields of a record, one by one; nothing if they are not as many.
    std::optional<int> oddnessOf(const std::vector<Line> &record) const;
    /// The most oddness of a record that is taken as it stands.
    static constexpr int kMostOddness = 12 * 8;

    int fieldCount() const { return m_fieldCount; }

    static constexpr int kBit = 8;
    /// \name A missing line, and each further one beside it.
    /// \{
    static constexpr int kMissing = 15 * kBit;
    static constexpr int kMissingToo = 7 * kBit;
    /// \}
    /// \name A surplus line, and each further one beside it.
    /// \{
    static constexpr int kSurplus = 14 * kBit;
    static constexpr int kSurplusEmpty = 9 * kBit;
    static constexpr int kSurplusToo = 8 * kBit;
    /// \}
    /// What is taken off for a surplus line that is the same as the one before it.
    int doubled(Sort sort) const { return m_doubled[std::size_t(sort)]; }

private:
    explicit LineCosts(const Catalog &catalog);

    /// \name Words that screens start with often stand one below the other, texts hardly ever.
    /// \{
    static constexpr std::uint8_t kDoubledWord = 5 * kBit;
    static constexpr std::uint8_t kDoubledNumber = 6 * kBit;
    static constexpr std::uint8_t kDoubledText = 8 * kBit;
    /// \}

    int m_fieldCount;
    std::vector<std::uint16_t> m_costs;  ///< by sort, then by field
    std::vector<std::uint8_t> m_oddness; ///< by field, then by sort
    std::array<std::uint8_t, 256> m_doubled{};
};

} // namespace tarvold::records
