#include "records/place_keeper.h"

#include <algorithm>
#include <cstdlib>

namespace tarvold::records {

void PlaceKeeper::remember(const std::vector<int> &records)
{
    m_load = m_document.loads();
    m_kept.clear();
    for (const int index : records) {
        const auto &[bytes, id, isDeleted] = m_document.entry(index);
        m_kept.push_back({index, id, QByteArray(bytes.constData(), bytes.size())});
    }
}

std::vector<int> PlaceKeeper::found() const
{
    return find(m_kept.size() == 1);
}

std::vector<int> PlaceKeeper::foundByNumber() const
{
    return find(true);
}

std::vector<int> PlaceKeeper::find(bool byNumber) const
{
    return isSameLoad() ? findIds(byNumber) : findBytes(byNumber);
}

/// Another record may have the same bytes as one that is gone, so these tell nothing.
std::vector<int> PlaceKeeper::findIds(bool byNumber) const
{
    const std::vector<int> indexes = m_document.indexesById();
    std::vector<int> all;
    for (const Kept &kept : m_kept) {
        const int index = indexes.at(std::size_t(kept.id));
        const auto behind = index < 0 && byNumber ? m_document.indexFrom(kept.id) : std::nullopt;
        if (index >= 0 || behind) {
            all.push_back(behind.value_or(index));
        }
    }
    return all;
}

std::vector<int> PlaceKeeper::findBytes(bool byNumber) const
{
    QHash<QByteArray, std::vector<int>> places;
    for (const Kept &kept : m_kept) {
        if (!isInPlace(kept)) { // mostly it is, and to look through a large file takes long
            places.insert(kept.bytes, {});
        }
    }
    for (int index = 0; index < m_document.count() && !places.isEmpty(); ++index) {
        const auto place = places.find(m_document.entry(index).bytes);
        if (place != places.end()) {
            place->push_back(index);
        }
    }
    std::vector<int> all;
    for (const Kept &kept : m_kept) {
        const auto index = isInPlace(kept) ? kept.index : find(kept, places);
        if (index) {
            all.push_back(*index);
        } else if (byNumber && kept.index < m_document.count()) {
            all.push_back(kept.index);
        }
    }
    return all;
}

bool PlaceKeeper::isInPlace(const Kept &kept) const
{
    return kept.index < m_document.count() && m_document.entry(kept.index).bytes == kept.bytes;
}

std::optional<int> PlaceKeeper::find(const Kept &kept,
                                     const QHash<QByteArray, std::vector<int>> &places)
{
    const std::vector<int> same = places.value(kept.bytes);
    if (same.empty()) {
        return std::nullopt;
    }
    return *std::min_element(same.begin(), same.end(), [&kept](int one, int other) {
        return std::abs(one - kept.index) < std::abs(other - kept.index);
    });
}

} // namespace tarvold::records
