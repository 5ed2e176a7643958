#pragma once

#include <QProxyStyle>

namespace tarvold {

/// The style of all windows: flat, the same on every desktop, in the desktop's own colours.
///
/// What tells a control from its surroundings, and what marks the focus, contrasts at least 3 to 1
/// with what is around it, selected text 4.5 to 1, and whatever can be aimed at is at least as
/// large as sizes.h says. A combo box that takes no text is all arrow for the mouse. The focus is
/// marked whether it came by mouse or keyboard.
class EditorStyle : public QProxyStyle
{
    Q_OBJECT
public:
    EditorStyle();

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     const QPoint &place, const QWidget *widget) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;

private:
    void drawComboBox(const QStyleOptionComplex &option, QPainter &painter,
                      const QWidget *widget) const;
    void drawScrollBar(const QStyleOptionComplex &option, QPainter &painter,
                       const QWidget *widget) const;
};

} // namespace tarvold
