#pragma once

#include "records/document.h"

#include <QByteArray>
#include <QHash>

#include <optional>
#include <vector>

namespace tarvold::records {

/// Remembers records of a document, and finds them again after it was reset: by their ids, or if
/// the file was loaded once more by their bytes, and where those changed by their numbers.
class PlaceKeeper
{
public:
    explicit PlaceKeeper(const Document &document) : m_document(document) {}

    /// Remembers records by their indexes.
    void remember(const std::vector<int> &records);

    /// Where the remembered records are now, in the same order; those that are gone for certain are
    /// left out. Of several, so are those that changed: others may have their numbers by now. A
    /// single one that is gone leads to the record that has its place.
    std::vector<int> found() const;
    /// The same, but each one that changed is found by its number, and each one that is gone by the
    /// record that has its place.
    std::vector<int> foundByNumber() const;

    /// Whether the file was not loaded again since, so that records are found by their ids, and one
    /// that was not found is gone.
    bool isSameLoad() const { return m_load == m_document.loads(); }

private:
    struct Kept
    {
        int index;
        int id;
        QByteArray bytes; ///< a copy: the document's own are gone after a reload
    };

    std::vector<int> find(bool byNumber) const;
    std::vector<int> findIds(bool byNumber) const;
    std::vector<int> findBytes(bool byNumber) const;
    bool isInPlace(const Kept &kept) const;
    static std::optional<int> find(const Kept &kept,
                                   const QHash<QByteArray, std::vector<int>> &places);

    const Document &m_document;
    int m_load = -1; ///< in which the records were remembered
    std::vector<Kept> m_kept;
};

} // namespace tarvold::records
