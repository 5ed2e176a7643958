#pragma once

#include "records/document.h"

#include <QByteArray>
#include <QHash>

#include <optional>
#include <vector>

namespace tarvold::records {

/// Remembers records of a document, and finds them again after the file was read once more: by
/// their bytes, and where those changed by their numbers.
class PlaceKeeper
{
public:
    explicit PlaceKeeper(const Document &document) : m_document(document) {}

    /// Remembers records by their indexes.
    void remember(const std::vector<int> &records);

    /// Where the remembered records are now, in the same order; those that are gone for certain are
    /// left out. Of several, so are those that changed: others may have their numbers by now.
    std::vector<int> found() const;
    /// The same, but each one that changed is found by its number.
    std::vector<int> foundByNumber() const;

private:
    struct Kept
    {
        int index;
        QByteArray bytes; ///< a copy: the document's own are gone after a reload
    };

    std::vector<int> find(bool byNumber) const;
    static std::optional<int> find(const Kept &kept,
                                   const QHash<QByteArray, std::vector<int>> &places);

    const Document &m_document;
    std::vector<Kept> m_kept;
};

} // namespace tarvold::records
