#include "support/heat_test.h"

#include "support/spoken.h"

#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tarvold::testing {
namespace {

/// A part of a horizontal bar, such as its thumb.
QRect partOf(const QScrollBar &bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Horizontal;
    option.state |= QStyle::State_Horizontal;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

void clickPart(QScrollBar &bar, QStyle::SubControl part)
{
    QTest::mouseClick(&bar, Qt::LeftButton, {}, partOf(bar, part).center());
}

} // namespace

HeatTest::HeatTest(const FlowPath &flow, const char *screen) : m_screen(screen)
{
    goTo(flow, screen);
}

QScrollBar &HeatTest::bar()
{
    return screen(m_screen).control<QScrollBar>("HScroll1");
}

void HeatTest::key(Qt::Key key)
{
    ASSERT_TRUE(bar().hasFocus());
    QTest::keyClick(screen(m_screen).windowHandle(), key);
}

QPoint HeatTest::thumb()
{
    return partOf(bar(), QStyle::SC_ScrollBarSlider).center();
}

QPoint HeatTest::rightEnd()
{
    return {bar().width() + 50, bar().height() / 2};
}

QPoint HeatTest::startDrag()
{
    expectReachable(bar());
    const QPoint start = thumb();
    QTest::mousePress(&bar(), Qt::LeftButton, {}, start);
    QTest::mouseMove(&bar(), rightEnd());
    EXPECT_EQ(bar().sliderPosition(), 100) << "the thumb was not dragged";
    return start;
}

void HeatTest::expectLabelFollowsOnlyWhenLetGo(const QString &before, const QString &after)
{
    startDrag();
    EXPECT_EQ(shown(), before);
    QTest::mouseRelease(&bar(), Qt::LeftButton, {}, rightEnd());
    EXPECT_EQ(shown(), after);
    EXPECT_EQ(bar().value(), 100);
}

void HeatTest::expectStepsOfOne()
{
    tabTo(screen(m_screen), "HScroll1");
    EXPECT_EQ(bar().value(), 10);
    key(Qt::Key_Right);
    EXPECT_EQ(bar().value(), 11);
    key(Qt::Key_Up);
    EXPECT_EQ(bar().value(), 12);
    key(Qt::Key_Left);
    EXPECT_EQ(bar().value(), 11);
    key(Qt::Key_Down);
    EXPECT_EQ(bar().value(), 10);
    turnWheel(bar(), 1);
    EXPECT_EQ(bar().value(), 11);
    turnWheel(bar(), -1);
    EXPECT_EQ(bar().value(), 10);
    clickPart(bar(), QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(bar().value(), 11);
    clickPart(bar(), QStyle::SC_ScrollBarSubLine);
    EXPECT_EQ(bar().value(), 10);
    clickPart(bar(), QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(bar().value(), 11);
    clickPart(bar(), QStyle::SC_ScrollBarSubPage);
    EXPECT_EQ(bar().value(), 10);
}

void HeatTest::expectStaysInRange()
{
    tabTo(screen(m_screen), "HScroll1");
    key(Qt::Key_End);
    key(Qt::Key_Right);
    EXPECT_EQ(bar().value(), 100);
    key(Qt::Key_Home);
    key(Qt::Key_Left);
    EXPECT_EQ(bar().value(), 1);
}

} // namespace tarvold::testing
