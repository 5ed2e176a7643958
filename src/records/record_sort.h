#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <vector>

namespace tarvold::records {

/// Sorts records by a text of each, without regard to letter case. It can be done in parts, as it
/// takes long. Equal texts, which are many, are kept once.
class RecordSort
{
public:
    /// \param textOf a record
    RecordSort(int count, std::function<QString(int)> textOf)
        : m_count(count)
        , m_textOf(std::move(textOf))
    {
    }

    /// Does a part of the work.
    /// \return whether all is done
    bool work(qint64 milliseconds);

    /// All records in their order; equal ones in that of the file. After work() is done.
    std::vector<int> order(Qt::SortOrder order) const;

private:
    bool isLess(int one, int other) const
    {
        return *m_texts[std::size_t(one)] < *m_texts[std::size_t(other)];
    }
    void getText();
    void numberTexts();
    void sortRun();
    void mergeSome();

    int m_count;
    std::function<QString(int)> m_textOf;
    QHash<QString, int> m_numbers; ///< of the texts without letter case, as they came
    std::vector<int> m_keys;       ///< the number of each record's text

    // A merge sort from short runs to long ones.
    std::vector<const QString *> m_texts; ///< by number; once all are there
    std::vector<int> m_sorted;            ///< numbers, in sorted runs of `m_width` each
    std::vector<int> m_merged;            ///< the same in longer runs, as far as they are merged
    std::size_t m_width = 0;              ///< 0: no runs yet
    std::size_t m_from = 0;  ///< the run that is sorted, or the first of the two merged
    std::size_t m_left = 0;  ///< what is merged next of the first run
    std::size_t m_right = 0; ///< and of the second
};

/// The same by numbers that are there at once.
std::vector<int> sortedBy(const std::vector<int> &keys, Qt::SortOrder order);

} // namespace tarvold::records
