#include "screens/commentary_line.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace tarvold {
namespace {

constexpr QColor kWhite(0xFF, 0xFF, 0xFF);
constexpr QColor kYellow(0xFF, 0xFF, 0x00);

} // namespace

CommentaryLine::CommentaryLine(QWidget *parent) : TextBox(parent, FirstClick::PlacesCursor)
{
    setMarked(false);
}

bool CommentaryLine::isMarked() const
{
    return palette().color(QPalette::Base) == kYellow;
}

void CommentaryLine::setMarked(bool marked)
{
    // The text colour is set with the background: a dark theme would write white on white.
    QPalette colours = palette();
    colours.setColor(QPalette::Base, marked ? kYellow : kWhite);
    colours.setColor(QPalette::Text, Qt::black);
    setPalette(colours);
}

void CommentaryLine::putBelow(CommentaryLine &above)
{
    m_above = &above;
    above.m_below = this;
}

void CommentaryLine::append(const QString &text)
{
    end(false);
    insertAsOneStep(text);
}

std::optional<CommentaryLine *> CommentaryLine::lineAfter(const QKeyEvent &key) const
{
    const auto modifiers = key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (modifiers != Qt::NoModifier) {
        return std::nullopt;
    }
    switch (key.key()) {
    case Qt::Key_Up:
        return m_above;
    case Qt::Key_Down:
        return m_below;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return key.isAutoRepeat() ? nullptr : m_below; // a held Enter just picked a tag
    default:
        return std::nullopt;
    }
}

void CommentaryLine::keyPressEvent(QKeyEvent *event)
{
    const bool isAltDown =
        event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    const bool isF4 = event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier;
    if (isF4 || isAltDown) {
        emit tagsRequested();
        return;
    }
    if (const auto line = lineAfter(*event)) {
        if (*line != nullptr) {
            (*line)->setFocus(Qt::OtherFocusReason);
        }
        return;
    }
    TextBox::keyPressEvent(event);
}

void CommentaryLine::focusInEvent(QFocusEvent *event)
{
    TextBox::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        emit entered();
    }
}

void CommentaryLine::mousePressEvent(QMouseEvent *event)
{
    TextBox::mousePressEvent(event);
    emit entered();
}

} // namespace tarvold
