#include "records/changes.h"

#include "records/document.h"

#include <algorithm>

namespace tarvold::records {

Change::Change(Document &document, std::vector<Patch> patches, const QString &text, int moved)
    : QUndoCommand(text)
    , m_document(document)
    , m_patches(std::move(patches))
    , m_moved(moved)
{
}

void Change::undo()
{
    m_document.noteMove(m_moved);
    std::for_each(m_patches.rbegin(), m_patches.rend(), [this](const Patch &patch) {
        m_document.apply(patch.row, patch.after, patch.before);
    });
}

void Change::redo()
{
    m_document.noteMove(m_moved);
    for (const Patch &patch : m_patches) {
        m_document.apply(patch.row, patch.before, patch.after);
    }
}

void Change::own(const QByteArray &file) const
{
    const auto copy = [&file](std::vector<Entry> &entries) {
        for (Entry &entry : entries) {
            if (isPartOf(entry.bytes, file)) {
                entry.bytes = QByteArrayView(entry.bytes).toByteArray();
            }
        }
    };
    for (Patch &patch : m_patches) {
        copy(patch.before);
        copy(patch.after);
    }
}

} // namespace tarvold::records
