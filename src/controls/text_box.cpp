#include "controls/text_box.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>

#include <limits>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

QString onOneLine(QString text)
{
    static const QRegularExpression lineBreak(u"\\r\\n|[\\r\\n\\x{85}\\x{2028}\\x{2029}]"_s);
    return text.replace(lineBreak, u" "_s);
}

} // namespace

TextBox::TextBox(QWidget *parent) : QLineEdit(parent)
{
    setMaxLength(std::numeric_limits<int>::max());
    setTextMargins(3, 0, 3, 0);
}

void TextBox::paste()
{
    pasteFrom(QClipboard::Clipboard);
}

void TextBox::replaceAsOneStep(const QString &text)
{
    selectAll();
    insertAsOneStep(text);
}

void TextBox::pasteFrom(QClipboard::Mode mode)
{
    if (!isReadOnly()) {
        insertAsOneStep(onOneLine(QGuiApplication::clipboard()->text(mode)));
    }
}

void TextBox::insertAsOneStep(const QString &text)
{
    if (!hasSelectedText()) { // replacing a selection starts an undo step by itself
        endUndoStep();
    }
    insert(text);
    endUndoStep();
}

void TextBox::endUndoStep()
{
    // Only moving the cursor ends an undo step.
    const int place = cursorPosition();
    home(false);
    end(false);
    setCursorPosition(place);
}

void TextBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste)) {
        const bool fromSelection = event->key() == Qt::Key_Insert &&
                                   event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        pasteFrom(fromSelection ? QClipboard::Selection : QClipboard::Clipboard);
        event->accept();
        return;
    }
    // A key event may carry text of several characters. If it starts with a control character, it
    // types nothing, and must stay so.
    const QString text = event->text();
    const QString oneLine = onOneLine(text);
    if (oneLine == text || !text.front().isPrint()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    QKeyEvent clean(event->type(), event->key(), event->modifiers(), oneLine, event->isAutoRepeat(),
                    static_cast<quint16>(event->count()));
    QLineEdit::keyPressEvent(&clean);
    event->setAccepted(clean.isAccepted());
}

void TextBox::mouseReleaseEvent(QMouseEvent *event)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection()) {
        deselect();
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        pasteFrom(QClipboard::Selection);
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void TextBox::dropEvent(QDropEvent *event)
{
    const QString dropped = event->mimeData()->text();
    const QString oneLine = onOneLine(dropped);
    if (oneLine == dropped) {
        QLineEdit::dropEvent(event);
        return;
    }
    // The base class reads the text from the event, so pass it an event with clean text.
    QMimeData mimeData;
    mimeData.setText(oneLine);
    QDropEvent clean(event->position(), event->possibleActions(), &mimeData, event->buttons(),
                     event->modifiers());
    QLineEdit::dropEvent(&clean);
    event->setDropAction(clean.dropAction());
    event->setAccepted(clean.isAccepted());
}

void TextBox::inputMethodEvent(QInputMethodEvent *event)
{
    if (isReadOnly()) { // the base class would insert the text anyway
        event->ignore();
        return;
    }
    event->setCommitString(onOneLine(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

} // namespace tarvold
