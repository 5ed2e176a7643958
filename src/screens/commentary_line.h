#pragma once

#include "controls/linked_edits.h"
#include "controls/text_box.h"

#include <QList>

#include <memory>
#include <optional>

namespace tarvold {

/// One of the ten lines of a commentary screen: a text box that can be marked.
///
/// The mark is the background itself, yellow or white; it is stored nowhere else.
///
/// Enter and Down go to the line below, Up to the line above. In the last and the first line they
/// do nothing.
///
/// Ctrl+Shift+Up and Ctrl+Shift+Down swap the text with that of the line above or below; the focus
/// and the cursor go with the text. The swap is undone and redone in both lines at once, from
/// either. If one of them was changed since, that change must be undone first.
///
/// A pasted or dropped text of several lines goes into this line and the empty lines right below
/// it; what they can't hold is joined by spaces in the last of them. Nothing is overwritten. Line
/// breaks before and after the whole text are dropped, as lines copied from a text editor end with
/// one. Text behind the cursor comes behind what was pasted, in the last of these lines, as in a
/// text editor.
///
/// Undo in the line where the paste began also takes it out of the lines below, except those that
/// were changed since, and redo fills them again; in a line below, both change that line alone. But
/// if text behind the cursor was moved, the paste is undone and redone whole, like a swap, so that
/// this text is never lost and never there twice.
class CommentaryLine : public TextBox
{
    Q_OBJECT
public:
    explicit CommentaryLine(QWidget *parent = nullptr);

    /// Whether tags go into this line: whether its background is yellow.
    bool isMarked() const;

    /// Makes the background yellow or white.
    void setMarked(bool marked);

    /// Makes this the line below another one, for keys and pastes. Do so for each line from the top
    /// down, before anything is edited. Both must live equally long.
    void putBelow(CommentaryLine &above);

    /// Clears and whitens the line for a new record; undo can't bring the old text back.
    void startAfresh();

    /// Adds a text at the end of the line, wherever the cursor is. The user can undo it.
    void append(const QString &text);

public slots:
    /// These hide those of QLineEdit. The context menu looks up slots by name and so calls these.
    void undo();
    void redo();

signals:
    /// An edit begins that may change several lines and the focus, signal by signal.
    void editStarted();

    /// That edit is done.
    void editEnded();

    /// A pasted text went into this line and into others below it.
    /// \param lines how many lines, including this one
    void spread(int lines);

    /// The user swapped the text with that of another line, which has the focus now.
    void swapped(const tarvold::CommentaryLine *other);

    /// Nothing was undone, as another line was changed since; that must be undone first.
    void notUndone(const tarvold::CommentaryLine *changed);

    /// A paste was undone, but not in these lines below, which were changed since.
    void partlyUndone(const QList<const tarvold::CommentaryLine *> &kept);

    /// Nothing was redone, as another line was changed since.
    void notRedone(const tarvold::CommentaryLine *changed);

    /// The user pressed a key that opens a list, to see the tag list. Tab would go through other
    /// lines on the way there and mark them.
    void tagsRequested();

    /// The user entered the line, by mouse or keyboard. Not sent when a window becomes active or a
    /// popup closes.
    void entered();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void insertPasted(const QString &text) override;

private:
    /// Fits lines into this one and the empty ones below it.
    QStringList fitted(const QString &text) const;
    /// Inserts lines at the cursor, in place of the selection, and into the lines below.
    void insertLines(QStringList lines);
    /// Swaps the text with that of another line, which gets the focus.
    void swapWith(CommentaryLine &other);
    /// Swaps lines if the key is for that; `false` for any other key.
    bool swapsBy(const QKeyEvent &key);
    /// The line that a key goes to: null at either end. Nothing if the key goes to no line.
    std::optional<CommentaryLine *> lineAfter(const QKeyEvent &key) const;

    std::shared_ptr<LinkedEdits> m_edits = std::make_shared<LinkedEdits>(); ///< of all lines
    CommentaryLine *m_above = nullptr;
    CommentaryLine *m_below = nullptr;
};

} // namespace tarvold
