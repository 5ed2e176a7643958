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

    /// The sort of a word; `Name` if it is none. \param text not empty
    Sort find(QByteArrayView text) const
    {
        const std::uint64_t key = keyOf(text);
        for (std::size_t place = placeOf(key, text);; place = (place + 1) % kPlaces) {
            const Place &found = m_places[place];
            if (found.size == 0 ||
                (found.key == key && found.size == text.size() &&
                 std::memcmp(found.word, text.data(), std::size_t(text.size())) == 0)) {
                return found.sort;
            }
        }
    }

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

    struct Place
    {
        const char *word = nullptr;
        qsizetype size = 0; ///< 0: no word
        std::uint64_t key = 0;
        Sort sort = Sort::Name;
    };

    void add(const QByteArray &word)
    {
        const bool isNumber = word.front() >= '0' && word.front() <= '9' && word.size() <= 3;
        if (isNumber || word == kBlankLine || find(word) != Sort::Name) {
            return;
        }
        const std::size_t sort = std::size_t(Sort::FirstWord) + m_words.size();
        Q_ASSERT(sort < 256);
        m_words.push_back(word);
        m_longest = std::max(m_longest, word.size());
        std::size_t place = placeOf(keyOf(word), word);
        while (m_places[place].size != 0) {
            place = (place + 1) % kPlaces;
        }
        m_places[place] = {m_words.back().constData(), word.size(), keyOf(word), Sort(sort)};
    }

    template <class Number>
    static std::uint64_t load(const char *from)
    {
        Number number = 0;
        std::memcpy(&number, from, sizeof number);
        return number;
    }

    /// Eight bytes of a text, or all if it has fewer.
    static std::uint64_t keyOf(QByteArrayView text)
    {
        const char *const start = text.data();
        const auto size = std::size_t(text.size());
        if (size >= 8) {
            return load<std::uint64_t>(start);
        }
        if (size >= 4) {
            return load<std::uint32_t>(start) | load<std::uint32_t>(start + size - 4) << 32;
        }
        return load<std::uint8_t>(start) | load<std::uint8_t>(start + (size / 2)) << 8 |
               load<std::uint8_t>(start + size - 1) << 16;
    }

    static std::size_t placeOf(std::uint64_t key, QByteArrayView text)
    {
        const auto last = std::uint8_t(text.back());
        return ((key + last * 31U + std::uint64_t(text.size())) * 0x9E3779B97F4A7C15ULL) >> 54;
    }

    std::vector<QByteArray> m_words;
    std::array<Place, kPlaces> m_places{};
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
    const char last = text.back();
    const bool isEnded = last == '.' || last == '!' || last == '?' || last == '"';
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
