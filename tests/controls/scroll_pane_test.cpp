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

    bool isWhollySeen(const QWidget &box)
    {
        const QRect place(box.mapTo(pane.viewport(), QPoint()), box.size());
        return pane.viewport()->rect().contains(place);
    }

    QWidget window;
    ScrollPane &pane = *new ScrollPane;
    std::array<TextBox *, 12> boxes{};
};

TEST_F(ScrollPaneTest, ShowsAllWhereThereIsRoom)
{
    showAt(window.sizeHint().height());
    EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
    EXPECT_TRUE(isWhollySeen(*boxes.front()));
    EXPECT_TRUE(isWhollySeen(*boxes.back()));
}

TEST_F(ScrollPaneTest, ShowsABarWhereThereIsNone)
{
    showAt(200);
    EXPECT_TRUE(pane.verticalScrollBar()->isVisible());
    EXPECT_FALSE(pane.horizontalScrollBar()->isVisible());
    EXPECT_FALSE(isWhollySeen(*boxes.back()));
}

TEST_F(ScrollPaneTest, KeepsWhatTabReachesInSight)
{
    showAt(200);
    boxes.front()->setFocus();
    for (const TextBox *box : boxes) {
        EXPECT_TRUE(box->hasFocus());
        EXPECT_TRUE(isWhollySeen(*box));
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    }
    EXPECT_TRUE(boxes.front()->hasFocus()) << "the pane or its bar is a stop of its own";
    EXPECT_TRUE(isWhollySeen(*boxes.front()));
}

TEST_F(ScrollPaneTest, KeepsInSightWhatGetsTheFocusOtherwise)
{
    showAt(200);
    boxes.back()->setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(isWhollySeen(*boxes.back()));
}

} // namespace
} // namespace tarvold::testing
