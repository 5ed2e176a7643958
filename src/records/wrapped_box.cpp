#include "records/wrapped_box.h"

#include "controls/long_text.h"
#include "controls/sizes.h"
#include "records/names.h"

#include <QAbstractTextDocumentLayout>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QTextLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

QString onOneLine(QString text)
{
    static const QRegularExpression lineBreak(u"\\r\\n|[\\r\\n\\x{85}\\x{2028}\\x{2029}]"_s);
    return text.replace(lineBreak, u" "_s);
}

} // namespace

WrappedBox::WrappedBox(QWidget *parent) : QTextEdit(parent)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    fitMargin();
    connect(this, &QTextEdit::textChanged, this, [this] {
        m_measuredHeight = -1;
        if (heightForWidth(width()) != height()) {
            updateGeometry();
        }
    });
}

QString WrappedBox::text() const
{
    // toPlainText() would turn a no-break space, which is a character of its own in a file, into a
    // space.
    return isReadOnly() ? m_long : onOneLine(document()->toRawText());
}

void WrappedBox::setText(const QString &text)
{
    const bool isLong = text.size() > kMostEdited;
    const int cursor = textCursor().position();
    m_long = isLong ? text : QString();
    setReadOnly(isLong);
    setPlainText(isLong ? longtext::quoted(text, kMostEdited / 10) : text);
    QTextCursor place = textCursor();
    place.setPosition(std::min(cursor, document()->characterCount() - 1));
    setTextCursor(place);
}

void WrappedBox::fitMargin()
{
    const int room = kControlHeight - 2 * frameWidth() - fontMetrics().height();
    document()->setDocumentMargin(std::max(room / 2, 2));
    m_measuredHeight = -1;
}

int WrappedBox::heightForWidth(int width) const
{
    if (m_measuredHeight >= 0 && width == m_measuredWidth) {
        return m_measuredHeight;
    }
    const int around = int(std::ceil(2 * (frameWidth() + document()->documentMargin())));
    QTextOption option = document()->defaultTextOption();
    option.setWrapMode(wordWrapMode());
    QTextLayout layout(document()->toRawText(), font());
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width - around, 1));
        height += line.height();
    }
    layout.endLayout();
    m_measuredWidth = width;
    m_measuredHeight = std::max(kControlHeight, int(std::ceil(height)) + around);
    return m_measuredHeight;
}

QSize WrappedBox::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 30, kControlHeight};
}

QSize WrappedBox::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 12, kControlHeight};
}

bool WrappedBox::isFillWord() const
{
    const QString shown = text();
    return !shown.isEmpty() && names::isNoName(shown);
}

void WrappedBox::insertFromMimeData(const QMimeData *source)
{
    insertPlainText(onOneLine(source->text()));
}

void WrappedBox::inputMethodEvent(QInputMethodEvent *event)
{
    event->setCommitString(onOneLine(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    QTextEdit::inputMethodEvent(event);
}

void WrappedBox::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitMargin();
        updateGeometry();
    }
}

void WrappedBox::focusInEvent(QFocusEvent *event)
{
    m_isFocusNew = event->reason() == Qt::MouseFocusReason;
    QTextEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        selectAll(); // as in every text box
    }
}

void WrappedBox::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    m_isFocusNew = false;
    // The focus comes back when the other window or the menu closes.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        QTextCursor cursor = textCursor();
        cursor.clearSelection();
        setTextCursor(cursor);
        emit left();
    }
}

void WrappedBox::mousePressEvent(QMouseEvent *event)
{
    m_isPressNew = std::exchange(m_isFocusNew, false) && event->button() == Qt::LeftButton;
    QTextEdit::mousePressEvent(event);
}

void WrappedBox::mouseReleaseEvent(QMouseEvent *event)
{
    QTextEdit::mouseReleaseEvent(event);
    if (std::exchange(m_isPressNew, false) && isFillWord() && !textCursor().hasSelection()) {
        selectAll(); // whoever types then wants to replace the word, not to add to it
    }
}

void WrappedBox::wheelEvent(QWheelEvent *event)
{
    event->ignore(); // all is shown, so the wheel scrolls what is around
}

} // namespace tarvold::records
