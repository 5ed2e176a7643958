#include "controls/editor_style.h"
#include "controls/style_parts.h"

#include <QStyleOption>

namespace tarvold {

void EditorStyle::drawScrollBar(const QStyleOptionComplex &option, QPainter &painter,
                                const QWidget *widget) const
{
    const QPalette &palette = option.palette;
    const auto rectOf = [&](SubControl part) {
        return proxy()->subControlRect(CC_ScrollBar, &option, part, widget);
    };
    const QColor groove = palette.color(QPalette::Base);
    styleparts::drawShape(painter, option.rect, palette, groove,
                          option.state.testFlag(State_HasFocus));
    const bool isHorizontal = option.state.testFlag(State_Horizontal);
    const QColor ink = palette.color(QPalette::Text);
    styleparts::drawArrow(painter, rectOf(SC_ScrollBarSubLine),
                          isHorizontal ? Qt::LeftArrow : Qt::UpArrow, ink);
    styleparts::drawArrow(painter, rectOf(SC_ScrollBarAddLine),
                          isHorizontal ? Qt::RightArrow : Qt::DownArrow, ink);
    const bool isDragged =
        option.activeSubControls == SC_ScrollBarSlider && option.state.testFlag(State_Sunken);
    const QColor thumb =
        isDragged ? styleparts::focusMark(palette, groove) : styleparts::outline(palette, groove);
    styleparts::drawShape(painter, rectOf(SC_ScrollBarSlider).adjusted(3, 3, -3, -3), palette,
                          thumb, false);
}

} // namespace tarvold
