// The code page on systems that have none of their own: Windows-1252 as Windows itself maps it. The
// five undefined bytes (81, 8D, 8F, 90, 9D) map to the control characters of the same number, so
// that all 256 bytes survive a round trip.
// Source of the table: the WHATWG Encoding Standard, index windows-1252.

#include "datafiles/code_page.h"
#include "datafiles/code_page_system.h"

#include <algorithm>
#include <array>

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

} // namespace

std::optional<QByteArray> bytesOf(char32_t character)
{
    const bool isSpecialByte = character >= kFirstSpecial && character <= kLastSpecial;
    if (character <= kLastByte && !isSpecialByte) {
        return QByteArray(1, static_cast<char>(character));
    }
    const auto *found = std::find(kSpecials.begin(), kSpecials.end(), character);
    if (found == kSpecials.end()) {
        return std::nullopt;
    }
    const auto place = static_cast<char32_t>(found - kSpecials.begin());
    return QByteArray(1, static_cast<char>(kFirstSpecial + place));
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
