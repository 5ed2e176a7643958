#include "support/heat_test.h"
#include "support/spoken.h"

#include <QScrollBar>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class FeudHeat : public HeatTest
{
protected:
    FeudHeat() : HeatTest(kRunInPath, "Form8") {}
};

TEST_F(FeudHeat, ShowsTenPercentWithoutABlankOnEntry)
{
    EXPECT_EQ(shown(), u"10%"_s);
}

TEST_F(FeudHeat, ShowsALeadingBlankOnceTheBarWasMoved)
{
    fill("Form8", {{"HScroll1", u"55"_s}});
    EXPECT_EQ(shown(), u" 55%"_s);
    tabTo(screen("Form8"), "HScroll1");
    key(Qt::Key_End);
    EXPECT_EQ(shown(), u" 100%"_s);
    key(Qt::Key_Home);
    EXPECT_EQ(shown(), u" 1%"_s);
}

TEST_F(FeudHeat, ShowsTheBlankEvenBackAtTen)
{
    tabTo(screen("Form8"), "HScroll1");
    key(Qt::Key_Right);
    key(Qt::Key_Left);
    EXPECT_EQ(shown(), u" 10%"_s);
}

TEST_F(FeudHeat, TheLabelChangesOnlyWhenTheDraggedThumbIsReleased)
{
    expectLabelFollowsOnlyWhenLetGo(u"10%"_s, u" 100%"_s);
}

TEST_F(FeudHeat, ADragThatAKeyInterruptsChangesNothing)
{
    const QPoint before = startDrag();
    QTest::keyClick(screen("Form8").windowHandle(), Qt::Key_Right, Qt::AltModifier);
    expectOnly("Form9");
    QTest::keyClick(screen("Form9").windowHandle(), Qt::Key_Left, Qt::AltModifier);
    expectOnly("Form8");
    EXPECT_EQ(bar().value(), 10);
    EXPECT_EQ(bar().sliderPosition(), 10);
    EXPECT_FALSE(bar().isSliderDown());
    EXPECT_EQ(shown(), u"10%"_s);
    EXPECT_EQ(thumb(), before);
}

TEST_F(FeudHeat, MovesInStepsOfOne)
{
    expectStepsOfOne();
}

TEST_F(FeudHeat, StaysBetweenOneAndAHundred)
{
    expectStaysInRange();
}

TEST_F(FeudHeat, TheWheelMovesItOnlyWhileItHasTheFocus)
{
    tabTo(screen("Form8"), "Combo3");
    turnWheel(bar(), 1);
    EXPECT_EQ(bar().value(), 10);
}

TEST_F(FeudHeat, TheNextEntryShowsTenPercentWithoutABlankAgain)
{
    fill("Form8", {{"HScroll1", u"55"_s}});
    press("Form8", "Command2");
    goBack(kRunInPath);
    goTo(kRunInPath, "Form8");
    EXPECT_EQ(shown(), u"10%"_s);
    EXPECT_EQ(bar().value(), 10);
}

} // namespace
} // namespace tarvold::testing
