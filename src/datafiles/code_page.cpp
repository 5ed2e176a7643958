#include "datafiles/code_page.h"

#include <QList>

#include <algorithm>
#include <array>
#include <iterator>

namespace tarvold::codepage {
namespace {

constexpr char32_t kFirstSpecial = 0x80;
constexpr char32_t kLastSpecial = 0x9F;
constexpr char32_t kLastByte = 0xFF;

/// The characters of the bytes 80 to 9F; all other bytes are their own code points.
constexpr std::array<char16_t, kLastSpecial - kFirstSpecial + 1> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::optional<char> byteOf(char32_t character)
{
    const bool isSpecialByte = character >= kFirstSpecial && character <= kLastSpecial;
    if (character <= kLastByte && !isSpecialByte) {
        return static_cast<char>(character);
    }
    const auto *found = std::find(kSpecials.begin(), kSpecials.end(), character);
    if (found == kSpecials.end()) {
        return std::nullopt;
    }
    return static_cast<char>(kFirstSpecial + static_cast<char32_t>(found - kSpecials.begin()));
}

/// The code points of a text. Half of a surrogate pair without the other counts as one, where the
/// toolkit would put a stand-in.
QList<char32_t> codePointsOf(const QString &text)
{
    QList<char32_t> characters;
    characters.reserve(text.size());
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar unit = text.at(place);
        const bool isPair = unit.isHighSurrogate() && place + 1 < text.size() &&
                            text.at(place + 1).isLowSurrogate();
        characters.append(isPair ? QChar::surrogateToUcs4(unit, text.at(++place))
                                 : char32_t(unit.unicode()));
    }
    return characters;
}

/// The one character that a letter and a combining mark form, if there is such a character.
std::optional<char32_t> together(char32_t letter, char32_t mark)
{
    // Not by fromUcs4() for both at once, which takes a first character FEFF for a byte order mark.
    QString pair;
    pair.append(QChar::fromUcs4(letter)).append(QChar::fromUcs4(mark));
    const QList<char32_t> formed = codePointsOf(pair.normalized(QString::NormalizationForm_C));
    return formed.size() == 1 ? std::optional(formed.front()) : std::nullopt;
}

/// The code points of a text, with each letter and its combining mark made one where there is such
/// a character. Everything else stays: a full composition would also replace look-alikes.
QList<char32_t> composed(const QString &text)
{
    QList<char32_t> characters;
    for (const char32_t character : codePointsOf(text)) {
        const bool followsLetter = QChar::isMark(character) && !characters.isEmpty();
        const auto one = followsLetter ? together(characters.back(), character) : std::nullopt;
        if (one) {
            characters.back() = *one;
        } else {
            characters.append(character);
        }
    }
    return characters;
}

} // namespace

Encoded encode(const QString &text)
{
    Encoded result;
    result.bytes.reserve(text.size());
    for (const char32_t character : composed(text)) {
        const std::optional<char> byte = byteOf(character);
        if (!byte) {
            return {{}, character};
        }
        result.bytes.append(*byte);
    }
    return result;
}

QString decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isSpecial = code >= kFirstSpecial && code <= kLastSpecial;
        return isSpecial ? QChar(kSpecials.at(code - kFirstSpecial)) : QChar(char16_t(code));
    });
    return text;
}

} // namespace tarvold::codepage
