#include "look/checks.h"
#include "look/parts.h"
#include "look/picture.h"
#include "support/contrast.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>

namespace tarvold::testing::checks {
namespace {

constexpr int kAround = 4; ///< pixels around a control in its picture

Picture pictureOf(const Scene &scene, const QRect &place)
{
    return {scene.window, place.adjusted(-kAround, -kAround, kAround, kAround)};
}

const char *kindOf(const QWidget &control)
{
    if (qobject_cast<const QComboBox *>(&control) != nullptr) {
        return "Control: combo boxes";
    }
    if (qobject_cast<const QAbstractButton *>(&control) != nullptr) {
        return "Control: buttons";
    }
    if (qobject_cast<const QAbstractItemView *>(&control) != nullptr) {
        return "Control: lists";
    }
    if (qobject_cast<const QScrollBar *>(&control) != nullptr) {
        return "Control: scroll bars";
    }
    return "Control: text boxes";
}

/// A symbol on a part of a control, such as an arrow, against its background.
void expectSymbol(const Scene &scene, const char *sort, const QWidget &control, const QRect &part)
{
    const QRect place = parts::placeOf(control, part.adjusted(3, 3, -3, -3));
    const Picture picture = pictureOf(scene, place);
    figures::expectAtLeast(scene, sort, parts::nameOf(control),
                           picture.strongest(place, picture.commonest(place)), contrast::kControl);
}

/// The thumb against its groove.
void expectThumb(const Scene &scene, const QScrollBar &bar)
{
    const QRect thumb = parts::placeOf(bar, parts::partOf(bar, QStyle::SC_ScrollBarSlider));
    const QRect groove = parts::placeOf(bar, parts::partOf(bar, QStyle::SC_ScrollBarGroove));
    const Picture picture = pictureOf(scene, groove);
    const bool isHorizontal = bar.orientation() == Qt::Horizontal;
    const QRect inner = isHorizontal ? thumb.adjusted(0, 4, 0, -4) : thumb.adjusted(4, 0, -4, 0);
    // The groove beside the thumb, without its outline.
    const QRect rest = isHorizontal
                           ? QRect(thumb.right() + 3, groove.top() + 3,
                                   groove.right() - thumb.right() - 5, groove.height() - 6)
                           : QRect(groove.left() + 3, thumb.bottom() + 3, groove.width() - 6,
                                   groove.bottom() - thumb.bottom() - 5);
    figures::expectAtLeast(scene, "Control: thumbs of scroll bars", parts::nameOf(bar),
                           picture.strongest(inner, picture.commonest(rest)), contrast::kControl);
}

/// Shows the last row whole above a horizontal bar: beside a row that is cut off, the bar's outline
/// would be compared with its text.
void showLastRow(const QScrollBar &bar)
{
    const QWidget *container = bar.parentWidget();
    auto *area = container == nullptr
                     ? nullptr
                     : qobject_cast<QAbstractScrollArea *>(container->parentWidget());
    if (area != nullptr && bar.orientation() == Qt::Horizontal) {
        area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    }
}

void expectVisibleBar(const Scene &scene, QScrollBar &bar)
{
    bar.setValue(bar.minimum());
    showLastRow(bar);
    parts::reveal(bar);
    const QRect place = parts::placeOf(bar);
    figures::expectAtLeast(scene, kindOf(bar), parts::nameOf(bar),
                           pictureOf(scene, place).edgeContrast(place), contrast::kControl);
    for (const auto arrow : {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine}) {
        expectSymbol(scene, "Control: arrows of scroll bars", bar, parts::partOf(bar, arrow));
    }
    expectThumb(scene, bar);
}

} // namespace

void expectVisibleControls(const Scene &scene)
{
    for (QWidget *control : parts::items(scene.window)) {
        if (qobject_cast<QLabel *>(control) != nullptr ||
            qobject_cast<QScrollBar *>(control) != nullptr) {
            continue;
        }
        parts::reveal(*control);
        const QRect place = parts::placeOf(*control, parts::frameOf(*control));
        figures::expectAtLeast(scene, kindOf(*control), parts::nameOf(*control),
                               pictureOf(scene, place).edgeContrast(place), contrast::kControl);
        if (auto *combo = qobject_cast<QComboBox *>(control)) {
            expectSymbol(scene, "Control: arrows of combo boxes", *combo,
                         parts::partOf(*combo, QStyle::SC_ComboBoxArrow));
        }
    }
    for (QScrollBar *bar : parts::visible<QScrollBar>(scene.window)) {
        expectVisibleBar(scene, *bar);
    }
}

} // namespace tarvold::testing::checks
