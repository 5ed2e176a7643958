#include "look/checks.h"
#include "look/parts.h"
#include "look/picture.h"
#include "look/views.h"
#include "support/contrast.h"

#include <QApplication>
#include <QHelpEvent>
#include <QListView>
#include <QToolTip>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The rows of the two screens with a list, and the tool tips of long rows.
class ListLookTest : public LookTest
{
protected:
    QListView &list() { return *parts::visible<QListView>(shown()).front(); }
};

QWidget *toolTip()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("QTipLabel")) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

TEST_P(ListLookTest, RowsAreReadable)
{
    checks::expectReadableRow(scene(), "Text: rows of lists", list(), 0);
    list().setCurrentIndex(list().model()->index(1, 0));
    list().setFocus(Qt::TabFocusReason);
    checks::expectReadableRow(scene(), "Text: selected rows", list(), 1);
    list().clearFocus();
    checks::expectReadableRow(scene(), "Text: selected rows without focus", list(), 1);
    QWidget other;
    other.show();
    expectActive(other);
    checks::expectReadableRow(scene(), "Text: selected rows, inactive window", list(), 1);
}

TEST_P(ListLookTest, ToolTipsOfLongRowsAreReadable)
{
    const QPoint place = list().visualRect(list().model()->index(0, 0)).center();
    QHelpEvent event(QEvent::ToolTip, place, list().viewport()->mapToGlobal(place));
    QApplication::sendEvent(list().viewport(), &event);
    QWidget *tip = toolTip();
    ASSERT_NE(tip, nullptr);
    const QRect text = tip->rect().adjusted(3, 3, -3, -3);
    const Scene scene = sceneOf(*tip, u"tool tip"_s);
    figures::expectAtLeast(scene, "Text: tool tips", u"of the first row"_s,
                           Picture(*tip, text).textContrast(text), contrast::kText);
    checks::expectInScreen(scene);
    QToolTip::hideText();
}

INSTANTIATE_TEST_SUITE_P(All, ListLookTest,
                         ::testing::ValuesIn(looksOf({"Form16", "Form2WithFiles"})), nameOf);

} // namespace tarvold::testing
