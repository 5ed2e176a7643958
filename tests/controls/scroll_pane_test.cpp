#include "controls/scroll_pane.h"
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
