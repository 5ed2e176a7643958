// The ANSI code page of the system, by the system's own conversion.

#include "datafiles/code_page.h"
#include "datafiles/code_page_system.h"

#include <array>
#include <windows.h>

namespace tarvold::codepage {
namespace {

constexpr char16_t kNothing = 0xDC00; ///< and the number of a byte stand for one without meaning
constexpr int kMostBytes = 4;         ///< of one character in any ANSI code page
constexpr int kMostUnits = 2;
constexpr auto kAsciiEnd = 0x80U; ///< all ANSI code pages begin with ASCII

/// The text of bytes that are exactly one character; empty if they are not.
QString characterOf(QByteArrayView bytes)
{
    std::array<wchar_t, kMostUnits> units{};
    const int count = ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes.data(),
                                            int(bytes.size()), units.data(), int(units.size()));
    const QString text = QString::fromWCharArray(units.data(), count);
    const bool isOne = count == 1 || (count == 2 && text.at(0).isHighSurrogate());
    return isOne ? text : QString();
}

/// What the system writes for one character; empty if it has nothing for it. Without look-alikes:
/// those of other code pages would be saved as what the author did not type.
QByteArray converted(const QString &character)
{
    // Where UTF-8 is the ANSI code page, everything but half a pair has bytes, and the system
    // allows neither the flag nor the question for a stand-in.
    const bool isUtf8 = ::GetACP() == CP_UTF8;
    std::array<wchar_t, kMostUnits> units{};
    std::array<char, kMostBytes> bytes{};
    BOOL isStandIn = FALSE;
    const int length =
        ::WideCharToMultiByte(CP_ACP, isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS,
                              units.data(), int(character.toWCharArray(units.data())), bytes.data(),
                              int(bytes.size()), nullptr, isUtf8 ? nullptr : &isStandIn);
    return length > 0 && isStandIn == FALSE ? QByteArray(bytes.data(), length) : QByteArray();
}

/// A byte that means no character at its place.
QChar bare(char byte)
{
    return {char16_t(kNothing + static_cast<unsigned char>(byte))};
}

/// The text of the first character of some bytes that survives a round trip, and the bytes of it
/// taken from them; of a single byte that means nothing, if there is none.
QString takeFirst(QByteArrayView &bytes, int mostBytes)
{
    for (int count = 1; count <= mostBytes && count <= bytes.size(); ++count) {
        const QByteArrayView first = bytes.first(count);
        const QString text = characterOf(first);
        if (!text.isEmpty() && converted(text) == first) {
            bytes = bytes.sliced(count);
            return text;
        }
    }
    const QChar text = bare(bytes.front());
    bytes = bytes.sliced(1);
    return text;
}

int bytesOfACharacter()
{
    CPINFO info = {};
    return ::GetCPInfo(CP_ACP, &info) != FALSE ? int(info.MaxCharSize) : kMostBytes;
}

/// What each byte means where a character has only one.
std::array<QChar, 256> singleBytes()
{
    std::array<QChar, 256> characters;
    for (std::size_t code = 0; code < characters.size(); ++code) {
        const char byte = static_cast<char>(code);
        QByteArrayView one(&byte, 1);
        characters.at(code) = takeFirst(one, 1).at(0);
    }
    return characters;
}

} // namespace

std::optional<QByteArray> bytesOf(char32_t character)
{
    if (character < kAsciiEnd) {
        return QByteArray(1, static_cast<char>(character));
    }
    if (character >= kNothing + kAsciiEnd && character <= kNothing + 0xFFU) {
        const QByteArray byte(1, static_cast<char>(character - kNothing));
        const bool isBare = decode(byte).at(0).unicode() == character;
        return isBare ? std::optional(byte) : std::nullopt;
    }
    if (QChar::isSurrogate(character)) {
        return std::nullopt;
    }
    const QString text = QString::fromUcs4(&character, 1);
    const QByteArray bytes = converted(text);
    return !bytes.isEmpty() && decode(bytes) == text ? std::optional(bytes) : std::nullopt;
}

QString decode(QByteArrayView bytes)
{
    static const int mostBytes = bytesOfACharacter();
    static const std::array<QChar, 256> single = singleBytes();
    QString text;
    text.reserve(bytes.size());
    while (!bytes.isEmpty()) {
        const auto byte = static_cast<unsigned char>(bytes.front());
        if (mostBytes == 1 || byte < kAsciiEnd) {
            text.append(single.at(byte));
            bytes = bytes.sliced(1);
        } else {
            text.append(takeFirst(bytes, mostBytes));
        }
    }
    return text;
}

} // namespace tarvold::codepage
