#include "datafiles/ansi_page.h"

#include <algorithm>
#include <windows.h>

namespace tarvold::codepage {
namespace {

constexpr char16_t kInvalid = 0xDC00; ///< plus a byte stands for that invalid byte
constexpr unsigned kAsciiEnd = 0x80;  ///< all ANSI code pages start with ASCII
constexpr int kMostBytes = 4;         ///< of a character in any ANSI code page
constexpr int kMostUnits = 2;

int bytesOfACharacter(unsigned number)
{
    CPINFO info = {};
    return ::GetCPInfo(number, &info) != FALSE ? int(info.MaxCharSize) : kMostBytes;
}

bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < kAsciiEnd;
}

} // namespace

AnsiPage::AnsiPage(unsigned number) : m_number(number), m_mostBytes(bytesOfACharacter(number))
{
    for (std::size_t code = 0; code < m_single.size(); ++code) {
        const char byte = static_cast<char>(code);
        QByteArrayView one(&byte, 1);
        m_single.at(code) = takeFirst(one).at(0);
    }
}

/// The character that the bytes form; empty if they are not exactly one.
QString AnsiPage::characterOf(QByteArrayView bytes) const
{
    std::array<wchar_t, kMostUnits> units{};
    const int count = ::MultiByteToWideChar(m_number, MB_ERR_INVALID_CHARS, bytes.data(),
                                            int(bytes.size()), units.data(), int(units.size()));
    const QString text = QString::fromWCharArray(units.data(), count);
    return count == 1 || (count == 2 && text.at(0).isHighSurrogate()) ? text : QString();
}

/// The bytes that the system encodes a character to; empty if it has none.
QByteArray AnsiPage::converted(const QString &character) const
{
    // UTF-8 can encode everything but unpaired surrogates. For it the system allows neither the
    // flag against look-alikes nor the check for a replacement character.
    const bool isUtf8 = m_number == CP_UTF8;
    std::array<wchar_t, kMostUnits> units{};
    std::array<char, kMostBytes> bytes{};
    BOOL isReplaced = FALSE;
    const int length =
        ::WideCharToMultiByte(m_number, isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS,
                              units.data(), int(character.toWCharArray(units.data())), bytes.data(),
                              int(bytes.size()), nullptr, isUtf8 ? nullptr : &isReplaced);
    return isReplaced == FALSE ? QByteArray(bytes.data(), length) : QByteArray();
}

/// Takes the first character off the bytes, or the first byte if it starts no character.
QString AnsiPage::takeFirst(QByteArrayView &bytes) const
{
    for (qsizetype count = 1; count <= std::min<qsizetype>(m_mostBytes, bytes.size()); ++count) {
        const QByteArrayView first = bytes.first(count);
        const QString text = characterOf(first);
        if (!text.isEmpty() && converted(text) == first) {
            bytes = bytes.sliced(count);
            return text;
        }
    }
    const auto byte = static_cast<unsigned char>(bytes.front());
    bytes = bytes.sliced(1);
    return QChar(char16_t(kInvalid + byte));
}

std::optional<QByteArray> AnsiPage::bytesOf(char32_t character) const
{
    if (character < kAsciiEnd) {
        return QByteArray(1, static_cast<char>(character));
    }
    if (character > kInvalid && character <= kInvalid + 0xFFU) {
        const auto code = character - kInvalid;
        const bool isBare = m_single.at(code) == QChar(char16_t(character));
        return isBare ? std::optional(QByteArray(1, static_cast<char>(code))) : std::nullopt;
    }
    if (QChar::isSurrogate(character)) {
        return std::nullopt;
    }
    QString text;
    text.append(QChar::fromUcs4(character)); // QString::fromUcs4() takes FEFF for a byte order mark
    const QByteArray bytes = converted(text);
    return !bytes.isEmpty() && decode(bytes) == text ? std::optional(bytes) : std::nullopt;
}

QString AnsiPage::decode(QByteArrayView bytes) const
{
    QString text;
    text.reserve(bytes.size());
    while (!bytes.isEmpty()) {
        if (m_mostBytes == 1 || isAscii(bytes.front())) {
            text.append(m_single.at(static_cast<unsigned char>(bytes.front())));
            bytes = bytes.sliced(1);
        } else {
            text.append(takeFirst(bytes));
        }
    }
    return text;
}

} // namespace tarvold::codepage
