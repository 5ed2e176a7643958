#include "fuzz/flat_list.h"

namespace tarvold::testing {

FlatList::FlatList(const QByteArray &file)
{
    qsizetype start = 0;
    while (start < file.size()) {
        const qsizetype end = file.indexOf("\r\n", start);
        m_lines << file.mid(start, end < 0 ? -1 : end - start);
        start = end < 0 ? file.size() : end + 2;
    }
}

QByteArray FlatList::entry(int index) const
{
    return QByteArray().append(line(index)).append(" / ").append(line(index + 1));
}

std::vector<int> FlatList::records() const
{
    std::vector<int> indexes;
    for (int index = 0; index < size(); index += kStep) {
        indexes.push_back(index);
    }
    return indexes;
}

std::vector<int> FlatList::namedRecords() const
{
    std::vector<int> indexes;
    for (const int index : records()) {
        if (!line(index).isEmpty()) {
            indexes.push_back(index);
        }
    }
    return indexes;
}

std::vector<int> FlatList::find(const QByteArray &entry) const
{
    std::vector<int> found;
    for (const int index : records()) {
        if (this->entry(index) == entry) {
            found.push_back(index);
        }
    }
    return found;
}

int FlatList::countKey(QByteArrayView matchType, QByteArrayView name, int except) const
{
    int count = 0;
    for (int index = 0; index < size(); ++index) {
        if (index != except && line(index) == matchType && line(index + 1) == name) {
            ++count;
        }
    }
    return count;
}

void FlatList::append(const StipulationTable::Record &record)
{
    for (const std::optional<QByteArray> &line : record) {
        if (line) {
            m_lines << *line;
        }
    }
}

void FlatList::replace(int index, const StipulationTable::Record &record)
{
    while (size() < index + kStep) {
        m_lines << QByteArray();
    }
    for (int offset = 0; offset < kStep; ++offset) {
        if (const auto &line = record.at(std::size_t(offset))) {
            m_lines[index + offset] = *line;
        }
    }
}

void FlatList::remove(int index)
{
    for (int time = 0; time < kStep && index < size(); ++time) {
        m_lines.removeAt(index);
    }
}

QByteArray FlatList::file() const
{
    QByteArray bytes;
    for (const QByteArray &line : m_lines) {
        bytes += line + "\r\n";
    }
    return bytes;
}

} // namespace tarvold::testing
