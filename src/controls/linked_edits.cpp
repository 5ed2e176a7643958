#include "controls/linked_edits.h"

#include "controls/text_box.h"
#include "controls/text_silence.h"

#include <QAccessible>
#include <QSignalBlocker>

#include <algorithm>

namespace tarvold {

namespace {

/// Unicode reserves these for programs: no text has them.
constexpr QChar kMarkStart(0xFDD0);
constexpr QChar kMarkEnd(0xFDD1);

/// Goes back, when it ends, to the cursor and the selection that a box has now.
class CursorKeeper
{
public:
    explicit CursorKeeper(QLineEdit &box)
        : m_box(box)
        , m_cursor(box.cursorPosition())
        , m_start(box.selectionStart())
        , m_length(box.selectionLength())
    {
    }
    ~CursorKeeper()
    {
        if (m_length == 0) {
            m_box.setCursorPosition(m_cursor);
        } else if (m_cursor == m_start) { // selected backwards
            m_box.setSelection(m_start + m_length, -m_length);
        } else {
            m_box.setSelection(m_start, m_length);
        }
    }
    Q_DISABLE_COPY_MOVE(CursorKeeper)

private:
    QLineEdit &m_box;
    int m_cursor;
    int m_start;
    int m_length;
};

/// Tells assistive technology of a new text, after all steps that led to it.
void tellChange(TextBox &box, const QString &before)
{
    const QString now = box.text();
    if (now == before) {
        return;
    }
    QAccessibleTextUpdateEvent update(&box, 0, before, now);
    update.setCursorPosition(box.cursorPosition());
    QAccessible::updateAccessibility(&update);
    if (box.hasFocus()) {
        QAccessibleTextCursorEvent cursor(&box, box.cursorPosition());
        QAccessible::updateAccessibility(&cursor);
    }
}

} // namespace

struct LinkedEdits::Way
{
    bool (TextBox::*isPossible)() const;
    void (TextBox::*step)();
    void (TextBox::*back)();
    QString Part::*from; ///< the text before the step
    bool isUndo;
};

const LinkedEdits::Way LinkedEdits::kUndo = {&TextBox::isUndoAvailable, &TextBox::undo,
                                             &TextBox::redo, &Part::after, true};
const LinkedEdits::Way LinkedEdits::kRedo = {&TextBox::isRedoAvailable, &TextBox::redo,
                                             &TextBox::undo, &Part::before, false};

void LinkedEdits::make(Bond bond, const std::vector<Change> &changes)
{
    const QString mark = kMarkStart + QString::number(++m_made) + kMarkEnd;
    Edit edit = {.bond = bond, .parts = {}};
    for (const Change &change : changes) {
        edit.parts.push_back(insertMarked(change, mark));
        tellChange(*change.box, edit.parts.back().before);
    }
    m_edits.push_back(std::move(edit));
}

LinkedEdits::Part LinkedEdits::insertMarked(const Change &change, const QString &mark)
{
    TextBox &box = *change.box;
    const TextSilence silence(box);
    Part part = {.box = &box,
                 .cursor = box.cursorPosition(),
                 .before = box.text(),
                 .marked = {},
                 .after = {}};
    {
        const QSignalBlocker quiet(box);
        box.setCursorPosition(change.from);
        box.endUndoStep();
        box.setSelection(change.from, change.length);
        box.insert(change.text + mark);
        part.marked = box.text();
        const int length = static_cast<int>(mark.size());
        box.setSelection(box.cursorPosition() - length, length);
    }
    box.del();
    box.endUndoStep();
    part.after = box.text();
    if (!box.hasFocus()) {
        box.showBeginning();
    }
    return part;
}

LinkedEdits::Outcome LinkedEdits::undo(TextBox &box)
{
    return go(box, kUndo);
}

LinkedEdits::Outcome LinkedEdits::redo(TextBox &box)
{
    return go(box, kRedo);
}

LinkedEdits::Outcome LinkedEdits::go(TextBox &box, const Way &way)
{
    Edit *edit = next(box, way);
    if (edit == nullptr) {
        stepPastMarks(box, way);
        return {};
    }
    const bool takesAlong = edit->bond == Bond::Whole || edit->parts.front().box == &box;
    Outcome outcome;
    std::vector<Part> along;
    std::vector<const TextBox *> emptied;
    for (const Part &part : edit->parts) {
        TextBox &each = *part.box;
        if (&each == &box || (takesAlong && next(each, way) == edit)) {
            along.push_back(part);
        } else if (edit->bond == Bond::Whole) {
            if (!way.isUndo || each.isUndoAvailable()) {
                return {.blocking = &each, .kept = {}};
            }
            emptied.push_back(&each); // its history: it can never follow
        } else if (takesAlong && way.isUndo && next(each, kRedo) != edit) {
            outcome.kept.push_back(&each);
        }
    }
    std::erase_if(edit->parts, [&emptied](const Part &part) {
        return std::find(emptied.begin(), emptied.end(), part.box) != emptied.end();
    });
    for (const Part &part : along) {
        pass(part, way, edit->bond);
    }
    return outcome;
}

void LinkedEdits::pass(const Part &part, const Way &way, Bond bond)
{
    TextBox &box = *part.box;
    const QString before = box.text();
    {
        const TextSilence silence(box);
        {
            const QSignalBlocker quiet(box);
            (box.*way.step)();
        }
        stepPastMarks(box, way);
        if (bond == Bond::Whole && way.isUndo) { // Qt selects what the edit replaced
            box.setCursorPosition(part.cursor);
        }
        if (!box.hasFocus()) {
            box.showBeginning();
        }
    }
    tellChange(box, before);
}

void LinkedEdits::stepPastMarks(TextBox &box, const Way &way)
{
    (box.*way.step)();
    if (box.text().contains(kMarkStart) && (box.*way.isPossible)()) {
        (box.*way.step)(); // the first one was that of an input method which ended just then
    }
}

LinkedEdits::Edit *LinkedEdits::next(TextBox &box, const Way &way)
{
    if (!(box.*way.isPossible)() || !mayBeNext(box, way)) {
        return nullptr;
    }
    const TextSilence silence(box);
    const QSignalBlocker quiet(box);
    const CursorKeeper cursor(box);
    (box.*way.step)();
    Edit *edit = markedIn(box);
    (box.*way.back)();
    return edit;
}

bool LinkedEdits::mayBeNext(const TextBox &box, const Way &way) const
{
    const QString text = box.text();
    const auto isFrom = [&](const Part &part) {
        return part.box == &box && part.*way.from == text;
    };
    return std::any_of(m_edits.begin(), m_edits.end(), [&isFrom](const Edit &edit) {
        return std::any_of(edit.parts.begin(), edit.parts.end(), isFrom);
    });
}

LinkedEdits::Edit *LinkedEdits::markedIn(const TextBox &box)
{
    const QString text = box.text();
    const auto isShown = [&](const Part &part) { return part.box == &box && part.marked == text; };
    const auto found = std::find_if(m_edits.begin(), m_edits.end(), [&isShown](const Edit &edit) {
        return std::any_of(edit.parts.begin(), edit.parts.end(), isShown);
    });
    return found == m_edits.end() ? nullptr : &*found;
}

void LinkedEdits::forget(const TextBox &box)
{
    for (Edit &edit : m_edits) {
        std::erase_if(edit.parts, [&box](const Part &part) { return part.box == &box; });
    }
    std::erase_if(m_edits, [](const Edit &edit) { return edit.parts.empty(); });
}

} // namespace tarvold
