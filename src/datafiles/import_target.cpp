#include "datafiles/import_target.h"

#include "datafiles/line_reader.h"
#include "datafiles/record.h"
#include "datafiles/stipulation_table.h"
#include "disk/read.h"

namespace tarvold {
namespace {

/// No line holds a line end, so it keeps the two parts of a key apart.
QByteArray keyOf(QByteArrayView matchType, QByteArrayView stipulation)
{
    QByteArray key;
    key.reserve(matchType.size() + stipulation.size() + qsizetype(qstrlen(kLineEnd)));
    return key.append(matchType).append(kLineEnd).append(stipulation);
}

} // namespace

std::optional<FileError> ImportTarget::refresh()
{
    const std::optional<durable::FileState> state = durable::stateOf(m_name);
    if (state && state == m_state) {
        return std::nullopt;
    }
    const bool trusted = state && !durable::mayChangeUnseen(*state);
    const Result<QByteArray> bytes = readFile(m_name);
    if (!bytes) {
        return bytes.error();
    }
    m_state = trusted ? state : std::nullopt;
    index(*bytes);
    return std::nullopt;
}

void ImportTarget::index(QByteArrayView bytes)
{
    m_positions.clear();
    m_cutShort.reset();
    LineReader reader(bytes);
    qsizetype lines = 0;
    while (!reader.atEnd()) {
        const QByteArrayView matchType = reader.readLine();
        ++lines;
        if (reader.atEnd()) {
            break;
        }
        const auto position = static_cast<int>(lines);
        m_positions[keyOf(matchType, reader.readLine())].push_back(position);
        ++lines;
        for (int line = 2; line < StipulationTable::kLinesPerRecord && !reader.atEnd(); ++line) {
            reader.readLine();
            ++lines;
        }
    }
    m_cutShort = whyNotWhole(bytes, lines, StipulationTable::kLinesPerRecord);
}

const std::vector<int> &ImportTarget::positions(QByteArrayView matchType,
                                                QByteArrayView stipulation) const
{
    static const std::vector<int> none;
    const auto found = m_positions.constFind(keyOf(matchType, stipulation));
    return found == m_positions.constEnd() ? none : *found;
}

} // namespace tarvold
