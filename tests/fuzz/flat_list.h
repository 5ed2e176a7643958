#pragma once

#include "datafiles/stipulation_table.h"

#include <QByteArrayList>

namespace tarvold::testing {

/// The lines of a stipulations file as a plain list, with nothing done to be fast.
class FlatList
{
public:
    explicit FlatList(const QByteArray &file);

    bool isWhole() const { return size() % kStep == 0; }
    int size() const { return int(m_lines.size()); }
    QByteArrayView line(int index) const
    {
        return index < size() ? QByteArrayView(m_lines[index]) : QByteArrayView();
    }
    QByteArray entry(int index) const;
    std::vector<int> records() const;
    std::vector<int> namedRecords() const;
    std::vector<int> find(const QByteArray &entry) const;
    int countKey(QByteArrayView matchType, QByteArrayView name, int except) const;

    void append(const StipulationTable::Record &record);
    void replace(int index, const StipulationTable::Record &record);
    void remove(int index);

    /// The bytes of its file.
    QByteArray file() const;

private:
    static constexpr int kStep = 19;

    QByteArrayList m_lines;
};

} // namespace tarvold::testing
