#include "controls/text_box.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QMouseEvent>

#include <utility>

namespace tarvold {

void TextBox::selectFillWord()
{
    if (isFillWord()) {
        selectAll();
    }
}

void TextBox::selectAfterClickBeside()
{
    if (std::exchange(m_isFocusNew, false)) {
        selectFillWord();
    }
}

void TextBox::mousePressEvent(QMouseEvent *event)
{
    // Tab, or the screen that appeared, may have brought the focus and selected the word.
    const bool wasSelected = hasSelectedText() && selectedText() == text();
    const bool isFirst = !std::exchange(m_wasClicked, true) && wasSelected;
    QLineEdit::mousePressEvent(event);
    m_pressed.reset();
    if (!(std::exchange(m_isFocusNew, false) || isFirst) || !isFillWord()) {
        return;
    }
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        m_pressed = event->position().toPoint();
    } else if (event->button() == Qt::RightButton) {
        selectAll(); // for "Paste" in the context menu
    }
}

void TextBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    QLineEdit::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && isFillWord()) {
        selectAll(); // Qt takes "N/A" for two words
    }
}

void TextBox::mouseReleaseEvent(QMouseEvent *event)
{
    const auto pressed = std::exchange(m_pressed, std::nullopt);
    if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
        pasteByMouse(event->position().toPoint(), pressed.has_value());
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
    if (pressed && event->button() == Qt::LeftButton) {
        const QPoint way = event->position().toPoint() - *pressed;
        const bool isDrag = way.manhattanLength() >= QApplication::startDragDistance();
        if (!isDrag || !hasSelectedText()) {
            selectAll(); // not before: a drag has to select what it passes
        }
    }
}

void TextBox::pasteByMouse(const QPoint &place, bool replacesAll)
{
    deselect();
    setCursorPosition(cursorPositionAt(place));
    if (replacesAll && !QGuiApplication::clipboard()->text(QClipboard::Selection).isEmpty()) {
        selectAll();
    }
    pasteFrom(QClipboard::Selection);
}

void TextBox::dragEnterEvent(QDragEnterEvent *event)
{
    m_beforeDrag = {cursorPosition(), selectionStart(), static_cast<int>(selectionLength())};
    QLineEdit::dragEnterEvent(event);
}

void TextBox::dragLeaveEvent(QDragLeaveEvent *event)
{
    QLineEdit::dragLeaveEvent(event);
    if (hasFocus()) {
        return;
    }
    // Nothing was dropped. The box may have the focus as soon as its window is active again.
    if (m_beforeDrag.selection >= 0) {
        setSelection(m_beforeDrag.selection, m_beforeDrag.selected);
    } else {
        setCursorPosition(m_beforeDrag.cursor);
    }
}

void TextBox::dropEvent(QDropEvent *event)
{
    const QString dropped = event->mimeData()->text();
    const QString oneLine = linesOf(dropped).join(u' ');
    if (oneLine == dropped) {
        QLineEdit::dropEvent(event);
    } else {
        drop(event, oneLine);
    }
    if (!hasFocus()) { // a drop doesn't bring it
        showBeginning();
    }
}

void TextBox::drop(QDropEvent *event, const QString &text)
{
    // The base class reads the text from the event, so pass it an event with this text.
    QMimeData mimeData;
    mimeData.setText(text);
    QDropEvent clean(event->position(), event->possibleActions(), &mimeData, event->buttons(),
                     event->modifiers());
    QLineEdit::dropEvent(&clean);
    event->setDropAction(clean.dropAction());
    event->setAccepted(clean.isAccepted());
}

} // namespace tarvold
