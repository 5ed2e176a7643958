#include "controls/text_box.h"

#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>

#include <utility>

namespace tarvold {

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
    if (event->button() == Qt::LeftButton) {
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
    if (const auto pressed = std::exchange(m_pressed, std::nullopt)) {
        const QPoint way = event->position().toPoint() - *pressed;
        const bool isDrag = way.manhattanLength() >= QApplication::startDragDistance();
        QLineEdit::mouseReleaseEvent(event);
        if (!isDrag || !hasSelectedText()) {
            selectAll(); // not before: a drag has to select what it passes
        }
        return;
    }
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection()) {
        deselect();
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        pasteFrom(QClipboard::Selection);
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

} // namespace tarvold
