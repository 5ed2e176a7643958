#include "datafiles/line_reader.h"

#include "datafiles/record.h"

#include <utility>

namespace tarvold {

QByteArrayView LineReader::readLine()
{
    const QByteArrayView lineEnd(kLineEnd);
    const qsizetype length = m_rest.indexOf(lineEnd);
    if (length < 0) {
        return std::exchange(m_rest, {});
    }
    const QByteArrayView line = m_rest.first(length);
    m_rest = m_rest.sliced(length + lineEnd.size());
    return line;
}

} // namespace tarvold
