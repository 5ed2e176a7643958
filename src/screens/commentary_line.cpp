#include "screens/commentary_line.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>
#include <vector>

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
    m_edits = above.m_edits;
}

void CommentaryLine::startAfresh()
{
    setText({}); // undo after clear() would bring back the commentary of another record
    setMarked(false);
    m_edits->forget(*this);
}

QStringList CommentaryLine::fitted(const QString &text) const
{
    QStringList lines = linesOf(text);
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

void CommentaryLine::insertLines(QStringList lines)
{
    if (lines.size() == 1) {
        insertAsOneStep(lines.front());
        return;
    }
    const int from = hasSelectedText() ? selectionStart() : cursorPosition();
    const QString behind = text().sliced(from + selectedText().size());
    lines.back() += behind;
    std::vector<LinkedEdits::Change> changes = {
        {this, from, static_cast<int>(text().size()) - from, lines.front()}};
    CommentaryLine *line = m_below;
    for (qsizetype at = 1; at < lines.size() && line != nullptr; ++at, line = line->m_below) {
        if (!lines[at].isEmpty()) {
            changes.push_back({line, 0, 0, lines[at]});
        }
    }
    m_edits->make(behind.isEmpty() ? LinkedEdits::Bond::Leader : LinkedEdits::Bond::Whole, changes);
    emit spread(static_cast<int>(lines.size()));
}

void CommentaryLine::swapWith(CommentaryLine &other)
{
    endComposition();
    emit editStarted();
    const int cursor = cursorPosition();
    const auto replaced = [](CommentaryLine &line, const QString &text) {
        return LinkedEdits::Change{&line, 0, static_cast<int>(line.text().size()), text};
    };
    if (text() != other.text()) {
        const auto room = static_cast<int>(other.text().size());
        other.setCursorPosition(std::min(cursor, room)); // where undo leaves it
        m_edits->make(LinkedEdits::Bond::Whole,
                      {replaced(*this, other.text()), replaced(other, text())});
    }
    other.setFocus(Qt::OtherFocusReason);
    other.setCursorPosition(cursor);
    emit editEnded();
    emit swapped(&other);
}

void CommentaryLine::undo()
{
    emit editStarted();
    endComposition();
    const LinkedEdits::Outcome outcome = m_edits->undo(*this);
    emit editEnded();
    if (outcome.blocking != nullptr) {
        emit notUndone(static_cast<CommentaryLine *>(outcome.blocking));
    }
    if (!outcome.kept.empty()) {
        QList<const CommentaryLine *> kept;
        for (const TextBox *each : outcome.kept) {
            kept << static_cast<const CommentaryLine *>(each);
        }
        emit partlyUndone(kept);
    }
}

void CommentaryLine::redo()
{
    emit editStarted();
    endComposition();
    const LinkedEdits::Outcome outcome = m_edits->redo(*this);
    emit editEnded();
    if (outcome.blocking != nullptr) {
        emit notRedone(static_cast<CommentaryLine *>(outcome.blocking));
    }
}

void CommentaryLine::insertPasted(const QString &text)
{
    endComposition();
    emit editStarted();
    insertLines(fitted(text));
    emit editEnded();
}

void CommentaryLine::dropEvent(QDropEvent *event)
{
    const QString text = event->mimeData()->text();
    if (linesOf(text).size() < 2) {
        TextBox::dropEvent(event);
        return;
    }
    const int place = cursorPositionAt(event->position().toPoint());
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave); // else the cursor that shows where the text would go stays
    setCursorPosition(place);
    event->acceptProposedAction();
    insertPasted(text);
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

bool CommentaryLine::swapsBy(const QKeyEvent &key)
{
    const auto modifiers = key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const bool isUp = key.key() == Qt::Key_Up;
    if (modifiers != (Qt::ControlModifier | Qt::ShiftModifier) ||
        (!isUp && key.key() != Qt::Key_Down)) {
        return false;
    }
    if (CommentaryLine *other = isUp ? m_above : m_below) {
        swapWith(*other);
    }
    return true;
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
    if (swapsBy(*event)) {
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
