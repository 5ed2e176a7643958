#pragma once

#include <QProxyStyle>

class QStyleOptionButton;

namespace tarvold {

/// The style of all windows: flat, the same on every desktop, in the desktop's own colours.
///
/// Outlines of controls and focus marks have a contrast ratio of at least 3 to 1 with what is
/// around them, selected text has 4.5 to 1, and every click target has at least the size given in
/// sizes.h. A combo box that takes no text opens its list wherever it is clicked. The focus mark is
/// shown whether the focus came by mouse or keyboard.
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
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     const QPoint &place, const QWidget *widget) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;

private:
    void drawCheckBox(const QStyleOptionButton &option, QPainter &painter,
                      const QWidget *widget) const;
    void drawComboBox(const QStyleOptionComplex &option, QPainter &painter,
                      const QWidget *widget) const;
    void drawScrollBar(const QStyleOptionComplex &option, QPainter &painter,
                       const QWidget *widget) const;
};

} // namespace tarvold
