#include "controls/linked_edits.h"

#include "controls/text_box.h"

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
    }
    m_edits.push_back(std::move(edit));
}

LinkedEdits::Part LinkedEdits::insertMarked(const Change &change, const QString &mark)
{
    TextBox &box = *change.box;
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

TextBox *LinkedEdits::undo(TextBox &box)
{
    return go(box, kUndo);
}

TextBox *LinkedEdits::redo(TextBox &box)
{
    return go(box, kRedo);
}

TextBox *LinkedEdits::go(TextBox &box, const Way &way)
{
    const Edit *edit = next(box, way);
    if (edit == nullptr) {
        (box.*way.step)();
        return nullptr;
    }
    const bool takesAlong = edit->bond == Bond::Whole || edit->parts.front().box == &box;
    std::vector<const Part *> along;
    for (const Part &part : edit->parts) {
        if (part.box == &box || (takesAlong && next(*part.box, way) == edit)) {
            along.push_back(&part);
        } else if (edit->bond == Bond::Whole && !(way.isUndo && !part.box->isUndoAvailable())) {
            return part.box; // unless its history was emptied: then it can never follow
        }
    }
    for (const Part *part : along) {
        pass(*part, way, edit->bond);
    }
    return nullptr;
}

void LinkedEdits::pass(const Part &part, const Way &way, Bond bond)
{
    TextBox &box = *part.box;
    {
        const QSignalBlocker quiet(box);
        (box.*way.step)();
    }
    (box.*way.step)();
    if (bond == Bond::Whole && way.isUndo) { // Qt selects what the edit replaced
        box.setCursorPosition(part.cursor);
    }
    if (!box.hasFocus()) {
        box.showBeginning();
    }
}

const LinkedEdits::Edit *LinkedEdits::next(TextBox &box, const Way &way) const
{
    if (!(box.*way.isPossible)() || !mayBeNext(box, way)) {
        return nullptr;
    }
    const QSignalBlocker quiet(box);
    const CursorKeeper cursor(box);
    (box.*way.step)();
    const Edit *edit = markedIn(box);
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

const LinkedEdits::Edit *LinkedEdits::markedIn(const TextBox &box) const
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
