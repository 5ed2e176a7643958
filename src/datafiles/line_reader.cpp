#include "datafiles/line_reader.h"

#include <cstddef>
#include <cstring>
#include <utility>

namespace tarvold {

QByteArrayView LineReader::readLine()
{
    const char *const start = m_rest.data();
    const char *const end = start + m_rest.size();
    const char *from = start;
    while (from != end) {
        const auto *found =
            static_cast<const char *>(std::memchr(from, '\r', std::size_t(end - from)));
        if (found == nullptr || found + 1 == end) {
            break;
        }
        if (found[1] == '\n') {
            m_rest = QByteArrayView(found + 2, end);
            return {start, found};
        }
        from = found + 1; // a lone CR
    }
    return std::exchange(m_rest, {});
}

} // namespace tarvold
