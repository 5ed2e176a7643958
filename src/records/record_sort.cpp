#include "records/record_sort.h"

#include <QElapsedTimer>

#include <algorithm>
#include <numeric>

namespace tarvold::records {

bool RecordSort::work(qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (int(m_keys.size()) < m_count && timer.elapsed() < milliseconds) {
        const QString text = m_textOf(int(m_keys.size())).toCaseFolded();
        const auto known = m_numbers.constFind(text);
        m_keys.push_back(known != m_numbers.cend() ? *known : int(m_numbers.size()));
        if (known == m_numbers.cend()) {
            m_numbers.insert(text, m_keys.back());
        }
    }
    return int(m_keys.size()) == m_count;
}

std::vector<int> RecordSort::ranks() const
{
    std::vector<const QString *> texts(std::size_t(m_numbers.size()));
    for (auto text = m_numbers.cbegin(); text != m_numbers.cend(); ++text) {
        texts[std::size_t(*text)] = &text.key();
    }
    std::vector<int> sorted(texts.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    std::sort(sorted.begin(), sorted.end(), [&](int one, int other) {
        return *texts[std::size_t(one)] < *texts[std::size_t(other)];
    });
    std::vector<int> ranks(texts.size());
    for (std::size_t rank = 0; rank < sorted.size(); ++rank) {
        ranks[std::size_t(sorted[rank])] = int(rank);
    }
    return ranks;
}

std::vector<int> RecordSort::order(Qt::SortOrder order) const
{
    const std::vector<int> rankOf = ranks();
    std::vector<int> keys(m_keys.size());
    std::transform(m_keys.begin(), m_keys.end(), keys.begin(),
                   [&](int number) { return rankOf[std::size_t(number)]; });
    return sortedBy(keys, order);
}

std::vector<int> sortedBy(const std::vector<int> &keys, Qt::SortOrder order)
{
    std::vector<int> sorted(keys.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    std::stable_sort(sorted.begin(), sorted.end(), [&](int one, int other) {
        const int less = keys[std::size_t(one)];
        const int more = keys[std::size_t(other)];
        return order == Qt::AscendingOrder ? less < more : more < less;
    });
    return sorted;
}

} // namespace tarvold::records
