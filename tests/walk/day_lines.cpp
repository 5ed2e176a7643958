#include "screens/commentary_line.h"
#include "screens/screen.h"
#include "walk/day.h"
#include "walk/samples.h"
#include "walk/trace.h"

#include <QApplication>
#include <QClipboard>

#include <algorithm>

/// Edits of several commentary lines at once, and their undo and redo.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSwap = Qt::ControlModifier | Qt::ShiftModifier;

QList<CommentaryLine *> linesOf(const Screen &screen)
{
    // An open list would take the keys.
    return QApplication::activePopupWidget() == nullptr ? screen.findChildren<CommentaryLine *>()
                                                        : QList<CommentaryLine *>();
}

QStringList textsOf(const QList<CommentaryLine *> &lines)
{
    QStringList texts;
    for (const CommentaryLine *line : lines) {
        texts << line->text();
    }
    return texts;
}

/// What stays whichever lines a text is spread over and however it is joined.
QString withoutSpaces(QString text)
{
    text.removeIf([](QChar character) { return character.isSpace(); });
    return text;
}

/// Whether a line other than `at` has lost a text.
bool isOverwritten(const QStringList &before, const QStringList &after, qsizetype at)
{
    for (qsizetype line = 0; line < before.size(); ++line) {
        if (line != at && !before[line].isEmpty() && after[line] != before[line]) {
            return true;
        }
    }
    return false;
}

} // namespace

bool Day::swapLines()
{
    const auto lines = linesOf(screen());
    if (lines.isEmpty()) {
        return false;
    }
    const int from = m_dice.below(static_cast<int>(lines.size()));
    const bool isUp = m_dice.chance(50);
    const int to = std::clamp(isUp ? from - 1 : from + 1, 0, static_cast<int>(lines.size()) - 1);
    trace::note(u"swap line %1 with line %2"_s.arg(from + 1).arg(to + 1));
    const QStringList before = textsOf(lines);
    QStringList after = before;
    after.swapItemsAt(from, to);
    lines[from]->setFocus(Qt::OtherFocusReason);
    key(isUp ? Qt::Key_Up : Qt::Key_Down, kSwap);
    if (textsOf(lines) != after || !lines[to]->hasFocus()) {
        fail(u"the lines were not swapped"_s);
    }
    if (after != before) {
        undoAndRedo({lines[from], lines[to]}, before, after);
    }
    return true;
}

bool Day::pasteLines()
{
    const auto lines = linesOf(screen());
    if (lines.isEmpty()) {
        return false;
    }
    QStringList pasted = {samples::text(m_dice), samples::text(m_dice)};
    while (m_dice.chance(50)) {
        pasted << samples::text(m_dice);
    }
    const int at = m_dice.below(static_cast<int>(lines.size()));
    const bool isFront = m_dice.chance(30);
    trace::note(u"paste %1 lines into line %2"_s.arg(pasted.size()).arg(at + 1));
    const QStringList before = textsOf(lines);
    QApplication::clipboard()->setText(pasted.join(u'\n'));
    lines[at]->setFocus(Qt::OtherFocusReason);
    key(isFront ? Qt::Key_Home : Qt::Key_End);
    key(Qt::Key_V, Qt::ControlModifier);

    const QStringList after = textsOf(lines);
    const qsizetype above = isFront ? at : at + 1;
    const QString wanted =
        before.first(above).join(u""_s) + pasted.join(u""_s) + before.sliced(above).join(u""_s);
    if (withoutSpaces(after.join(u""_s)) != withoutSpaces(wanted)) {
        fail(u"a paste of several lines lost or doubled a text"_s);
    }
    if (isOverwritten(before, after, at)) {
        fail(u"a paste of several lines has changed a line that held a text"_s);
    }
    if (after != before) {
        undoAndRedo({lines[at]}, before, after);
    }
    return true;
}

void Day::undoAndRedo(const QList<CommentaryLine *> &lines, const QStringList &before,
                      const QStringList &after)
{
    const auto all = linesOf(screen());
    bool isDone = true;
    for (int more = m_dice.below(4); more > 0; --more) {
        CommentaryLine *line = m_dice.pick(lines);
        trace::note((isDone ? u"undo in "_s : u"redo in "_s) + line->objectName());
        line->setFocus(Qt::OtherFocusReason);
        key(Qt::Key_Z, isDone ? Qt::KeyboardModifiers(Qt::ControlModifier) : kSwap);
        isDone = !isDone;
        if (textsOf(all) != (isDone ? after : before)) {
            fail(u"the lines are not as they were before this undo or redo"_s);
        }
    }
}

} // namespace tarvold::testing
