#include "records/line_costs.h"

#include <algorithm>
#include <cmath>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

/// About every other author takes what the screen starts with: one bit.
constexpr double kUsual = 1;

/// What may stand in a field, as far as costs go.
enum class Role { FirstCommentary, Commentary, Text, AppliedText, OpenList, List, Coded, Number };

Role roleOf(const Catalog &catalog, int field)
{
    const KnownField &known = catalog.fields().at(std::size_t(field));
    if (catalog.isCommentary(field)) {
        return field == catalog.firstCommentary() ? Role::FirstCommentary : Role::Commentary;
    }
    switch (known.field->coding) {
    case Coding::FinisherType:
    case Coding::QualityWord:
    case Coding::AlwaysNo:
        return Role::Coded;
    case Coding::Number:
        return Role::Number;
    case Coding::NoOrText:
        return Role::AppliedText;
    case Coding::AsShown:
    case Coding::BlankIfEmpty:
        break;
    }
    if (known.words.isEmpty()) {
        return Role::Text;
    }
    // Numbers, and what the screens themselves mark when it is another word.
    const bool isStrict = known.words.contains("Yes"_L1) || known.words.contains("1"_L1);
    return isStrict ? Role::List : Role::OpenList;
}

/// How odd each sort is in each role, in bits; the last column is for the words of other lists.
// clang-format off
constexpr std::array<std::array<double, 8>, 8> kOddness = {{
    // Empty Blank Number Other Name Sentence Tagged word
    {   6,    14,   7,     5,    2,   0,       0,     5}, // FirstCommentary
    {   4,     0,   7,     5,    2,   0,       0,     5}, // Commentary
    {   6,    30,   6,     5,    0,   6,      12,     6}, // Text
    {   6,    30,   7,     5,    1,   7,      12,     6}, // AppliedText
    {   8,    30,   8,     8,    6,  11,      16,     9}, // OpenList
    {   9,    30,   9,     9,    8,  12,      16,     9}, // List
    {   9,    30,  10,    10,   10,  12,      16,    10}, // Coded
    {   9,    30,   0,     6,    9,  12,      16,    10}, // Number
}};
// clang-format on

/// How odd a text is where the list or the start value of a field does not name it.
double roleOddness(Role role, Sort sort)
{
    return kOddness.at(std::size_t(role)).at(std::min<std::size_t>(std::size_t(sort), 7));
}

} // namespace

const LineCosts &LineCosts::of(DataFileKind kind)
{
    static const std::vector<LineCosts> all = [] {
        std::vector<LineCosts> made;
        made.reserve(kDataFileKinds.size());
        for (const DataFileKindRow &row : kDataFileKinds) {
            made.push_back(LineCosts(Catalog::of(row.kind)));
        }
        return made;
    }();
    return all.at(std::size_t(kind));
}

std::optional<int> LineCosts::oddnessOf(const std::vector<Line> &record) const
{
    if (record.size() != std::size_t(m_fieldCount)) {
        return std::nullopt;
    }
    int oddness = 0;
    for (int field = 0; field < m_fieldCount; ++field) {
        oddness += oddnessOf(field, sortOf(record[std::size_t(field)].text));
    }
    return oddness;
}

LineCosts::LineCosts(const Catalog &catalog)
    : m_fieldCount(catalog.fieldCount())
    , m_surplusBehind((catalog.firstCommentary() < m_fieldCount ? 9 : 11) * kBit)
    , m_costs(kSorts * std::size_t(m_fieldCount))
    , m_oddness(kSorts * std::size_t(m_fieldCount))
{
    m_doubled.fill(kDoubledText);
    m_doubled[std::size_t(Sort::Empty)] = kDoubledWord;
    m_doubled[std::size_t(Sort::Blank)] = kDoubledWord;
    m_doubled[std::size_t(Sort::Number)] = kDoubledNumber;
    for (int field = 0; field < m_fieldCount; ++field) {
        const Role role = roleOf(catalog, field);
        const bool isCode = mayLackLine(catalog.fields().at(std::size_t(field)).field->coding);
        m_missing.push_back(isCode ? kMissingCode : kMissing);
        for (std::size_t sort = 0; sort < kSorts; ++sort) {
            put(field, Sort(sort), roleOddness(role, Sort(sort)), kUsual);
        }
        if (!catalog.isCommentary(field)) {
            putWords(field, catalog.fields().at(std::size_t(field)));
        }
    }
    m_chantCosts = m_costs;
    for (std::size_t sort = 0; sort < kSorts; ++sort) {
        for (int field = catalog.firstCommentary() + 1; field < m_fieldCount; ++field) {
            std::uint16_t &cost =
                m_chantCosts[sort * std::size_t(m_fieldCount) + std::size_t(field)];
            cost = std::min(cost, kChant);
        }
    }
}

void LineCosts::put(int field, Sort sort, double oddness, double rareness)
{
    const auto row = std::size_t(field);
    const auto column = std::size_t(sort);
    m_oddness[row * kSorts + column] = std::uint8_t(std::lround(oddness * kBit));
    m_costs[column * std::size_t(m_fieldCount) + row] =
        std::uint16_t(std::lround((oddness + rareness) * kBit));
}

/// The words of a field's list, and those that its screen starts with or explains.
void LineCosts::putWords(int field, const KnownField &known)
{
    const auto sortOfWord = [](const QString &word) { return sortOf(word.toLatin1()); };
    // Half of the authors choose evenly among the words. All numbers are one.
    const auto words = known.words.contains("1"_L1) ? 1.0 : double(known.words.size());
    for (const QString &word : known.words) {
        put(field, sortOfWord(word), 0, kUsual + std::log2(words));
    }
    const bool isText = known.words.isEmpty() && known.field->coding == Coding::AsShown;
    if (isText && known.newText == "N/A"_L1) {
        // Who or what is not involved by itself may be anybody, or must be nobody.
        put(field, sortOf("Any"), 0, 2 * kUsual);
        put(field, sortOf("None"), 1, 2 * kUsual);
    }
    if (isText && known.newText.isEmpty()) {
        put(field, Sort::Empty, 3, kUsual);
    } else {
        const Sort start = sortOfWord(known.newText);
        put(field, start, 0, kUsual);
        if (start >= Sort::FirstWord) {
            m_doubled[std::size_t(start)] = kDoubledWord;
        }
    }
}

} // namespace tarvold::records
