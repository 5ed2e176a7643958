#pragma once

#include "controls/text_box.h"

namespace tarvold {

/// One of the ten lines of a commentary screen: a text box that can be marked.
///
/// The mark is the background itself, yellow or white; it is stored nowhere else.
class CommentaryLine : public TextBox
{
    Q_OBJECT
public:
    explicit CommentaryLine(QWidget *parent = nullptr);

    /// Whether tags go into this line: whether its background is yellow.
    bool isMarked() const;

    /// Makes the background yellow or white.
    void setMarked(bool marked);

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
};

} // namespace tarvold
