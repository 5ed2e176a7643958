#include "screens/commentary_line.h"

#include <QFocusEvent>

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

void CommentaryLine::append(const QString &text)
{
    end(false);
    insertAsOneStep(text);
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
