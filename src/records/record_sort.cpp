#include "records/record_sort.h"

#include <QElapsedTimer>

#include <algorithm>
#include <numeric>

namespace tarvold::records {

bool RecordSort::work(qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        if (int(m_keys.size()) < m_count) {
            getText();
        } else if (m_texts.size() < std::size_t(m_numbers.size())) {
            numberTexts();
        } else if (m_width == 0) {
            sortRun();
        } else if (m_width < m_sorted.size()) {
            mergeSome();
        } else {
            return true;
        }
    }
    return false;
}

void RecordSort::getText()
{
    const QString text = m_textOf(int(m_keys.size())).toCaseFolded();
    const auto known = m_numbers.constFind(text);
    m_keys.push_back(known != m_numbers.cend() ? *known : int(m_numbers.size()));
    if (known == m_numbers.cend()) {
        m_numbers.insert(text, m_keys.back());
    }
}

void RecordSort::numberTexts()
{
    m_texts.resize(std::size_t(m_numbers.size()));
    for (auto text = m_numbers.cbegin(); text != m_numbers.cend(); ++text) {
        m_texts[std::size_t(*text)] = &text.key();
    }
    m_sorted.resize(m_texts.size());
    std::iota(m_sorted.begin(), m_sorted.end(), 0);
    m_merged.resize(m_sorted.size());
}

/// Sorts the next run.
void RecordSort::sortRun()
{
    constexpr std::size_t kRun = 256;
    const std::size_t to = std::min(m_from + kRun, m_sorted.size());
    std::sort(m_sorted.begin() + std::ptrdiff_t(m_from), m_sorted.begin() + std::ptrdiff_t(to),
              [this](int one, int other) { return isLess(one, other); });
    m_from = to;
    if (m_from == m_sorted.size()) {
        m_width = kRun;
        m_from = 0;
    }
}

/// Merges a part of the two runs at hand; behind the last ones, runs twice as long are next.
void RecordSort::mergeSome()
{
    constexpr std::size_t kPart = 256;
    const std::size_t middle = std::min(m_from + m_width, m_sorted.size());
    const std::size_t end = std::min(middle + m_width, m_sorted.size());
    m_right = std::max(m_right, middle);
    for (std::size_t merged = 0; merged < kPart && (m_left < middle || m_right < end); ++merged) {
        const bool isRight =
            m_left == middle || (m_right < end && isLess(m_sorted[m_right], m_sorted[m_left]));
        const std::size_t place = m_left + m_right - middle;
        m_merged[place] = m_sorted[isRight ? m_right++ : m_left++];
    }
    if (m_left < middle || m_right < end) {
        return;
    }
    m_from = end;
    if (m_from == m_sorted.size()) {
        m_sorted.swap(m_merged);
        m_width *= 2;
        m_from = 0;
    }
    m_left = m_from;
    m_right = m_from;
}

std::vector<int> RecordSort::order(Qt::SortOrder order) const
{
    const std::size_t texts = m_sorted.size();
    std::vector<std::size_t> ranks(texts); // of the texts
    for (std::size_t rank = 0; rank < texts; ++rank) {
        ranks[std::size_t(m_sorted[rank])] = order == Qt::AscendingOrder ? rank : texts - 1 - rank;
    }
    std::vector<std::size_t> places(texts + 1); // where the records with each rank begin
    for (const int key : m_keys) {
        ++places[ranks[std::size_t(key)] + 1];
    }
    std::partial_sum(places.begin(), places.end(), places.begin());
    std::vector<int> records(m_keys.size());
    for (std::size_t record = 0; record < m_keys.size(); ++record) {
        records[places[ranks[std::size_t(m_keys[record])]]++] = int(record);
    }
    return records;
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
