#include "look/checks.h"
#include "look/parts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QScrollBar>

#include <algorithm>

namespace tarvold::testing::checks {

using namespace Qt::StringLiterals;

namespace {

constexpr double kLeast = 24;

void expectTarget(const Scene &scene, const char *sort, const QString &part, const QSize &size)
{
    figures::expectAtLeast(scene, sort, part, std::min(size.width(), size.height()), kLeast);
}

void expectBar(const Scene &scene, QScrollBar &bar)
{
    const QString name = parts::nameOf(bar);
    for (const auto arrow : {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine}) {
        expectTarget(scene, "Target: arrows of scroll bars", name,
                     parts::partOf(bar, arrow).size());
    }
    const int value = bar.value();
    for (const int place :
         {bar.minimum(), bar.minimum() + (bar.maximum() - bar.minimum()) / 2, bar.maximum()}) {
        bar.setValue(place);
        expectTarget(scene, "Target: thumbs of scroll bars", name,
                     parts::partOf(bar, QStyle::SC_ScrollBarSlider).size());
    }
    bar.setValue(value);
}

const char *sortOf(const QWidget &control)
{
    if (qobject_cast<const QAbstractButton *>(&control) != nullptr) {
        return "Target: buttons";
    }
    return qobject_cast<const QComboBox *>(&control) != nullptr ? "Target: combo boxes"
                                                                : "Target: text boxes and lists";
}

} // namespace

void expectLargeTargets(const Scene &scene)
{
    for (QWidget *control : parts::focusable(scene.window)) {
        if (qobject_cast<QScrollBar *>(control) == nullptr) {
            expectTarget(scene, sortOf(*control), parts::nameOf(*control), control->size());
        }
    }
    for (QComboBox *combo : parts::visible<QComboBox>(scene.window)) {
        expectTarget(scene, "Target: arrows of combo boxes", parts::nameOf(*combo),
                     parts::partOf(*combo, QStyle::SC_ComboBoxArrow).size());
    }
    for (QScrollBar *bar : parts::visible<QScrollBar>(scene.window)) {
        expectBar(scene, *bar);
    }
}

void expectLargeRows(const Scene &scene, const char *sort, const QAbstractItemView &list)
{
    constexpr int kMost = 50; // rows of long lists, which are all equal
    for (int row = 0; row < std::min(kMost, list.model()->rowCount()); ++row) {
        const QSize size = list.visualRect(list.model()->index(row, 0)).size();
        expectTarget(scene, sort, parts::nameOf(list) + u" row "_s + QString::number(row), size);
    }
}

} // namespace tarvold::testing::checks
