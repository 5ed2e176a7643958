#include "controls/combo_box.h"
#include "controls/double_click_guard.h"
#include "controls/list_box.h"
#include "controls/text_box.h"
#include "support/events.h"
#include "support/mouse.h"

#include <QAbstractItemView>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QStringListModel>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr QRect kPlace(100, 100, 300, 60);

/// A window filled by one control, always at the same position.
class Window : public QWidget
{
public:
    explicit Window(QWidget &control) : m_control(control)
    {
        control.setParent(this);
        control.setGeometry(QRect(QPoint(), kPlace.size()));
        setGeometry(kPlace);
    }
    ~Window() override { m_control.setParent(nullptr); }

private:
    QWidget &m_control;
};

/// A button whose paint event takes 60 ms.
class SlowButton : public QPushButton
{
protected:
    void paintEvent(QPaintEvent *event) override
    {
        QTest::lastMouseTimestamp += 60;
        QPushButton::paintEvent(event);
    }
};

/// A first window with a button, and a second window that the button shows.
class StrayPress : public ::testing::Test
{
public:
    StrayPress()
    {
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++pressed; });
        first.show();
        QCoreApplication::processEvents();
    }

protected:
    /// Makes the button replace the first window with `next`.
    void buttonShows(QWidget &next)
    {
        QObject::connect(&button, &QPushButton::clicked, &next, [this, &next] {
            next.show();
            first.hide();
        });
    }

    DoubleClickGuard guard{&mouse::now};
    QPushButton button;
    Window first{button};
    const QPoint place = kPlace.center();
    int pressed = 0;
};

TEST_F(StrayPress, CountsFrom200MillisecondsAfterThePaint)
{
    for (const bool isEnough : {false, true}) {
        QPushButton stray;
        Window next(stray);
        int count = 0;
        QObject::connect(&stray, &QPushButton::clicked, &stray, [&count] { ++count; });
        first.show();
        QCoreApplication::processEvents();
        buttonShows(next);
        mouse::click(place); // press and release take 1 ms each
        mouse::pass(isEnough ? 199ms : 198ms);
        mouse::clickAgain(place);
        EXPECT_EQ(count, isEnough ? 1 : 0);
    }
}

TEST_F(StrayPress, CountsAtFourClicksPerSecondOnAScreenButNotInAMessageBox)
{
    for (const bool isBox : {false, true}) {
        QPushButton stray;
        Window next(stray);
        next.setWindowModality(isBox ? Qt::ApplicationModal : Qt::NonModal);
        int count = 0;
        QObject::connect(&stray, &QPushButton::clicked, &stray, [&count] { ++count; });
        first.show();
        QCoreApplication::processEvents();
        buttonShows(next);
        mouse::press(place);
        mouse::pass(80ms);
        mouse::release(place);
        mouse::pass(170ms);
        mouse::clickAgain(place);
        EXPECT_EQ(count, isBox ? 0 : 1);
        mouse::pass(40ms);
        mouse::clickAgain(place);
        EXPECT_EQ(count, isBox ? 1 : 2);
    }
}

TEST_F(StrayPress, DoesNotCountBeforeTheScreenIsPainted)
{
    QPushButton stray;
    Window next(stray);
    int count = 0;
    QObject::connect(&stray, &QPushButton::clicked, &stray, [&count] { ++count; });
    next.setUpdatesEnabled(false);
    buttonShows(next);
    mouse::click(place);
    mouse::pass(250ms);
    mouse::clickAgain(place);
    EXPECT_EQ(count, 0);

    next.setUpdatesEnabled(true);
    QCoreApplication::processEvents();
    mouse::pass(90ms);
    mouse::clickAgain(place);
    EXPECT_EQ(count, 0);
    mouse::pass(250ms);
    mouse::clickAgain(place);
    EXPECT_EQ(count, 1);
}

TEST_F(StrayPress, CountsFromTheEndOfThePaint)
{
    SlowButton stray;
    Window next(stray);
    int count = 0;
    QObject::connect(&stray, &QPushButton::clicked, &stray, [&count] { ++count; });
    buttonShows(next);
    mouse::click(place);
    mouse::pass(150ms);
    mouse::clickAgain(place);
    EXPECT_EQ(count, 0);
}

