#include "controls/message_box.h"
#include "controls/scroll_bar.h"
#include "support/window_test.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class ScrollBarTest : public WindowTest
{
public:
    ScrollBarTest()
    {
        add(bar);
        bar.setValue(50);
    }
    ~ScrollBarTest() override { bar.setParent(nullptr); }

protected:
    void key(Qt::Key key) { QTest::keyClick(&bar, key); }

    QPoint thumb() const
    {
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Horizontal;
        option.state |= QStyle::State_Horizontal;
        option.minimum = bar.minimum();
        option.maximum = bar.maximum();
        option.pageStep = bar.pageStep();
        option.sliderPosition = bar.sliderPosition();
        return bar.style()
            ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar)
            .center();
    }

    void dragTo(QPoint place)
    {
        QMouseEvent move(QEvent::MouseMove, place, bar.mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&bar, &move);
    }

    /// Presses the thumb and moves it to the right, without releasing it.
    void drag(QPoint start)
    {
        QTest::mousePress(&bar, Qt::LeftButton, {}, start);
        dragTo(start + QPoint(30, 0));
        EXPECT_GT(bar.sliderPosition(), 50) << "the thumb was not dragged";
    }

    /// Fails the test unless thumb and value are at `value`, and moving the mouse, whose button is
    /// still down, does nothing.
    void expectNoDragAt(int value, QPoint start)
    {
        EXPECT_EQ(bar.value(), value);
        EXPECT_EQ(bar.sliderPosition(), value);
        EXPECT_FALSE(bar.isSliderDown());
        EXPECT_EQ(thumb(), start);
        dragTo(start + QPoint(40, 0));
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, start + QPoint(40, 0));
        EXPECT_EQ(bar.sliderPosition(), value);
        EXPECT_EQ(bar.value(), value);
    }

    ScrollBar bar{0, 100};
};

TEST_F(ScrollBarTest, RightAndUpRaiseByOneLeftAndDownLowerByOne)
{
    key(Qt::Key_Right);
    EXPECT_EQ(bar.value(), 51);
    key(Qt::Key_Up);
    EXPECT_EQ(bar.value(), 52);
    key(Qt::Key_Left);
    EXPECT_EQ(bar.value(), 51);
    key(Qt::Key_Down);
    EXPECT_EQ(bar.value(), 50);
}

TEST_F(ScrollBarTest, PageUpRaisesByOneAndPageDownLowersByOne)
{
    key(Qt::Key_PageUp);
    EXPECT_EQ(bar.value(), 51);
    key(Qt::Key_PageDown);
    key(Qt::Key_PageDown);
    EXPECT_EQ(bar.value(), 49);
}

TEST_F(ScrollBarTest, HomeAndEndGoToTheEnds)
{
    key(Qt::Key_Home);
    EXPECT_EQ(bar.value(), 0);
    key(Qt::Key_End);
    EXPECT_EQ(bar.value(), 100);
}

TEST_F(ScrollBarTest, KeysStopAtTheEnds)
{
    bar.setValue(100);
    key(Qt::Key_Right);
    EXPECT_EQ(bar.value(), 100);
    bar.setValue(0);
    key(Qt::Key_Left);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(ScrollBarTest, EveryKeyEmitsValueChangedAtOnce)
{
    const QSignalSpy changed(&bar, &QScrollBar::valueChanged);
    key(Qt::Key_Right);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.front().front().toInt(), 51);
}

TEST_F(ScrollBarTest, AWheelNotchChangesAFocusedBarByOne)
{
    turnWheel(bar, 1);
    EXPECT_EQ(bar.value(), 51);
    turnWheel(bar, -1);
    EXPECT_EQ(bar.value(), 50);
}

TEST_F(ScrollBarTest, ATouchpadChangesItByOnePerWholeNotch)
{
    for (int part = 0; part < 15; ++part) {
        EXPECT_EQ(bar.value(), 50) << part;
        strokeTouchpad(bar, 8);
    }
    EXPECT_EQ(bar.value(), 51);
    strokeTouchpad(bar, -240);
    EXPECT_EQ(bar.value(), 49);
}

TEST_F(ScrollBarTest, TheWheelDoesNothingWithoutFocus)
{
    elsewhere.setFocus();
    turnWheel(bar, 1);
    turnWheel(bar, -1);
    turnWheel(bar, -1);
    EXPECT_EQ(bar.value(), 50);
}

TEST_F(ScrollBarTest, ADragEmitsSliderMovedAndValueChangedOnlyOnRelease)
{
    const QSignalSpy changed(&bar, &QScrollBar::valueChanged);
    const QSignalSpy moved(&bar, &QScrollBar::sliderMoved);
    const QPoint start = thumb();
    QTest::mousePress(&bar, Qt::LeftButton, {}, start);
    dragTo(start + QPoint(30, 0));
    EXPECT_EQ(changed.count(), 0);
    ASSERT_EQ(moved.count(), 1);
    const int place = moved.front().front().toInt();
    EXPECT_GT(place, 50);
    EXPECT_EQ(bar.value(), 50);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, start + QPoint(30, 0));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(bar.value(), place);
}

TEST_F(ScrollBarTest, HidingTheBarDuringADragRestoresTheValue)
{
    const QSignalSpy moved(&bar, &QScrollBar::sliderMoved);
    const QPoint start = thumb();
    drag(start);
    window.hide();
    expectNoDragAt(50, start);
    ASSERT_EQ(moved.count(), 2);
    EXPECT_EQ(moved.back().front().toInt(), 50);
    window.show();
    expectNoDragAt(50, start);
}

TEST_F(ScrollBarTest, AMessageBoxDuringADragRestoresTheValue)
{
    const QPoint start = thumb();
    drag(start);
    boxes.expectNotice(title(), u"Stop."_s);
    messagebox::notice(&window, title(), u"Stop."_s);
    expectNoDragAt(50, start);
}

TEST_F(ScrollBarTest, AHeldArrowStopsWhenTheBarIsHidden)
{
    QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(bar.width() - 5, bar.height() / 2));
    const int value = bar.value();
    EXPECT_EQ(value, 51);
    window.hide();
    QTest::qWait(700); // longer than the auto-repeat delay of the arrow
    EXPECT_EQ(bar.value(), value);
}

TEST_F(ScrollBarTest, HidingABarThatIsNotDraggedChangesNothing)
{
    const QSignalSpy moved(&bar, &QScrollBar::sliderMoved);
    const QSignalSpy changed(&bar, &QScrollBar::valueChanged);
    window.hide();
    window.show();
    EXPECT_EQ(moved.count(), 0);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(bar.value(), 50);
}

TEST_F(ScrollBarTest, TabReachesIt)
{
    elsewhere.setFocus();
    QTest::keyClick(&elsewhere, Qt::Key_Backtab);
    EXPECT_TRUE(bar.hasFocus());
    QTest::keyClick(&bar, Qt::Key_Tab);
    EXPECT_TRUE(elsewhere.hasFocus());
}

TEST_F(ScrollBarTest, ItsFocusIsVisible)
{
    const QImage focused = bar.grab().toImage();
    elsewhere.setFocus();
    EXPECT_NE(bar.grab().toImage(), focused);
}

} // namespace
} // namespace tarvold::testing
