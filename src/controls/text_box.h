#pragma once

#include <QClipboard>
#include <QLineEdit>

#include <optional>

namespace tarvold {

/// The single-line text box of all screens.
///
/// Typed and pasted text is kept as it is, at any length, except for line breaks: a field is one
/// line of a file, so each line break becomes a space.
///
/// A box without the focus shows the beginning of its text; the cursor is back in its place when
/// the focus comes back. Text that doesn't fit is shown in a tooltip, instead of the box's own
/// tooltip if it has one.
class TextBox : public QLineEdit
{
    Q_OBJECT
public:
    /// What the first click does in a box whose text is just a fill word, "Any", "N/A" or "None":
    /// one that brings the focus, or that finds the word selected, as when the screen has just
    /// appeared or another window was in use. Whoever types then wants to replace the word, not to
    /// add to it.
    enum class FirstClick {
        SelectsFillWord, ///< selects the word, or pastes over it; a second one places the cursor
        PlacesCursor     ///< places the cursor, as for any other text
    };

    explicit TextBox(QWidget *parent = nullptr,
                     FirstClick firstClick = FirstClick::SelectsFillWord);

    /// Replaces the whole text as one undo step; the cursor moves to its end. Also works in a
    /// read-only box.
    void replaceAsOneStep(const QString &text);

    /// Separates what is typed or inserted next from what was before: Ctrl+Z undoes it alone.
    void endUndoStep();

    /// Makes what an input method is composing part of the text.
    void endComposition();

    /// Selects a fill word if a click has just brought the focus here but not into the text, such
    /// as one on the arrow of a list. What is typed then replaces the word all the same.
    void selectAfterClickBeside();

    /// Selects the text if it is a fill word.
    void selectFillWord();

    /// Scrolls to the beginning; the cursor is back in its place when the focus comes back.
    void showBeginning();

    /// Sets what the tooltip tells about the text. It comes below a text that doesn't fit into the
    /// box, and instead of that text if it contains it.
    void setNote(const QString &note);

    /// Shows the text in a tooltip if it doesn't fit into the box, and the note if there is one.
    /// \param place the position of the mouse on the screen
    /// \return whether the tooltip is shown
    bool showWholeText(const QPoint &place);

public slots:
    /// Hides QLineEdit::paste(). The context menu looks up slots by name and so calls this one.
    void paste();

    /// Hides QLineEdit::redo(), likewise. The cursor is behind what was redone, nothing is
    /// selected, and what is typed next is an undo step of its own. Qt may select what the next
    /// step would replace, or put the cursor behind the end, and then typing on would damage the
    /// text.
    void redo();

signals:
    /// The focus went to another control of the window, so the user has finished typing.
    void left();

    /// What the text is now is what the user means: the box was left, its window was hidden, or
    /// keys pressed a button, which doesn't take the focus. May come more than once.
    void typingEnded();

protected:
    /// Splits a text at its line breaks: CR LF, CR, LF and those of Unicode.
    static QStringList linesOf(const QString &text);

    /// Inserts a text from the clipboard at the cursor, in place of the selection, as one undo
    /// step. Here each line break becomes a space.
    virtual void insertPasted(const QString &text);

    /// Inserts text at the cursor as an undo step of its own, separate from what is typed before
    /// and after it.
    void insertAsOneStep(const QString &text);

    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    void pasteFrom(QClipboard::Mode mode);
    /// Pastes the selection of the desktop where the user clicked.
    /// \param replacesAll whether it takes the place of the whole text instead
    void pasteByMouse(const QPoint &place, bool replacesAll);
    /// Inserts a text where it was dropped, instead of the text of the event.
    void drop(QDropEvent *event, const QString &text);
    void followText();
    bool isFillWord() const;
    bool fits() const;

    QString m_note;
    FirstClick m_firstClick;
    bool m_isFocusNew = false;       ///< a click brought the focus, and is not handled yet
    bool m_wasClicked = false;       ///< since the focus came, also back from another window
    std::optional<QPoint> m_pressed; ///< where that click began in a fill word
    struct
    {
        int cursor;
        int selection; ///< -1: nothing was selected
        int selected;
    } m_beforeDrag{};
    int m_cursor = 0; ///< where the cursor was when the box lost the focus
};

} // namespace tarvold
