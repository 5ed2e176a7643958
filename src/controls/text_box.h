#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace tarvold {

/// The single-line text box of all screens.
///
/// What is typed or pasted stays as it is, at any length, but for line breaks: a field is one line
/// of a file, so each break becomes one blank on its way in.
class TextBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit TextBox(QWidget *parent = nullptr);

    /// Puts a text in the place of the whole text, as an undo step of its own; the cursor goes to
    /// its end. The program may do so in a read-only box, too.
    void replaceAsOneStep(const QString &text);

public slots:
    /// Hides QLineEdit::paste(); the context menu finds slots by name and so calls this one.
    void paste();

protected:
    /// Inserts a text at the cursor as an undo step of its own, apart from what is typed before and
    /// after it.
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
