#include "look/checks.h"
#include "look/parts.h"
#include "look/picture.h"
#include "look/views.h"
#include "support/contrast.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The context menu of text boxes, one of them yellow.
class MenuLookTest : public LookTest
{
protected:
    /// Opens the context menu of the first text box, with all actions enabled.
    QMenu *openMenu()
    {
        QLineEdit &box = *parts::visible<QLineEdit>(shown()).front();
        parts::reveal(box);
        QApplication::clipboard()->setText(u"pasted"_s);
        box.setFocus(Qt::TabFocusReason);
        box.insert(u"typed"_s);
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

} // namespace

TEST_P(MenuLookTest, ItemsAreReadableAndLargeEnough)
{
    QMenu *menu = openMenu();
    ASSERT_NE(menu, nullptr);
    const Scene scene = sceneOf(*menu, u"menu"_s);
    for (QAction *action : menu->actions()) {
        if (action->isSeparator()) {
            continue;
        }
        const QSize size = menu->actionGeometry(action).size();
        figures::expectAtLeast(scene, "Target: items of menus", action->text(),
                               std::min(size.width(), size.height()), 24);
        if (action->isEnabled()) { // disabled items may have a low contrast
            menu->setActiveAction(nullptr);
            expectReadableAction(scene, "Text: items of menus", *menu, action);
            menu->setActiveAction(action);
            expectReadableAction(scene, "Text: highlighted items of menus", *menu, action);
        }
    }
    checks::expectInScreen(scene);
    menu->close();
}

INSTANTIATE_TEST_SUITE_P(All, MenuLookTest, ::testing::ValuesIn(looksOf({"Form1", "Form7"})),
                         nameOf);

} // namespace tarvold::testing
