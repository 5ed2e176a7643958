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
    m_document.apply(m_patches, true);
}

void Change::redo()
{
    m_document.noteMove(m_moved);
    m_document.apply(m_patches, false);
}

void Change::visit(const std::function<void(Entry &)> &visitor) const
{
    for (Patch &patch : m_patches) {
        std::for_each(patch.before.begin(), patch.before.end(), visitor);
        std::for_each(patch.after.begin(), patch.after.end(), visitor);
    }
}

} // namespace tarvold::records
