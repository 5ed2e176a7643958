#pragma once

#include "controls/text_box.h"

#include <functional>
#include <optional>
#include <vector>

namespace tarvold {

/// One of the ten lines of a commentary screen: a text box that can be marked.
///
/// The mark is the background itself, yellow or white; it is stored nowhere else.
///
/// Enter and Down go to the line below, Up to the line above. In the last and the first line they
/// do nothing.
///
/// A pasted or dropped text of several lines goes into this line and the empty lines right below
/// it; what they can't hold is joined by spaces in the last of them. Nothing is overwritten. Undo
/// in the line where the paste began also empties the lines below that still hold what it put
/// there, and redo fills them again, as far as they are empty.
class CommentaryLine : public TextBox
{
    Q_OBJECT
public:
    explicit CommentaryLine(QWidget *parent = nullptr);

    /// Whether tags go into this line: whether its background is yellow.
    bool isMarked() const;

    /// Makes the background yellow or white.
    void setMarked(bool marked);

    /// Makes this the line below another one, for the keys that go from line to line. Both must
    /// live equally long.
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
    /// A pasted text went into this line and into others below it.
    /// \param lines how many lines, including this one
    void spread(int lines);

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
    /// A paste that began in this line and went on in those below.
    struct Paste
    {
        QString before;   ///< this line's text before the paste
        QString after;    ///< and after it
        bool couldUndo;   ///< whether there was something to undo before it
        QStringList rest; ///< what went into the lines below, in order
        bool isUndone = false;
    };

    /// Fits lines into this one and the empty ones below it.
    QStringList fitted(const QString &text) const;
    /// Inserts the first line by `insertFirst` and the others into the lines below.
    void insertLines(const QStringList &lines,
                     const std::function<void(const QString &)> &insertFirst);
    /// In the lines below, replaces what is in `from` by what is in `to`, line by line.
    void replaceBelow(const QStringList &from, const QStringList &to);
    /// The last paste that has this state, if the line's text has just gone from one to the other.
    Paste *pasteBetween(const QString &before, const QString &after, bool isUndone);

    std::vector<Paste> m_pastes;
    /// The line that a key goes to: null at either end. Nothing if the key goes to no line.
    std::optional<CommentaryLine *> lineAfter(const QKeyEvent &key) const;

    CommentaryLine *m_above = nullptr;
    CommentaryLine *m_below = nullptr;
};

} // namespace tarvold
