#include "controls/editor_style.h"

#include "controls/contrast.h"
#include "controls/sizes.h"
#include "controls/style_parts.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QStyleOption>
#include <QTabBar>
#include <QTextEdit>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFrame = 3;       ///< room for the focus mark
constexpr int kCheckMark = 18;  ///< the side of a check box's square
constexpr int kCheckMargin = 6; ///< beside a check box and its caption
constexpr int kHeaderMargin = 4;

bool hasFocus(const QStyleOption &option)
{
    return option.state.testFlag(QStyle::State_HasFocus);
}

bool isList(const QWidget *widget)
{
    return qobject_cast<const QAbstractItemView *>(widget) != nullptr;
}

/// Whether its content stands on the background of boxes.
bool isBox(const QWidget *widget)
{
    return isList(widget) || qobject_cast<const QTextEdit *>(widget) != nullptr;
}

/// Marks the focused row of a list and the focused tab. Buttons show the focus on their outline
/// instead.
void drawFocusRect(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const bool isTab = qobject_cast<const QTabBar *>(widget) != nullptr;
    if (!isList(widget) && !isTab) {
        return;
    }
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorRole box = isSelected ? QPalette::Highlight : QPalette::Base;
    const QColor behind = option.palette.color(isTab ? QPalette::Window : box);
    constexpr int kOfTabs = 126; // how much lighter than buttons Qt's style draws dark tabs
    const QColor tab = option.palette.color(QPalette::Button).lighter(kOfTabs);
    painter.save();
    painter.setPen(QPen(contrast::visible(option.palette.color(QPalette::Highlight),
                                          {behind, isTab ? tab : behind},
                                          isTab ? contrast::kFocus : contrast::kControl),
                        kFrame));
    painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
    painter.restore();
}

/// The colour of a button: normal, hovered or pressed.
QColor buttonColour(const QStyleOption &option)
{
    const QColor rest = option.palette.color(QPalette::Button);
    if (option.state.testFlag(QStyle::State_Sunken)) {
        return rest.darker(115);
    }
    return option.state.testFlag(QStyle::State_MouseOver) ? rest.lighter(112) : rest.lighter(105);
}

/// Whether this is a combo box that takes no text, or its opened list.
bool takesNoText(const QWidget *widget)
{
    const auto *combo = qobject_cast<const QComboBox *>(widget);
    if (combo == nullptr && widget != nullptr) {
        combo = qobject_cast<const QComboBox *>(widget->parentWidget());
    }
    return combo != nullptr && combo->isEditable() && combo->lineEdit()->isReadOnly();
}

QSize leastSize(QStyle::ContentsType type)
{
    switch (type) {
    case QStyle::CT_PushButton:
    case QStyle::CT_LineEdit:
    case QStyle::CT_ComboBox:
        return {kLeastTarget, kControlHeight};
    case QStyle::CT_HeaderSection:
    case QStyle::CT_ItemViewItem:
    case QStyle::CT_MenuBarItem:
    case QStyle::CT_MenuItem:
    case QStyle::CT_TabBarTab:
        return {kLeastTarget, kLeastTarget};
    default:
        return {};
    }
}

} // namespace

EditorStyle::EditorStyle() : QProxyStyle(u"Fusion"_s) {}

void EditorStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    // Some desktops show the selection of an inactive list nearly as pale as the list.
    const QColor letters = palette.color(QPalette::Active, QPalette::HighlightedText);
    const QColor behind = contrast::visible(palette.color(QPalette::Active, QPalette::Highlight),
                                            {letters}, contrast::kText);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::HighlightedText, letters);
        palette.setColor(group, QPalette::Highlight, behind);
    }
}

int EditorStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                           QStyleHintReturn *returned) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0; // some desktops add tick and cross icons that say nothing new
    }
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

int EditorStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                             const QWidget *widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        return kFrame;
    case PM_HeaderMargin:
        return kHeaderMargin;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return kCheckMark;
    case PM_ScrollBarExtent:
    case PM_ScrollBarSliderMin:
        return kLeastTarget;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QRect EditorStyle::subElementRect(SubElement element, const QStyleOption *option,
                                  const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    switch (element) {
    case SE_CheckBoxIndicator: // beside it and the caption is room for the focus mark
    case SE_CheckBoxContents:
        return rect.translated(option->direction == Qt::LeftToRight ? kCheckMargin : -kCheckMargin,
                               0);
    default:
        return rect;
    }
}

