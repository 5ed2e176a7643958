#include "controls/text_box.h"

#include "controls/long_text.h"
#include "controls/text_silence.h"

#include <QApplication>
#include <QHelpEvent>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

const QRegularExpression &lineBreak()
{
    static const QRegularExpression any(u"\\r\\n|[\\r\\n\\x{85}\\x{2028}\\x{2029}]"_s);
    return any;
}

QString onOneLine(QString text)
{
    return text.replace(lineBreak(), u" "_s);
}

/// Where what differs from another text ends.
int endOfChange(const QString &before, const QString &now)
{
    const auto first = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    const auto last = std::mismatch(before.rbegin(), std::make_reverse_iterator(first.first),
                                    now.rbegin(), std::make_reverse_iterator(first.second));
    return static_cast<int>(last.second.base() - now.begin());
}

} // namespace

TextBox::TextBox(QWidget *parent, FirstClick firstClick)
    : QLineEdit(parent)
    , m_firstClick(firstClick)
{
    setMaxLength(std::numeric_limits<int>::max());
    setTextMargins(3, 0, 3, 0);
    connect(this, &QLineEdit::textChanged, this, &TextBox::followText);
}

void TextBox::paste()
{
    pasteFrom(QClipboard::Clipboard);
}

void TextBox::redo()
{
    const QString before = text();
    QLineEdit::redo();
    const int place = text() == before ? cursorPosition() : endOfChange(before, text());
    deselect();
    setCursorPosition(std::min(place, static_cast<int>(text().size())));
    endUndoStep();
}

void TextBox::replaceAsOneStep(const QString &text)
{
    selectAll();
    insertAsOneStep(text);
}

void TextBox::pasteFrom(QClipboard::Mode mode)
{
    // Pasting nothing must not remove what is selected.
    const QString pasted = QGuiApplication::clipboard()->text(mode);
    if (!isReadOnly() && !pasted.isEmpty()) {
        insertPasted(pasted);
    }
}

QStringList TextBox::linesOf(const QString &text)
{
    return text.split(lineBreak());
}

void TextBox::insertPasted(const QString &text)
{
    insertAsOneStep(onOneLine(text));
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
    if (text().isEmpty()) {
        clear(); // there is nowhere to move the cursor to
        return;
    }
    // Moving the cursor ends an undo step. It comes back, so nobody needs to know.
    const QSignalBlocker quiet(this);
    const TextSilence silence(*this);
    const int place = cursorPosition();
    home(false);
    end(false);
    setCursorPosition(place);
}

void TextBox::followText()
{
    if (!isModified() && !hasFocus()) { // set by the program, which leaves the cursor at the end
        showBeginning();
    }
    if (underMouse() && QToolTip::isVisible()) {
        QToolTip::hideText();
    }
}

void TextBox::endComposition()
{
    if (hasFocus()) {
        QGuiApplication::inputMethod()->commit();
    }
}

void TextBox::showBeginning()
{
    // QLineEdit always scrolls to the cursor.
    if (cursorPosition() > 0) {
        m_cursor = cursorPosition();
        setCursorPosition(0);
    }
}

bool TextBox::isFillWord() const
{
    const QString shown = text();
    return m_firstClick == FirstClick::SelectsFillWord &&
           (shown == "Any"_L1 || shown == "N/A"_L1 || shown == "None"_L1);
}

bool TextBox::fits() const
{
    constexpr int kInner = 2; // space that QLineEdit leaves on each side of the text
    constexpr qsizetype kMostMeasured = 5000;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const int room = inside.marginsRemoved(textMargins()).width() - 2 * kInner;
    const QString shown = displayText();
    return shown.size() <= kMostMeasured && fontMetrics().horizontalAdvance(shown) < room;
}

void TextBox::setNote(const QString &note)
{
    m_note = note;
}

bool TextBox::showWholeText(const QPoint &place)
{
    const bool isTold = fits() || (!m_note.isEmpty() && m_note.contains(text()));
    QStringList shown = {isTold ? QString() : text(), m_note};
    shown.removeAll(QString());
    if (shown.isEmpty()) {
        return false;
    }
    QToolTip::showText(place, longtext::toolTip(shown.join(u'\n')), this);
    return true;
}

bool TextBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip &&
        showWholeText(static_cast<QHelpEvent *>(event)->globalPos())) {
        return true;
    }
    return QLineEdit::event(event);
}

void TextBox::focusInEvent(QFocusEvent *event)
{
    const qsizetype cursor = std::min<qsizetype>(std::exchange(m_cursor, 0), text().size());
    if (cursor > 0 && cursorPosition() == 0 && !hasSelectedText()) {
        setCursorPosition(static_cast<int>(cursor));
    }
    m_isFocusNew = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
}

void TextBox::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    m_isFocusNew = false;
    m_pressed.reset();
    // The focus comes back when the other window or the list closes, so nothing must move.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::PopupFocusReason) {
        m_wasClicked = false; // a click that comes back is a first one again
    }
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        showBeginning();
        emit left();
        emit typingEnded();
    }
}

void TextBox::hideEvent(QHideEvent *event)
{
    // A window that is hidden keeps the focus, but shown again it may give it to another control.
    if (!event->spontaneous()) {
        m_wasClicked = false;
        showBeginning();
        emit typingEnded();
    }
    QLineEdit::hideEvent(event);
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
    if (event->matches(QKeySequence::Redo) && !isReadOnly()) {
        redo();
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
