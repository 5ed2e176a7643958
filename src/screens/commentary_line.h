#pragma once

#include "controls/text_box.h"

namespace tarvold {

/// One of the ten lines of a commentary screen: a text box that can be marked.
///
/// The mark is the background itself, yellow or white; there is no other record of it.
class CommentaryLine : public TextBox
{
    Q_OBJECT
public:
    explicit CommentaryLine(QWidget *parent = nullptr);

    /// Whether tags go into this line: whether its background is yellow.
    bool isMarked() const;

    /// Makes the background yellow or white.
    void setMarked(bool marked);

    /// Adds a text at the end of the line, wherever the cursor is; the user can undo it.
    void append(const QString &text);

signals:
    /// The user wants to see the tag list, by the keys that open a list. Going there with Tab would
    /// lead through other lines and mark them.
    void tagsRequested();

    /// The user went into the line, by mouse or keyboard; not: a window merely appeared.
    void entered();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};

} // namespace tarvold
