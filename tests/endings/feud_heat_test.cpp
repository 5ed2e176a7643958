#include "support/heat_test.h"
#include "support/spoken.h"

#include <QScrollBar>

namespace tarvold::testing {
namespace {

class FeudHeat : public HeatTest
{
protected:
    FeudHeat() : HeatTest(kRunInPath, "Form8") {}
};

TEST_F(FeudHeat, ShowsTenPercentWithoutABlankOnEntry)
{
    EXPECT_EQ(shown(), QStringLiteral("10%"));
}

TEST_F(FeudHeat, ShowsALeadingBlankOnceTheBarWasMoved)
{
    fill("Form8", {{"HScroll1", QStringLiteral("55")}});
    EXPECT_EQ(shown(), QStringLiteral(" 55%"));
    tabTo(screen("Form8"), "HScroll1");
    key(Qt::Key_End);
    EXPECT_EQ(shown(), QStringLiteral(" 100%"));
    key(Qt::Key_Home);
    EXPECT_EQ(shown(), QStringLiteral(" 1%"));
}

TEST_F(FeudHeat, ShowsABlankAlsoBackAtTen)
{
    tabTo(screen("Form8"), "HScroll1");
    key(Qt::Key_Right);
    key(Qt::Key_Left);
    EXPECT_EQ(shown(), QStringLiteral(" 10%"));
}

TEST_F(FeudHeat, TheLabelFollowsADraggedThumbOnlyWhenItIsLetGo)
{
    expectLabelFollowsOnlyWhenLetGo(QStringLiteral("10%"), QStringLiteral(" 100%"));
}

TEST_F(FeudHeat, ADragThatAKeyLeadsAwayFromChangesNothing)
{
    const QPoint before = startDrag();
    QTest::keyClick(screen("Form8").windowHandle(), Qt::Key_Right, Qt::AltModifier);
    expectOnly("Form9");
    QTest::keyClick(screen("Form9").windowHandle(), Qt::Key_Left, Qt::AltModifier);
    expectOnly("Form8");
    EXPECT_EQ(bar().value(), 10);
    EXPECT_EQ(bar().sliderPosition(), 10);
    EXPECT_FALSE(bar().isSliderDown());
    EXPECT_EQ(shown(), QStringLiteral("10%"));
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

TEST_F(FeudHeat, TheWheelTurnsItOnlyWhileItHasTheFocus)
{
    tabTo(screen("Form8"), "Combo3");
    turnWheel(bar(), 1);
    EXPECT_EQ(bar().value(), 10);
}

TEST_F(FeudHeat, TheNextEntryShowsTenPercentWithoutABlankAgain)
{
    fill("Form8", {{"HScroll1", QStringLiteral("55")}});
    press("Form8", "Command2");
    goBack(kRunInPath);
    goTo(kRunInPath, "Form8");
    EXPECT_EQ(shown(), QStringLiteral("10%"));
    EXPECT_EQ(bar().value(), 10);
}

} // namespace
} // namespace tarvold::testing
