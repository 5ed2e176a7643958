#pragma once

#include "controls/text_box.h"

#include <optional>

namespace tarvold {

/// One of the ten lines of a commentary screen: a text box that can be marked.
///
/// The mark is the background itself, yellow or white; it is stored nowhere else.
///
/// Enter and Down go to the line below, Up to the line above. In the last and the first line they
/// do nothing.
class CommentaryLine : public TextBox
{
    Q_OBJECT
public:
    explicit CommentaryLine(QWidget *parent = nullptr);

    /// Whether tags go into this line: whether its background is yellow.
    bool isMarked() const;

    /// Makes the background yellow or white.
    void setMarked(bool marked);

    /// Makes this the line below another one, for the keys that go from line to line. Both must live
    /// equally long.
    void putBelow(CommentaryLine &above);

    /// Adds a text at the end of the line, wherever the cursor is. The user can undo it.
    void append(const QString &text);

signals:
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

private:
    /// The line that a key goes to: null at either end. Nothing if the key goes to no line.
    std::optional<CommentaryLine *> lineAfter(const QKeyEvent &key) const;

    CommentaryLine *m_above = nullptr;
    CommentaryLine *m_below = nullptr;
};

} // namespace tarvold
