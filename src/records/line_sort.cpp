#include "records/line_sort.h"

#include "records/catalog.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

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
        return ((key + last * std::uint64_t(31) + std::uint64_t(text.size())) *
                0x9E3779B97F4A7C15ULL) >>
               54;
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

} // namespace tarvold::records
