#include "records/lines.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace tarvold::records {
namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101ULL;
constexpr std::uint64_t kHighs = kOnes * 0x80;

/// Has a high bit for the first byte that is zero; those behind it may be wrong.
constexpr std::uint64_t zeroBytes(std::uint64_t bytes)
{
    return (bytes - kOnes) & ~bytes & kHighs;
}

/// The first CR or LF; `end` if there is none. Eight bytes at a time: half of the lines of a data
/// file are so short that a call of memchr() would take most of the time.
const char *findEnd(const char *from, const char *end)
{
    if constexpr (std::endian::native == std::endian::little) {
        for (; end - from >= 8; from += 8) {
            std::uint64_t bytes = 0;
            std::memcpy(&bytes, from, sizeof bytes);
            const std::uint64_t found =
                zeroBytes(bytes ^ (kOnes * '\r')) | zeroBytes(bytes ^ (kOnes * '\n'));
            if (found != 0) {
                return from + (std::countr_zero(found) / 8);
            }
        }
    }
    while (from != end && *from != '\r' && *from != '\n') {
        ++from;
    }
    return from;
}

} // namespace

Line AnyLineReader::readLine()
{
    const char *const start = m_rest.data();
    const char *const end = start + m_rest.size();
    const char *const found = findEnd(start, end);
    const qsizetype left = end - found;
    qsizetype length = left == 0 ? 0 : 1;
    LineEnd lineEnd = left == 0 ? LineEnd::None : *found == '\n' ? LineEnd::Lf : LineEnd::Cr;
    if (lineEnd == LineEnd::Cr && left > 1 && found[1] == '\n') {
        length = 2;
        lineEnd = LineEnd::CrLf;
    } else if (lineEnd == LineEnd::Cr && left > 2 && found[1] == '\r' && found[2] == '\n') {
        length = 3;
    }
    m_rest = QByteArrayView(found + length, end);
    return {QByteArrayView(start, found), lineEnd};
}

std::vector<Line> linesOf(QByteArrayView record)
{
    std::vector<Line> lines;
    for (AnyLineReader reader(record); !reader.atEnd();) {
        lines.push_back(reader.readLine());
    }
    return lines;
}

} // namespace tarvold::records
