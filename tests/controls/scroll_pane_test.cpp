#include "controls/bounded_column.h"
#include "controls/scroll_pane.h"
#include "controls/sizes.h"
#include "controls/text_box.h"
#include "support/events.h"

#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

class ScrollPaneTest : public ::testing::Test
{
protected:
    ScrollPaneTest()
    {
        (new QVBoxLayout(&window))->addWidget(&pane);
        for (TextBox *&box : boxes) {
            box = new TextBox;
            pane.column().addWidget(box);
        }
    }

    void showAt(int height)
    {
        window.resize(300, height);
        window.show();
        expectActive(window);
    }

    bool isFullyVisible(const QWidget &box)
    {
        const QRect place(box.mapTo(pane.viewport(), QPoint()), box.size());
        return pane.viewport()->rect().contains(place);
    }

    /// The current gap between two boxes.
    int gap() { return pane.column().spacing(); }

    QWidget window;
    ScrollPane &pane = *new ScrollPane;
    std::array<TextBox *, 12> boxes{};
};

TEST_F(ScrollPaneTest, ShowsEverythingIfThereIsRoom)
{
    showAt(window.sizeHint().height());
    EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
    EXPECT_TRUE(isFullyVisible(*boxes.front()));
    EXPECT_TRUE(isFullyVisible(*boxes.back()));
}

TEST_F(ScrollPaneTest, ShowsAScrollBarIfThereIsNoRoom)
{
    showAt(200);
    EXPECT_TRUE(pane.verticalScrollBar()->isVisible());
    EXPECT_FALSE(pane.horizontalScrollBar()->isVisible());
    EXPECT_FALSE(isFullyVisible(*boxes.back()));
}

TEST_F(ScrollPaneTest, ShrinksItsGapsBeforeItScrolls)
{
    showAt(window.sizeHint().height());
    EXPECT_EQ(gap(), kGap);
    const int saved = 11 * 4; // between 12 boxes
    window.resize(300, window.height() - saved);
    QCoreApplication::processEvents();
    EXPECT_EQ(gap(), kGap - 4);
    EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
    EXPECT_TRUE(isFullyVisible(*boxes.back()));
    window.resize(300, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(gap(), kGap / 3);
    EXPECT_TRUE(pane.verticalScrollBar()->isVisible());
}

TEST_F(ScrollPaneTest, WidensItsGapsALittleWhereThereIsRoomToSpare)
{
    pane.column().addStretch();
    showAt(1000);
    EXPECT_EQ(gap(), kGap * 3 / 2);
}

TEST_F(ScrollPaneTest, FitsItsGapsAgainWhenRowsAreHidden)
{
    showAt(200);
    EXPECT_EQ(gap(), kGap / 3);
    for (TextBox *box : boxes) {
        box->setVisible(box == boxes.front() || box == boxes.back());
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(gap(), kGap * 3 / 2);
    EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
}

TEST_F(ScrollPaneTest, ScrollsToWhatTabReaches)
{
    showAt(200);
    boxes.front()->setFocus();
    for (const TextBox *box : boxes) {
        EXPECT_TRUE(box->hasFocus());
        EXPECT_TRUE(isFullyVisible(*box));
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    }
    EXPECT_TRUE(boxes.front()->hasFocus()) << "Tab stops at the pane or its scroll bar";
    EXPECT_TRUE(isFullyVisible(*boxes.front()));
}

TEST_F(ScrollPaneTest, ScrollsToWhatGetsTheFocusOtherwise)
{
    showAt(200);
    boxes.back()->setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(isFullyVisible(*boxes.back()));
}

} // namespace
} // namespace tarvold::testing
