#pragma once

#include <QString>

#include <vector>

namespace tarvold {

class TextBox;

/// Edits that change several text boxes at once, and their undo and redo.
///
/// Each box keeps its own undo history, and an edit is one step in it. To know that step again,
/// whatever the texts are, an edit puts its number into the history: it inserts the new text with a
/// mark in it and removes the mark at once. Undo and redo come past the text with the mark, which
/// is never shown, saved, signalled or told to assistive technology, which hears of each change as
/// one.
class LinkedEdits
{
public:
    /// Which boxes an undo or redo takes along.
    enum class Bond {
        Leader, ///< from the first box, those whose next step it is; from another one, no other
        Whole,  ///< all or none, from any of them
    };

    /// What an edit does in one box.
    struct Change
    {
        TextBox *box;
        int from;     ///< where the replaced text starts
        int length;   ///< of the replaced text
        QString text; ///< the new text
    };

    /// What an undo or redo did not do.
    struct Outcome
    {
        /// Null; or, where it is all or none, a box with another step, which must be undone first:
        /// then nothing has changed.
        TextBox *blocking = nullptr;
        /// Boxes that were changed since and so were left as they are.
        std::vector<TextBox *> kept;
    };

    /// Makes an edit, as one undo step in each of its boxes. The cursor moves behind the new text.
    /// \param changes of different boxes; the boxes must live as long as their undo is used
    void make(Bond bond, const std::vector<Change> &changes);

    /// Undoes a step in a box. If it is one of these edits, also in the other boxes, as its bond
    /// says. A box that has the focus gets the cursor back where it was.
    /// A box whose undo history was emptied, as setText() does, holds nothing back and is no longer
    /// part of the edit.
    Outcome undo(TextBox &box);

    /// Redoes a step in a box, likewise.
    Outcome redo(TextBox &box);

    /// Forgets a box whose undo history was emptied. The other boxes are no longer bound to it.
    void forget(const TextBox &box);

private:
    /// What an edit did in one box.
    struct Part
    {
        TextBox *box;
        int cursor; ///< before the edit
        QString before;
        QString marked; ///< the new text with the mark in it
        QString after;
    };

    struct Edit
    {
        Bond bond;
        std::vector<Part> parts;
    };

    /// One of the two ways through an undo history.
    struct Way;
    static const Way kUndo;
    static const Way kRedo;

    static Part insertMarked(const Change &change, const QString &mark);
    Outcome go(TextBox &box, const Way &way);
    /// The edit that the next step of a box on this way belongs to; null if none. Takes the step
    /// and goes back.
    Edit *next(TextBox &box, const Way &way);
    /// Whether the step could be of one of these edits, going by the text alone.
    bool mayBeNext(const TextBox &box, const Way &way) const;
    /// The edit whose mark a box shows; null if none.
    Edit *markedIn(const TextBox &box);
    /// Takes a step, and another one if the text then has a mark in it.
    static void stepPastMarks(TextBox &box, const Way &way);
    static void pass(const Part &part, const Way &way, Bond bond);

    std::vector<Edit> m_edits;
    int m_made = 0; ///< how many edits there ever were
};

} // namespace tarvold