QSize EditorStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                    const QSize &contents, const QWidget *widget) const
{
    if (type == CT_CheckBox) {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return (size + QSize(2 * kCheckMargin, 0)).expandedTo({kLeastTarget, kControlHeight});
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget)
        .expandedTo(leastSize(type));
}

QRect EditorStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                  SubControl part, const QWidget *widget) const
{
    if (control != CC_ComboBox || (part != SC_ComboBoxArrow && part != SC_ComboBoxEditField)) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const QRect &whole = option->rect;
    const QRect arrow = whole.adjusted(whole.width() - kControlHeight, 0, 0, 0);
    const QRect field = whole.adjusted(kFrame, kFrame, -arrow.width(), -kFrame);
    return visualRect(option->direction, whole, part == SC_ComboBoxArrow ? arrow : field);
}

QStyle::SubControl EditorStyle::hitTestComplexControl(ComplexControl control,
                                                      const QStyleOptionComplex *option,
                                                      const QPoint &place,
                                                      const QWidget *widget) const
{
    if (control == CC_ComboBox && takesNoText(widget) && option->rect.contains(place)) {
        return SC_ComboBoxArrow;
    }
    return QProxyStyle::hitTestComplexControl(control, option, place, widget);
}

void EditorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    const QPalette &palette = option->palette;
    switch (element) {
    case PE_PanelLineEdit:
        if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
            frame != nullptr && frame->lineWidth > 0) {
            styleparts::drawShape(*painter, option->rect, palette, palette.base(),
                                  hasFocus(*option));
            return;
        }
        break;
    case PE_PanelButtonCommand:
        styleparts::drawShape(*painter, option->rect, palette, buttonColour(*option),
                              hasFocus(*option));
        return;
    case PE_IndicatorCheckBox:
        // The focus mark is around the caption, too.
        styleparts::drawShape(*painter, option->rect, palette, palette.base(), false);
        if (option->state.testFlag(State_On)) {
            styleparts::drawTick(*painter, option->rect, palette.color(QPalette::Text));
        }
        return;
    case PE_Frame:
        styleparts::drawShape(*painter, option->rect, palette,
                              isBox(widget) ? palette.base() : palette.window(),
                              widget != nullptr && widget->hasFocus());
        return;
    case PE_FrameFocusRect:
        drawFocusRect(*option, *painter, widget);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void EditorStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (element != CE_TabBarTabLabel || tab == nullptr || !hasFocus(*tab)) {
        if (const auto *check = qstyleoption_cast<const QStyleOptionButton *>(option);
            element == CE_CheckBox && check != nullptr) {
            drawCheckBox(*check, *painter, widget);
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
        return;
    }
    QStyleOptionTab label = *tab; // Fusion would draw a focus mark of its own, too pale to see
    label.state &= ~State_HasFocus;
    QProxyStyle::drawControl(element, &label, painter, widget);
    label.rect.adjust(kFrame, kFrame, -kFrame, -kFrame);
    drawFocusRect(label, *painter, widget);
}

void EditorStyle::drawCheckBox(const QStyleOptionButton &option, QPainter &painter,
                               const QWidget *widget) const
{
    QStyleOptionButton part = option;
    part.rect = proxy()->subElementRect(SE_CheckBoxIndicator, &option, widget);
    proxy()->drawPrimitive(PE_IndicatorCheckBox, &part, &painter, widget);
    part.rect = proxy()->subElementRect(SE_CheckBoxContents, &option, widget);
    proxy()->drawControl(CE_CheckBoxLabel, &part, &painter, widget);
    if (hasFocus(option)) {
        styleparts::drawFocusMark(painter, option.rect, option.palette);
    }
}

void EditorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     QPainter *painter, const QWidget *widget) const
{
    if (control == CC_ComboBox) {
        drawComboBox(*option, *painter, widget);
    } else if (control == CC_ScrollBar) {
        drawScrollBar(*option, *painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void EditorStyle::drawComboBox(const QStyleOptionComplex &option, QPainter &painter,
                               const QWidget *widget) const
{
    const QPalette &palette = option.palette;
    styleparts::drawShape(painter, option.rect, palette, palette.base(), hasFocus(option));
    styleparts::drawArrow(painter,
                          proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget),
                          Qt::DownArrow, palette.color(QPalette::Text));
}

} // namespace tarvold
