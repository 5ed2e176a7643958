#include "datafiles/import_table.h"

#include "datafiles/line_reader.h"
#include "datafiles/record.h"

#include <cstring>
#include <utility>

namespace tarvold {

Result<ImportTable> ImportTable::of(QByteArray bytes, int linesPerRecord)
{
    ImportTable table;
    table.m_bytes = std::move(bytes);
    const qsizetype given = table.m_bytes.size();
    if (given > 0 && !table.m_bytes.endsWith(kLineEnd)) {
        table.m_bytes.append(kLineEnd); // the last line counts without its end, and gets one
    }
    qsizetype lines = 0;
    for (LineReader reader(table.m_bytes); !reader.atEnd(); ++lines) {
        const char *const line = reader.readLine().data();
        if (lines % linesPerRecord == 0) {
            table.m_starts.push_back(line - table.m_bytes.constData());
        }
    }
    table.m_skipped.assign(table.m_starts.size(), false);
    if (auto error =
            whyNotWhole(QByteArrayView(table.m_bytes).first(given), lines, linesPerRecord)) {
        return tl::unexpected(*error);
    }
    return table;
}

QByteArrayView ImportTable::item(int list, int record) const
{
    const auto index = static_cast<std::size_t>(record);
    if (list == 0 && m_skipped[index]) {
        return {};
    }
    LineReader reader(QByteArrayView(m_bytes).sliced(m_starts[index]));
    for (int passed = 0; passed < list; ++passed) {
        reader.readLine();
    }
    return reader.readLine();
}

void ImportTable::skip(int record)
{
    m_skipped[static_cast<std::size_t>(record)] = true;
}

QByteArray ImportTable::takeWritten()
{
    // The records move together inside the bytes: a large file is not copied.
    char *const bytes = m_bytes.data();
    qsizetype size = 0;
    for (int record = 0; record < recordCount(); ++record) {
        if (item(0, record).isEmpty()) {
            continue;
        }
        const auto index = static_cast<std::size_t>(record);
        const qsizetype end = index + 1 < m_starts.size() ? m_starts[index + 1] : m_bytes.size();
        const qsizetype length = end - m_starts[index];
        std::memmove(bytes + size, bytes + m_starts[index], static_cast<std::size_t>(length));
        size += length;
    }
    m_bytes.truncate(size);
    m_starts.clear();
    m_skipped.clear();
    return std::exchange(m_bytes, {});
}

} // namespace tarvold
