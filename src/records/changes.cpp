#include "records/changes.h"

#include "records/document.h"

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
    m_document.apply(m_patches, true);
}

void Change::redo()
{
    m_document.noteMove(m_moved);
    m_document.apply(m_patches, false);
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
