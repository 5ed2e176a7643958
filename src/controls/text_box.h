#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace tarvold {

/// The single-line text box of all screens.
///
/// Typed and pasted text is kept as it is, at any length, except for line breaks: a field is one
/// line of a file, so each line break becomes a space.
class TextBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit TextBox(QWidget *parent = nullptr);

    /// Replaces the whole text as one undo step; the cursor moves to its end. Also works in a
    /// read-only box.
    void replaceAsOneStep(const QString &text);

public slots:
    /// Hides QLineEdit::paste(). The context menu looks up slots by name and so calls this one.
    void paste();

protected:
    /// Inserts text at the cursor as an undo step of its own, separate from what is typed before
    /// and after it.
    void insertAsOneStep(const QString &text);

    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    void endUndoStep();
    void pasteFrom(QClipboard::Mode mode);
};

} // namespace tarvold
