#include "screens/screens.h"
#include "support/print.h"
#include "support/stub_screen.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using One = StubScreen<'1'>;
using Two = StubScreen<'2'>;

class ScreensTest : public ::testing::Test
{
protected:
    ScreensTest()
    {
        screens.declare<One>();
        screens.declare<Two>();
    }

    Screens screens;
};

TEST_F(ScreensTest, NoScreenExistsBeforeItIsNeeded)
{
    EXPECT_FALSE(screens.exists(One::kName));
    screens.get<One>();
    EXPECT_TRUE(screens.exists(One::kName));
    EXPECT_FALSE(screens.exists(Two::kName));
}

TEST_F(ScreensTest, AScreenIsCreatedOnceAndKept)
{
    const QSignalSpy created(&screens, &Screens::created);
    One &first = screens.get<One>();
    EXPECT_EQ(&screens.get<One>(), &first);
    EXPECT_EQ(&screens[One::kName], &first);
    EXPECT_EQ(created.count(), 1);
}

TEST_F(ScreensTest, ANewScreenIsNotShownYet)
{
    EXPECT_FALSE(screens.get<One>().isVisible());
}

TEST_F(ScreensTest, AScreenHasItsNameAndTheCommonTitle)
{
    EXPECT_EQ(screens.get<One>().objectName(), QLatin1StringView(One::kName));
    EXPECT_EQ(screens.get<One>().windowTitle(), u"Tarvold 1.3 Data Editor"_s);
}

TEST_F(ScreensTest, AScreenTakesOverPositionAndSize)
{
    One &one = screens.get<One>();
    Two &two = screens.get<Two>();
    one.show();
    one.resize(731, 622);
    one.move(40, 30);
    two.replace(one);
    EXPECT_EQ(two.size(), QSize(731, 622));
    EXPECT_EQ(two.pos(), one.pos());
    EXPECT_EQ(two.pos(), QPoint(40, 30));
    EXPECT_TRUE(two.isVisible());
    EXPECT_FALSE(one.isVisible());
}

TEST_F(ScreensTest, AScreenTakesOverTheMaximizedState)
{
    One &one = screens.get<One>();
    Two &two = screens.get<Two>();
    one.showMaximized();
    two.replace(one);
    EXPECT_TRUE(two.isMaximized());
    one.showNormal();
    two.replace(one);
    EXPECT_FALSE(two.isMaximized());
}

TEST_F(ScreensTest, TextsOfControlsAreReadAndWrittenByName)
{
    screens.setText({One::kName, "Text1"}, u"mine"_s);
    EXPECT_EQ(screens.text({One::kName, "Text1"}), u"mine"_s);
    EXPECT_FALSE(screens.exists(Two::kName));
}

} // namespace
} // namespace tarvold::testing
