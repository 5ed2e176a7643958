#include "controls/bounded_column.h"
#include "controls/text_box.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

class BoundedColumnTest : public ::testing::Test
{
protected:
    BoundedColumnTest()
    {
        column.setContentsMargins({});
        column.addWidget(&box);
        column.addStretch();
    }

    void showAt(const QSize &size)
    {
        window.resize(size);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    QWidget window;
    BoundedColumn &column = *new BoundedColumn(&window);
    TextBox &box = *new TextBox;
};

TEST_F(BoundedColumnTest, FillsAWindowThatIsNarrowerThanItsMaximum)
{
    column.setMost({400, 300});
    showAt({350, 200});
    EXPECT_EQ(box.width(), 350);
    EXPECT_EQ(column.geometry(), QRect(0, 0, 350, 200));
}

TEST_F(BoundedColumnTest, LeavesTheRestOfALargerWindowEmpty)
{
    column.setMost({400, 300});
    showAt({900, 800});
    EXPECT_EQ(box.geometry().left(), 0);
    EXPECT_EQ(box.width(), 400);
    EXPECT_EQ(column.geometry(), QRect(0, 0, 400, 300));
}

TEST_F(BoundedColumnTest, IsOnTheRightWhereTextRunsFromRightToLeft)
{
    window.setLayoutDirection(Qt::RightToLeft);
    column.setMost({400, 300});
    showAt({900, 800});
    EXPECT_EQ(box.geometry().right(), 899);
}

TEST_F(BoundedColumnTest, BecomesAsTallAsItsContentNeeds)
{
    box.setMinimumHeight(500);
    column.setMost({400, 300});
    showAt({900, 800});
    EXPECT_EQ(column.geometry().height(), 500);
}

TEST_F(BoundedColumnTest, WrapsTextAtItsOwnWidth)
{
    auto *label = new QLabel(u"word "_s.repeated(60));
    label->setWordWrap(true);
    column.addWidget(label);
    column.setMost({200, QWIDGETSIZE_MAX});
    EXPECT_EQ(column.heightForWidth(1000), column.heightForWidth(200));
    EXPECT_EQ(column.minimumHeightForWidth(1000), column.minimumHeightForWidth(200));
    showAt({1000, 800});
    EXPECT_GE(label->height(), label->heightForWidth(200));
}

} // namespace
} // namespace tarvold::testing
