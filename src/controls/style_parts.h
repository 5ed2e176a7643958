#pragma once

#include <QPainter>
#include <QPalette>
#include <QRect>

/// Drawing functions for the parts of controls.
namespace tarvold::styleparts {

/// Turns on antialiasing while it lives, then restores the painter.
class SmoothPainter
{
public:
    explicit SmoothPainter(QPainter &painter) : m_painter(painter)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
    }
    ~SmoothPainter() { m_painter.restore(); }
    SmoothPainter(const SmoothPainter &) = delete;
    SmoothPainter &operator=(const SmoothPainter &) = delete;

private:
    QPainter &m_painter;
};

/// The colour of the outline of a control that is filled with the colour `fill`.
QColor outline(const QPalette &palette, const QColor &fill);

/// The colour of the focus mark around a control that is filled with the colour `fill`.
QColor focusMark(const QPalette &palette, const QColor &fill);

/// Draws a filled rectangle with rounded corners and its outline, or the focus mark instead of the
/// outline.
void drawShape(QPainter &painter, const QRect &rect, const QPalette &palette, const QBrush &fill,
               bool hasFocus);

/// Draws the focus mark around a part that has no outline, on the background of the window.
void drawFocusMark(QPainter &painter, const QRect &rect, const QPalette &palette);

/// Draws the arrow of a combo box or scroll bar in the centre of a rectangle.
void drawArrow(QPainter &painter, const QRect &rect, Qt::ArrowType direction, const QColor &colour);

/// Draws the tick of a check box in the centre of a rectangle.
void drawTick(QPainter &painter, const QRect &rect, const QColor &colour);

} // namespace tarvold::styleparts
