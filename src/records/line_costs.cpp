#include "records/line_costs.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tarvold::records {
namespace {

/// All words of all lists, found by a hash of their length and first bytes.
class Vocabulary
{
public:
    static const Vocabulary &all()
    {
        static const Vocabulary vocabulary;
        return vocabulary;
    }

    /// The sort of a word; `Name` if it is none.
    Sort find(QByteArrayView text) const
    {
        for (std::size_t place = hash(text);; place = (place + 1) % kPlaces) {
            const std::uint8_t index = m_places[place];
            if (index == 0) {
                return Sort::Name;
            }
            if (QByteArrayView(m_words[index - 1U]) == text) {
                return sortAt(index - 1U);
            }
        }
    }

    const std::vector<QByteArray> &words() const { return m_words; }

    static Sort sortAt(std::size_t index) { return Sort(std::size_t(Sort::FirstWord) + index); }

    qsizetype longest() const { return m_longest; }

private:
    static constexpr std::size_t kPlaces = 1024;

    Vocabulary()
    {
        for (const DataFileKindRow &row : kDataFileKinds) {
            for (const KnownField &field : Catalog::of(row.kind).fields()) {
                for (const QString &word : field.words) {
                    add(word.toLatin1());
                }
                if (!field.newText.isEmpty()) {
                    add(field.newText.toLatin1());
                }
            }
        }
        add("None");
    }

    void add(const QByteArray &word)
    {
        const bool isNumber = word.front() >= '0' && word.front() <= '9' && word.size() <= 3;
        if (isNumber || word == kBlankLine || find(word) != Sort::Name) {
            return;
        }
        m_words.push_back(word);
        m_longest = std::max(m_longest, word.size());
        Q_ASSERT(m_words.size() + std::size_t(Sort::FirstWord) < 256);
        std::size_t place = hash(word);
        while (m_places[place] != 0) {
            place = (place + 1) % kPlaces;
        }
        m_places[place] = std::uint8_t(m_words.size());
    }

    static std::size_t hash(QByteArrayView text)
    {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text.data(), std::size_t(std::min<qsizetype>(text.size(), 8)));
        const auto last = std::uint8_t(text.back());
        return ((bytes + last * 31U + std::uint64_t(text.size())) * 0x9E3779B97F4A7C15ULL) >> 54;
    }

    std::vector<QByteArray> m_words;
    std::array<std::uint8_t, kPlaces> m_places{};
    qsizetype m_longest = 0;
};

constexpr qsizetype kLongName = 40;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

Sort sortOfNumber(QByteArrayView digits)
{
    const bool isPlain = digits.front() != '0' && digits.size() <= 3;
    return isPlain && (digits.size() < 3 || digits == "100") ? Sort::Number : Sort::OtherNumber;
}

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
    {   6,    30,   6,     5,    0,   4,      12,     6}, // Text
    {   6,    30,   7,     5,    1,   5,      12,     6}, // AppliedText
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

Sort sortOf(QByteArrayView text)
{
    if (text.isEmpty()) {
        return Sort::Empty;
    }
    const Vocabulary &vocabulary = Vocabulary::all();
    if (text.size() <= vocabulary.longest()) {
        if (text == QByteArrayView(kBlankLine)) {
            return Sort::Blank;
        }
        if (isDigit(text.front()) && std::all_of(text.begin(), text.end(), isDigit)) {
            return sortOfNumber(text);
        }
        if (const Sort word = vocabulary.find(text); word != Sort::Name) {
            return word;
        }
    }
    if (std::memchr(text.data(), '<', std::size_t(text.size())) != nullptr) {
        return Sort::Tagged;
    }
    const bool isEnded = std::strchr(".!?\"", text.back()) != nullptr && text.back() != '\0';
    return isEnded || text.size() > kLongName ? Sort::Sentence : Sort::Name;
}

const LineCosts &LineCosts::of(DataFileKind kind)
{
    static const std::vector<LineCosts> all = [] {
        std::vector<LineCosts> made;
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
    , m_costs(256 * std::size_t(m_fieldCount))
    , m_oddness(256 * std::size_t(m_fieldCount))
{
    m_doubled.fill(kDoubledText);
    m_doubled[std::size_t(Sort::Empty)] = kDoubledWord;
    m_doubled[std::size_t(Sort::Blank)] = kDoubledWord;
    m_doubled[std::size_t(Sort::Number)] = kDoubledNumber;
    for (int field = 0; field < m_fieldCount; ++field) {
        const KnownField &known = catalog.fields().at(std::size_t(field));
        const Role role = roleOf(catalog, field);
        const auto put = [&](Sort sort, double oddness, double usual) {
            const auto odd = std::size_t(field) * 256 + std::size_t(sort);
            m_oddness[odd] = std::uint8_t(std::lround(oddness * kBit));
            m_costs[std::size_t(sort) * std::size_t(m_fieldCount) + std::size_t(field)] =
                std::uint16_t(std::lround((oddness + usual) * kBit));
        };
        for (std::size_t sort = 0; sort < 256; ++sort) {
            // About every other author takes what the screen starts with.
            put(Sort(sort), roleOddness(role, Sort(sort)), 1);
        }
        // A word of the list: half of the authors choose evenly among them. All numbers are one.
        const bool areNumbers = known.words.contains("1"_L1);
        const double rare =
            areNumbers ? 1 : 1 + std::log2(std::max(1.0, double(known.words.size())));
        const auto sortOfWord = [](const QString &word) { return sortOf(word.toLatin1()); };
        for (const QString &word : known.words) {
            put(sortOfWord(word), 0, rare);
        }
        if (role == Role::Text && known.newText == "N/A"_L1) {
            // Who or what is not involved by itself may be anybody, or must be nobody.
            put(sortOf("Any"), 0, 2);
            put(sortOf("None"), 1, 2);
        }
        if (!catalog.isCommentary(field) && !known.newText.isEmpty()) {
            put(sortOfWord(known.newText), 0, 1);
            if (sortOfWord(known.newText) >= Sort::FirstWord) {
                m_doubled[std::size_t(sortOfWord(known.newText))] = kDoubledWord;
            }
        }
        if (role == Role::Text && known.newText.isEmpty()) {
            put(Sort::Empty, 3, 1);
        }
    }
}

} // namespace tarvold::records
