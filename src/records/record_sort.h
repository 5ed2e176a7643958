#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <vector>

namespace tarvold::records {

/// Sorts records by a text of each, without regard to letter case. The texts can be got in parts,
/// as that takes long. Equal texts, which are many, are kept once.
class RecordSort
{
public:
    /// \param textOf a record
    RecordSort(int count, std::function<QString(int)> textOf)
        : m_count(count)
        , m_textOf(std::move(textOf))
    {
    }

    /// Gets some texts.
    /// \return whether all are there
    bool work(qint64 milliseconds);

    /// All records in their order; equal ones in that of the file. After work() is done.
    std::vector<int> order(Qt::SortOrder order) const;

private:
    std::vector<int> ranks() const;

    int m_count;
    std::function<QString(int)> m_textOf;
    QHash<QString, int> m_numbers; ///< of the texts without letter case, as they came
    std::vector<int> m_keys;       ///< the number of each record's text
};

/// The same by numbers that are there at once.
std::vector<int> sortedBy(const std::vector<int> &keys, Qt::SortOrder order);

} // namespace tarvold::records
