#include "datafiles/code_page.h"

#include "datafiles/code_page_system.h"

#include <QList>

namespace tarvold::codepage {
namespace {

/// The code points of a text. An unpaired surrogate counts as one, where Qt's converters would put
/// a replacement character.
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

/// The single character that a letter and a combining mark form, if there is one.
std::optional<char32_t> together(char32_t letter, char32_t mark)
{
    // Not fromUcs4() for both at once: it takes a leading FEFF for a byte order mark.
    QString pair;
    pair.append(QChar::fromUcs4(letter)).append(QChar::fromUcs4(mark));
    const QList<char32_t> formed = codePointsOf(pair.normalized(QString::NormalizationForm_C));
    return formed.size() == 1 ? std::optional(formed.front()) : std::nullopt;
}

/// The code points of a text. A letter and its combining mark become one character if there is such
/// a character and the code page lacks the mark. Code pages that have the mark, such as those for
/// Vietnamese and UTF-8, keep both. This is not a full Unicode composition (NFC), which would also
/// replace look-alikes.
QList<char32_t> composed(const Page &page, const QString &text)
{
    QList<char32_t> characters;
    for (const char32_t character : codePointsOf(text)) {
        const bool followsLetter = QChar::isMark(character) && !characters.isEmpty();
        const auto one = followsLetter ? together(characters.back(), character) : std::nullopt;
        if (one && !page.bytesOf(character)) {
            characters.back() = *one;
        } else {
            characters.append(character);
        }
    }
    return characters;
}

} // namespace

Encoded encodeBy(const Page &page, const QString &text)
{
    const QList<char32_t> characters = composed(page, text);
    Encoded result;
    result.bytes.reserve(text.size());
    std::optional<char32_t> bare;
    for (const char32_t character : characters) {
        const std::optional<QByteArray> bytes = page.bytesOf(character);
        if (!bytes) {
            return {{}, character};
        }
        if (QChar::isSurrogate(character) && !bare) {
            bare = character;
        }
        result.bytes.append(*bytes);
    }
    // A byte that is invalid by itself may be valid next to others.
    if (bare && codePointsOf(page.decode(result.bytes)) != characters) {
        return {{}, bare};
    }
    return result;
}

Encoded encode(const QString &text)
{
    return encodeBy({bytesOf, decode}, text);
}

} // namespace tarvold::codepage
