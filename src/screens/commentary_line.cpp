#include "screens/commentary_line.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>

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

void CommentaryLine::startAfresh()
{
    setText({}); // undo after clear() would bring back the commentary of another record
    setMarked(false);
    m_pastes.clear();
}

QStringList CommentaryLine::fitted(const QString &text) const
{
    QStringList lines = linesOf(text);
    // Whole lines copied from a text editor end with a line break; no line comes after it.
    while (lines.size() > 1 && lines.back().isEmpty()) {
        lines.removeLast();
    }
    while (lines.size() > 1 && lines.front().isEmpty()) {
        lines.removeFirst();
    }
    qsizetype room = 1;
    for (const CommentaryLine *line = m_below; line != nullptr && line->text().isEmpty();
         line = line->m_below) {
        ++room;
    }
    const QStringList rest = lines.mid(room - 1);
    return rest.size() < 2 ? lines : lines.first(room - 1) << rest.join(u' ');
}

void CommentaryLine::insertLines(const QStringList &lines,
                                 const std::function<void(const QString &)> &insertFirst)
{
    Paste paste = {
        .before = text(), .after = {}, .couldUndo = isUndoAvailable(), .rest = lines.mid(1)};
    insertFirst(lines.front());
    if (paste.rest.isEmpty()) {
        return;
    }
    paste.after = text();
    replaceBelow(QStringList(paste.rest.size(), QString()), paste.rest);
    m_pastes.push_back(paste);
    emit spread(static_cast<int>(lines.size()));
}

void CommentaryLine::replaceBelow(const QStringList &from, const QStringList &to)
{
    CommentaryLine *line = m_below;
    for (qsizetype at = 0; at < to.size() && line != nullptr; ++at, line = line->m_below) {
        if (line->text() == from[at] && from[at] != to[at]) {
            line->replaceAsOneStep(to[at]);
            line->showBeginning();
        }
    }
}

CommentaryLine::Paste *CommentaryLine::pasteBetween(const QString &before, const QString &after,
                                                    bool isUndone)
{
    const auto found = std::find_if(m_pastes.rbegin(), m_pastes.rend(), [&](const Paste &paste) {
        return paste.before == before && paste.after == after && paste.isUndone == isUndone;
    });
    return found == m_pastes.rend() ? nullptr : &*found;
}

void CommentaryLine::undo()
{
    const QString after = text();
    TextBox::undo();
    Paste *paste = pasteBetween(text(), after, false);
    // The same text may also have been typed over later.
    if (paste != nullptr && isUndoAvailable() == paste->couldUndo) {
        paste->isUndone = true;
        replaceBelow(paste->rest, QStringList(paste->rest.size(), QString()));
    }
}

void CommentaryLine::redo()
{
    const QString before = text();
    TextBox::redo();
    if (Paste *paste = pasteBetween(before, text(), true)) {
        paste->isUndone = false;
        replaceBelow(QStringList(paste->rest.size(), QString()), paste->rest);
    }
}

void CommentaryLine::insertPasted(const QString &text)
{
    insertLines(fitted(text), [this](const QString &first) { insertAsOneStep(first); });
}

void CommentaryLine::dropEvent(QDropEvent *event)
{
    const QString text = event->mimeData()->text();
    if (linesOf(text).size() < 2) {
        TextBox::dropEvent(event);
        return;
    }
    insertLines(fitted(text), [this, event](const QString &first) {
        endUndoStep();
        drop(event, first);
        endUndoStep();
    });
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
    if (event->matches(QKeySequence::Undo)) {
        undo();
        return;
    }
    if (event->matches(QKeySequence::Redo)) {
        redo();
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
