#include "datafiles/code_page.h"

#include "datafiles/code_page_system.h"

#include <QList>

namespace tarvold::codepage {
namespace {

/// The code points of a text. Half of a surrogate pair without the other counts as one, where the
/// converters of Qt put a stand-in.
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
/// a character and the code page lacks the mark. Where it has the mark, as those of Vietnamese and
/// of UTF-8 do, both may stand in a file, and stay. Everything else stays, too: a full composition
/// would also replace look-alikes.
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
    // A byte that means nothing by itself may mean something beside others.
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
