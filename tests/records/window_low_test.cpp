#include "records/window_fixture.h"
#include "support/spoken.h"

#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>

namespace tarvold::testing {
namespace {

/// A window as low as on a display of 1366 by 768 pixels at some scales, frame and task bar
/// included.
struct LowWindow
{
    const char *scale;
    QSize size;
};

std::ostream &operator<<(std::ostream &stream, const LowWindow &window)
{
    return stream << window.scale;
}

class LowWindowTest : public RecordsWindowTest, public ::testing::WithParamInterface<LowWindow>
{
protected:
    /// A file whose first record has three problems, and whose second has none.
    void openLow()
    {
        open(ending("A <nobodyknows> and <anotherone> and <yetanotherone>") + endings(40, 2));
        window().resize(GetParam().size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window().size(), GetParam().size);
    }

    QScrollBar &paneBar() { return *part<QScrollArea>("pane").verticalScrollBar(); }

    static bool isWhole(const QWidget &control)
    {
        return control.visibleRegion().boundingRect() == control.rect();
    }

    /// Where a control is in the window.
    int heightOf(const QWidget &control) { return control.mapTo(&window(), QPoint()).y(); }

    /// Follows Tab, or Backtab, once around the window.
    void expectFocusInSight(Qt::Key key)
    {
        const QWidget *start = QApplication::focusWidget();
        int stops = 0;
        do {
            press(key == Qt::Key_Tab ? QKeySequence(key) : QKeySequence(Qt::SHIFT | Qt::Key_Tab));
            const QWidget *focus = QApplication::focusWidget();
            ASSERT_NE(focus, nullptr);
            EXPECT_TRUE(isWhole(*focus))
                << focus->objectName().toStdString() << " is not whole in sight";
            ASSERT_LT(++stops, 100);
        } while (QApplication::focusWidget() != start);
        EXPECT_GT(stops, 5);
    }
};

TEST_P(LowWindowTest, SearchFirstRowsCountAndMenusAreInSight)
{
    openLow();
    for (const char *name : {"search", "onlyProblems", "kind", "list", "counts", "viewtabs"}) {
        EXPECT_TRUE(isWhole(part<QWidget>(name))) << name;
    }
    for (int row = 0; row < 5; ++row) {
        EXPECT_TRUE(list().viewport()->rect().contains(
            list().visualRect(list().model()->index(row, 0)).center()))
            << row;
    }
    EXPECT_TRUE(isWhole(*window().menuBar()));
    typeInto(kCommentary, u"Saved here"_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(onDisk().contains("Saved here"));
}

TEST_P(LowWindowTest, EveryControlIsInSightWhenItHasTheFocus)
{
    openLow();
    for (const Qt::Key view : {Qt::Key_1, Qt::Key_2}) {
        press(Qt::CTRL | view);
        expectFocusInSight(Qt::Key_Tab);
        expectFocusInSight(Qt::Key_Backtab);
    }
}

TEST_P(LowWindowTest, TheFocusedFieldStaysInSightWhenTheWindowGetsLower)
{
    openLow();
    window().resize(GetParam().size + QSize(0, 500));
    QCoreApplication::processEvents();
    typeInto(9, u"Any"_s);
    ASSERT_TRUE(isWhole(part<QWidget>("field9")));
    window().resize(GetParam().size);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isWhole(part<QWidget>("field9")));
    EXPECT_TRUE(part<QWidget>("field9").hasFocus());
}

TEST_P(LowWindowTest, AFieldStaysInItsPlaceWhenProblemsComeAndGo)
{
    openLow();
    clickRow(1);
    QWidget &editor = field(kCommentary);
    tabTo(window(), "field27");
    press(QKeySequence::SelectAll);
    QTest::keyClicks(&editor, u"A <nobodyknows> comes"_s);
    ASSERT_TRUE(isWhole(editor));
    press(Qt::Key_Return); // keeps the text, which has a problem
    QCoreApplication::processEvents();
    EXPECT_TRUE(part<QWidget>("problems").isVisible());
    EXPECT_TRUE(editor.hasFocus());
    EXPECT_TRUE(isWhole(editor));
    const int place = heightOf(editor);
    press(QKeySequence::SelectAll);
    QTest::keyClicks(&editor, u"No tag comes"_s);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_FALSE(part<QWidget>("problems").isVisible());
    EXPECT_TRUE(isWhole(editor));
    if (paneBar().maximum() > 0) {
        EXPECT_LE(std::abs(heightOf(editor) - place), editor.height());
    }
}

TEST_P(LowWindowTest, GoingToAProblemShowsItsField)
{
    openLow();
    QWidget &problems = part<QWidget>("problems");
    problems.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"field27"_s);
    EXPECT_TRUE(isWhole(part<QWidget>("field27")));
}

TEST_P(LowWindowTest, TheWholePaneIsReachedByScrolling)
{
    openLow();
    press(Qt::CTRL | Qt::Key_1);
    paneBar().setValue(paneBar().maximum());
    EXPECT_TRUE(isWhole(part<QWidget>("shown")) || isWhole(part<QWidget>("legend")));
    paneBar().setValue(0);
    EXPECT_TRUE(isWhole(part<QWidget>("conditions")));
    EXPECT_EQ(part<QScrollArea>("pane").horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(part<QScrollArea>("fields").horizontalScrollBar()->maximum(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, LowWindowTest,
                         ::testing::Values(LowWindow{"At150Percent", {894, 464}},
                                           LowWindow{"At200Percent", {667, 336}}),
                         [](const auto &row) { return std::string(row.param.scale); });

} // namespace
} // namespace tarvold::testing
