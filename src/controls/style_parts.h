#pragma once

#include <QPainter>
#include <QPalette>
#include <QRect>

/// What the controls of the program's style are drawn from.
namespace tarvold::styleparts {

/// Draws in antialiased lines while it lives, and leaves the painter as it was.
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

/// The outline of a control that is filled with the colour `fill`.
QColor outline(const QPalette &palette, const QColor &fill);

/// The mark of the control that has the focus.
QColor focusMark(const QPalette &palette, const QColor &fill);

/// A filled shape with rounded corners and its outline, or the focus mark in the outline's place.
void drawShape(QPainter &painter, const QRect &rect, const QPalette &palette, const QBrush &fill,
               bool hasFocus);

/// The arrow of a list or scroll bar, in the middle of a rectangle.
void drawArrow(QPainter &painter, const QRect &rect, Qt::ArrowType direction, const QColor &colour);

} // namespace tarvold::styleparts
