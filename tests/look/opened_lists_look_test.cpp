#include "look/checks.h"
#include "look/parts.h"
#include "look/views.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QScrollBar>

namespace tarvold::testing {
namespace {

/// Runs an action on the opened list of each combo box.
class OpenedListsLookTest : public LookTest
{
protected:
    template <class Action>
    void withEachList(const Action &action)
    {
        for (ComboBox *combo : parts::visible<ComboBox>(shown())) {
            parts::reveal(*combo);
            combo->setFocus(Qt::TabFocusReason);
            combo->showPopup();
            QAbstractItemView &list = *combo->view();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(list.window()));
            action(sceneOf(*list.window(), u"list of " + combo->objectName()), list);
            combo->hidePopup();
        }
    }
};

/// The same, for checks that do not depend on the palette.
class OpenedListsFitLookTest : public OpenedListsLookTest
{
};

} // namespace

TEST_P(OpenedListsLookTest, ItemsAndScrollBarsAreVisible)
{
    withEachList([](const Scene &scene, QAbstractItemView &list) {
        const int last = std::min(list.model()->rowCount(), 5) - 1;
        list.setCurrentIndex(list.model()->index(last, 0));
        checks::expectReadableRow(scene, "Text: highlighted items of opened lists", list, last);
        list.setCurrentIndex(list.model()->index(0, 0));
        checks::expectReadableRow(scene, "Text: items of opened lists", list, last);
        if (list.verticalScrollBar()->isVisible()) {
            checks::expectVisibleControls(scene);
        }
    });
}

TEST_P(OpenedListsFitLookTest, ItemsAreLargeEnoughAndNotCutOff)
{
    withEachList([](const Scene &scene, QAbstractItemView &list) {
        checks::expectLargeRows(scene, "Target: items of opened lists", list);
        checks::expectLargeTargets(scene);
        const bool haveToolTips = list.model()->index(0, 0).data(Qt::ToolTipRole).isValid();
        EXPECT_TRUE(haveToolTips || list.sizeHintForColumn(0) <= list.viewport()->width())
            << scene.name.toStdString() << " is " << list.viewport()->width() << " wide, its items "
            << list.sizeHintForColumn(0);
        checks::expectInScreen(scene);
    });
}

INSTANTIATE_TEST_SUITE_P(All, OpenedListsLookTest, ::testing::ValuesIn(allLooks()), nameOf);
INSTANTIATE_TEST_SUITE_P(All, OpenedListsFitLookTest, ::testing::ValuesIn(looksIn(Colours::Light)),
                         nameOf);

} // namespace tarvold::testing
