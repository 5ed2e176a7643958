#pragma once

#include "records/entries.h"

#include <QUndoCommand>

#include <functional>
#include <utility>
#include <vector>

namespace tarvold::records {

class Document;

/// Entries of a document that are replaced by others, by their row. Either as many as before, or
/// one of the two is empty.
struct Patch
{
    int row;
    std::vector<Entry> before;
    std::vector<Entry> after;
};

/// A change of a document as one step to undo.
class Change : public QUndoCommand
{
public:
    /// \param document keeps this command in its undo stack
    /// \param moved the id of a record that is moved; -1: none is
    Change(Document &document, std::vector<Patch> patches, const QString &text, int moved = -1);

    void undo() override;
    void redo() override;

    /// Calls a function with each entry that it holds. The function may let an entry share other
    /// bytes, as the file is about to be replaced, but they must be the same to the user.
    void visit(const std::function<void(Entry &)> &visitor) const;

private:
    Document &m_document;
    mutable std::vector<Patch> m_patches;
    int m_moved;
};

} // namespace tarvold::records
