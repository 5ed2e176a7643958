#include "records/entries.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace tarvold::records {

QByteArray partOf(const QByteArray &file, qsizetype start, qsizetype size)
{
    // fromRawData() would leave parts behind when the file is read again, such as in a record that
    // a window still shows. So each part owns a share of the file's bytes.
    QByteArray whole = file;
    QByteArray::DataPointer &data = whole.data_ptr();
    QByteArray::DataPointer part(data.d_ptr(), data.data() + start, size);
    part.ref();
    return QByteArray(std::move(part));
}

bool isPartOf(QByteArrayView bytes, const QByteArray &file)
{
    return std::less_equal<>()(file.constBegin(), bytes.begin()) &&
           std::less_equal<>()(bytes.end(), file.constEnd());
}

bool joinsLines(QByteArrayView before, QByteArrayView behind)
{
    return before.endsWith('\r') && (behind.startsWith("\n") || behind.startsWith("\r\n"));
}

bool isEnded(QByteArrayView bytes)
{
    return !bytes.isEmpty() && (bytes.back() == '\n' || bytes.back() == '\r');
}

QByteArray ended(const QByteArray &bytes)
{
    QByteArray whole = bytes;
    return bytes.isEmpty() || isEnded(bytes) ? bytes : whole.append("\r\n");
}

int Entries::shownBefore(int row) const
{
    return int(std::lower_bound(m_shown.begin(), m_shown.end(), row) - m_shown.begin());
}

void Entries::reset(std::vector<Entry> entries)
{
    m_all = std::move(entries);
    m_shown.resize(m_all.size());
    m_shown.shrink_to_fit();
    std::iota(m_shown.begin(), m_shown.end(), 0);
}

void Entries::insert(int row, const std::vector<Entry> &entries)
{
    m_all.insert(m_all.begin() + row, entries.begin(), entries.end());
    const auto behind = m_shown.begin() + shownBefore(row);
    std::for_each(behind, m_shown.end(), [&](int &shown) { shown += int(entries.size()); });
    show(row, int(entries.size()));
}

void Entries::erase(int row, int count)
{
    hide(row, count);
    const auto behind = m_shown.begin() + shownBefore(row);
    std::for_each(behind, m_shown.end(), [count](int &shown) { shown -= count; });
    m_all.erase(m_all.begin() + row, m_all.begin() + row + count);
}

void Entries::show(int row, int count)
{
    std::vector<int> rows(static_cast<std::size_t>(count));
    std::iota(rows.begin(), rows.end(), row);
    m_shown.insert(m_shown.begin() + shownBefore(row), rows.begin(), rows.end());
}

void Entries::hide(int row, int count)
{
    m_shown.erase(m_shown.begin() + shownBefore(row), m_shown.begin() + shownBefore(row + count));
}

void Entries::hideShown(int first, int last)
{
    m_shown.erase(m_shown.begin() + first, m_shown.begin() + last + 1);
}

void Entries::showAll(const std::function<bool(const Entry &)> &isShown)
{
    m_shown.clear();
    for (std::size_t row = 0; row < m_all.size(); ++row) {
        if (isShown(m_all[row])) {
            m_shown.push_back(int(row));
        }
    }
}

} // namespace tarvold::records
