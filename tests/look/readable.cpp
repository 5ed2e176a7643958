#include "look/checks.h"
#include "look/parts.h"
#include "look/picture.h"
#include "support/contrast.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tarvold::testing::checks {

using namespace Qt::StringLiterals;

namespace {

void expectText(const Scene &scene, const char *sort, const QString &part, const QRect &place)
{
    const Picture picture(scene.window, place);
    figures::expectAtLeast(scene, sort, part, picture.textContrast(place), contrast::kText);
}

bool isYellow(const QLineEdit &box)
{
    return box.palette().color(QPalette::Base) == QColor(Qt::yellow);
}

const char *sortOf(const QLineEdit &box)
{
    if (box.hasSelectedText()) {
        return box.isActiveWindow() ? "Text: selected in a box"
                                    : "Text: selected in a box, inactive window";
    }
    if (isYellow(box)) {
        return "Text: in the yellow line";
    }
    return box.isActiveWindow() ? "Text: in boxes" : "Text: in boxes, inactive window";
}

void expectBox(const Scene &scene, QLineEdit &box)
{
    const bool isInCombo = qobject_cast<QComboBox *>(box.parentWidget()) != nullptr;
    const QString part = parts::nameOf(isInCombo ? *box.parentWidget() : box);
    parts::reveal(box);
    expectText(scene, sortOf(box), part, parts::textOf(box));
}

} // namespace

void expectReadable(const Scene &scene)
{
    for (QLabel *label : parts::visible<QLabel>(scene.window)) {
        if (!label->text().isEmpty()) {
            parts::reveal(*label);
            expectText(scene, "Text: labels", parts::nameOf(*label), parts::textOf(*label));
        }
    }
    for (QPushButton *button : parts::visible<QPushButton>(scene.window)) {
        if (!button->isEnabled()) {
            continue; // may be pale
        }
        parts::reveal(*button);
        expectText(scene, "Text: buttons", parts::nameOf(*button), parts::textOf(*button));
    }
    for (QLineEdit *box : parts::visible<QLineEdit>(scene.window)) {
        if (box->isEnabled()) {
            expectBox(scene, *box);
        }
    }
}

void expectReadableSelections(const Scene &scene)
{
    for (QLineEdit *box : parts::visible<QLineEdit>(scene.window)) {
        box->setFocus(Qt::TabFocusReason);
        box->selectAll(); // one at a time, as the desktop has a single selection
        expectBox(scene, *box);
        box->deselect();
    }
}

void expectReadableRow(const Scene &scene, const char *sort, const QAbstractItemView &list, int row)
{
    expectText(scene, sort, parts::nameOf(list) + u" row "_s + QString::number(row),
               parts::rowTextOf(list, row));
}

} // namespace tarvold::testing::checks
