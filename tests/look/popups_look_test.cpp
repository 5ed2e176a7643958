#include "look/checks.h"
#include "look/parts.h"
#include "look/picture.h"
#include "look/views.h"
#include "support/contrast.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QListView>
#include <QMenu>
#include <QToolTip>

namespace tarvold::testing {
namespace {

/// The menus of text boxes and the tool tips of rows.
class PopupsLookTest : public LookTest
{
protected:
    /// Opens the context menu of the first text box with all of its actions enabled.
    QMenu *openMenu()
    {
        QLineEdit &box = *parts::visible<QLineEdit>(shown()).front();
        parts::reveal(box);
        QApplication::clipboard()->setText(QStringLiteral("pasted"));
        box.setFocus(Qt::TabFocusReason);
        box.insert(QStringLiteral("typed"));
        box.selectAll();
        const QPoint place = box.rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, box.mapToGlobal(place));
        QApplication::sendEvent(&box, &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
};

void expectReadableAction(const Scene &scene, const char *sort, const QMenu &menu, QAction *action)
{
    const QRect place = menu.actionGeometry(action).adjusted(4, 3, -4, -3);
    figures::expectAtLeast(scene, sort, action->text(),
                           Picture(scene.window, place).textContrast(place), contrast::kText);
}

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

TEST_P(PopupsLookTest, MenusOfTextBoxesCanBeReadAndHit)
{
    if (parts::visible<QLineEdit>(shown()).isEmpty()) {
        return;
    }
    QMenu *menu = openMenu();
    ASSERT_NE(menu, nullptr);
    const Scene scene = sceneOf(*menu, QStringLiteral("menu"));
    for (QAction *action : menu->actions()) {
        if (action->isSeparator()) {
            continue;
        }
        const QSize size = menu->actionGeometry(action).size();
        figures::expectAtLeast(scene, "Target: items of menus", action->text(),
                               std::min(size.width(), size.height()), 24);
        if (action->isEnabled()) { // what can't be used need not stand out
            menu->setActiveAction(nullptr);
            expectReadableAction(scene, "Text: items of menus", *menu, action);
            menu->setActiveAction(action);
            expectReadableAction(scene, "Text: highlighted items of menus", *menu, action);
        }
    }
    checks::expectInScreen(scene);
    menu->close();
}

TEST_P(PopupsLookTest, ToolTipsOfLongRowsCanBeRead)
{
    const QListView *list = parts::visible<QListView>(shown()).value(0);
    if (list == nullptr) {
        return;
    }
    const QPoint place = list->visualRect(list->model()->index(0, 0)).center();
    QHelpEvent event(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list->viewport(), &event);
    QWidget *tip = toolTip();
    ASSERT_NE(tip, nullptr);
    const QRect text = tip->rect().adjusted(3, 3, -3, -3);
    const Scene scene = sceneOf(*tip, QStringLiteral("tool tip"));
    figures::expectAtLeast(scene, "Text: tool tips", QStringLiteral("of the first row"),
                           Picture(*tip, text).textContrast(text), contrast::kText);
    checks::expectInScreen(scene);
    QToolTip::hideText();
}

INSTANTIATE_TEST_SUITE_P(All, PopupsLookTest, ::testing::ValuesIn(allLooks()), nameOf);

} // namespace tarvold::testing
