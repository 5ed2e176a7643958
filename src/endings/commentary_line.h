#pragma once

#include "shell/text_box.h"

namespace tarvold {

/// One of the ten lines of a commentary screen: a text box that can be marked.
///
/// The mark is the background itself, yellow or white; there is no other record of it.
class CommentaryLine : public TextBox
{
    Q_OBJECT
public:
    explicit CommentaryLine(QWidget *parent = nullptr);

    bool isMarked() const;
    void setMarked(bool marked);

    /// Adds a text at the end of the line, wherever the cursor is; the user can undo it.
    void append(const QString &text);

signals:
    /// The user went into the line, by mouse or keyboard; not: a window merely appeared.
    void entered();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};

} // namespace tarvold