TEST_F(StrayPress, DoesNotCountOnAWindowThatWasJustUncovered)
{
    QPushButton ok;
    Window over(ok);
    QObject::connect(&ok, &QPushButton::clicked, &over, &QWidget::hide);
    over.setWindowModality(Qt::ApplicationModal);
    over.show();
    QCoreApplication::processEvents();
    mouse::doubleClick(place);
    EXPECT_FALSE(over.isVisible());
    EXPECT_EQ(pressed, 0);
    mouse::pass(250ms);
    mouse::clickAgain(place);
    EXPECT_EQ(pressed, 1);
}

TEST_F(StrayPress, DoesNotCountOnAHiddenWindow)
{
    first.hide();
    QTest::mouseClick(first.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(pressed, 0);
}

TEST_F(StrayPress, CountsAtAnotherPosition)
{
    QPushButton elsewhere;
    Window next(elsewhere);
    int count = 0;
    QObject::connect(&elsewhere, &QPushButton::clicked, &elsewhere, [&count] { ++count; });
    buttonShows(next);
    mouse::click(place);
    mouse::clickAgain(place + QPoint(40, 0));
    EXPECT_EQ(count, 1);
}

TEST_F(StrayPress, PutsTheCursorWhereATextBoxWasClicked)
{
    TextBox box;
    Window next(box);
    box.setText(u"Ladder Match and quite some more words"_s);
    buttonShows(next);
    mouse::click(place);
    expectActive(next);
    box.clearFocus();
    mouse::pass(250ms);
    mouse::clickAgain(place);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.cursorPosition(), box.cursorPositionAt(box.mapFromGlobal(place)));
    EXPECT_FALSE(box.hasSelectedText());
}

TEST_F(StrayPress, SelectsARowThatOnlyADoubleClickEdits)
{
    ListBox list;
    QStringListModel rows(QStringList(10, u"Singles / Ladder Match"_s));
    list.setModel(&rows);
    Window next(list);
    int edits = 0;
    QObject::connect(&list, &QListView::doubleClicked, &list, [&edits] { ++edits; });
    buttonShows(next);
    mouse::click(place);
    mouse::pass(250ms);
    mouse::clickAgain(place);
    EXPECT_TRUE(list.selectedRow());
    EXPECT_EQ(edits, 0);

    // The list remembers the row that was pressed last; returning to it is not a double click
    // either.
    next.hide();
    first.show();
    QCoreApplication::processEvents();
    mouse::click(place);
    mouse::pass(250ms);
    mouse::clickAgain(place);
    EXPECT_EQ(edits, 0);
    mouse::doubleClick(place);
    EXPECT_EQ(edits, 1);
}

TEST_F(StrayPress, OpensAList)
{
    ComboBox combo;
    combo.addItems({u"Any"_s, u"None"_s});
    Window next(combo);
    buttonShows(next);
    const QPoint arrow(kPlace.right() - 5, place.y());
    mouse::click(arrow);
    mouse::pass(250ms);
    mouse::clickAgain(arrow);
    EXPECT_TRUE(combo.view()->isVisible());
}

TEST_F(StrayPress, ThatClosesAMenuCountsOnTheControlBelow)
{
    QMenu menu;
    menu.addAction(u"Copy"_s);
    menu.popup(kPlace.bottomLeft() + QPoint(0, 50));
    QCoreApplication::processEvents();
    ASSERT_TRUE(menu.isVisible());
    mouse::press(place);
    EXPECT_FALSE(menu.isVisible());
    // On some systems Qt then delivers the press to the window below.
    QMouseEvent again(QEvent::MouseButtonPress, kPlace.center() - kPlace.topLeft(), place,
                      Qt::LeftButton, Qt::LeftButton, {});
    again.setTimestamp(static_cast<quint64>(QTest::lastMouseTimestamp));
    QCoreApplication::sendEvent(first.windowHandle(), &again);
    mouse::release(place);
    EXPECT_EQ(pressed, 1);
}

TEST_F(StrayPress, WithTheRealClockCountsOnlyAfterAPause)
{
    for (const int pause : {0, 250}) {
        DoubleClickGuard real;
        QPushButton stray;
        Window next(stray);
        int count = 0;
        QObject::connect(&stray, &QPushButton::clicked, &stray, [&count] { ++count; });
        first.show();
        QCoreApplication::processEvents();
        buttonShows(next);
        mouse::click(place);
        QTest::qWait(pause);
        mouse::pass(pause > 0
                        ? 250ms
                        : 210ms); // advances the event timestamps and the clock of the other guard
        mouse::clickAgain(place);
        EXPECT_EQ(count, pause > 0 ? 1 : 0);
    }
}

} // namespace
} // namespace tarvold::testing
