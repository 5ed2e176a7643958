#include "controls/combo_box.h"
#include "screens/commentary_line.h"
#include "support/window_test.h"

#include <QApplication>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>

#include <functional>
#include <memory>

/// The cursor that shows where a text would go that is dragged over a box.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// No letter is as high as the cursor, which is between two spaces: it inverts what it covers.
const QString kText = u"a  c  e  m  n"_s;

/// A kind of box, and how to make it.
struct DropRow
{
    const char *name;
    std::function<QWidget *()> make;
};

void PrintTo(const DropRow &row, std::ostream *out)
{
    *out << row.name;
}

const DropRow kDropRows[] = {
    {"TextBox", [] { return new TextBox; }},
    {"CommentaryLine", [] { return new CommentaryLine; }},
    {"ComboBox", [] { return new ComboBox; }},
};

class DropCaret : public WindowTest, public ::testing::WithParamInterface<DropRow>
{
public:
    DropCaret() : m_control(GetParam().make())
    {
        add(*m_control);
        auto *combo = qobject_cast<ComboBox *>(m_control.get());
        m_box = qobject_cast<QLineEdit *>(combo != nullptr ? combo->lineEdit() : m_control.get());
        elsewhere.setFocus(Qt::OtherFocusReason); // in a focused box the cursor blinks
        box().setText(kText);
    }

protected:
    QLineEdit &box() const { return *m_box; }

    QRect caret() const { return box().inputMethodQuery(Qt::ImCursorRectangle).toRect(); }

    /// The place before a character.
    QPoint placeOf(int position)
    {
        const int before = box().cursorPosition();
        box().setCursorPosition(position);
        const QPoint place = caret().center();
        box().setCursorPosition(before);
        return place;
    }

    /// The positions in the text at which a cursor is painted.
    QList<int> shownCarets()
    {
        const QImage picture = box().grab().toImage();
        const QRect line = caret();
        QList<int> found;
        for (int x = 0; x < picture.width(); ++x) {
            int dark = 0;
            for (int y = line.top(); y <= line.bottom(); ++y) {
                dark += picture.pixelColor(x, y).lightness() < 64 ? 1 : 0;
            }
            const int position = box().cursorPositionAt({x, line.center().y()});
            if (dark > line.height() * 2 / 3 && !found.contains(position)) {
                found << position;
            }
        }
        return found;
    }

    /// Whether the box shows the first characters of its text.
    bool showsBeginning()
    {
        box().grab(); // it scrolls when it is painted
        return box().cursorPositionAt({8, box().rect().center().y()}) <= 1;
    }

    void enter(int position)
    {
        QDragEnterEvent event(placeOf(position), Qt::CopyAction, &m_data, Qt::LeftButton, {});
        QApplication::sendEvent(&box(), &event);
        EXPECT_TRUE(event.isAccepted());
    }

    void move(int position)
    {
        QDragMoveEvent event(placeOf(position), Qt::CopyAction, &m_data, Qt::LeftButton, {});
        QApplication::sendEvent(&box(), &event);
        EXPECT_TRUE(event.isAccepted());
    }

    void leave()
    {
        QDragLeaveEvent event;
        QApplication::sendEvent(&box(), &event);
    }

    void drop(int position)
    {
        QDropEvent event(placeOf(position), Qt::CopyAction, &m_data, Qt::LeftButton, {});
        QApplication::sendEvent(&box(), &event);
        EXPECT_TRUE(event.isAccepted());
    }

    void drags(const QString &text) { m_data.setText(text); }

private:
    std::unique_ptr<QWidget> m_control;
    QLineEdit *m_box = nullptr;
    QMimeData m_data;
};

INSTANTIATE_TEST_SUITE_P(Boxes, DropCaret, ::testing::ValuesIn(kDropRows),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_P(DropCaret, IsShownWhereTheTextWouldGoAndGoneWhenTheMouseLeaves)
{
    drags(u"xx"_s);
    EXPECT_EQ(shownCarets(), QList<int>());
    enter(2);
    EXPECT_EQ(shownCarets(), QList<int>{2});
    move(5);
    EXPECT_EQ(shownCarets(), QList<int>{5});
    leave();
    EXPECT_EQ(shownCarets(), QList<int>());
    EXPECT_EQ(box().text(), kText);
    EXPECT_FALSE(box().hasFocus());
}

TEST_P(DropCaret, IsGoneAfterTheDrop)
{
    for (const auto &[dropped, text] :
         {std::pair(u"xx"_s, u"a xx c  e  m  n"_s), std::pair(u"x\nx"_s, u"a x x c  e  m  n"_s)}) {
        box().setText(kText);
        drags(dropped);
        enter(5);
        move(2);
        EXPECT_EQ(shownCarets(), QList<int>{2});
        drop(2);
        EXPECT_EQ(box().text(), text);
        EXPECT_EQ(shownCarets(), QList<int>());
    }
}

TEST_P(DropCaret, LeavesABoxWithoutTheFocusAtItsBeginning)
{
    const QString text = kText.repeated(20);
    const auto end = static_cast<int>(text.size());
    box().setText(text);
    box().setFocus(Qt::OtherFocusReason);
    box().setCursorPosition(7);
    elsewhere.setFocus(Qt::OtherFocusReason);
    drags(u"xx"_s);
    enter(5);
    move(end);
    leave();
    EXPECT_TRUE(showsBeginning());
    box().setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(box().cursorPosition(), 7);

    elsewhere.setFocus(Qt::OtherFocusReason);
    enter(5);
    drop(5);
    EXPECT_EQ(box().text(), QString(text).insert(5, u"xx"_s));
    EXPECT_TRUE(showsBeginning());
}

} // namespace
} // namespace tarvold::testing
