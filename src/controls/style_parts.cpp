#include "controls/style_parts.h"

#include "controls/contrast.h"

namespace tarvold::styleparts {
namespace {

constexpr double kCorner = 3;
constexpr double kOutlineWidth = 1;
constexpr double kFocusWidth = 3;

} // namespace

QColor outline(const QPalette &palette, const QColor &fill)
{
    return contrast::visible(Qt::gray, {palette.color(QPalette::Window), fill}, contrast::kControl);
}

QColor focusMark(const QPalette &palette, const QColor &fill)
{
    return contrast::visible(palette.color(QPalette::Highlight),
                             {palette.color(QPalette::Window), fill}, contrast::kFocus);
}

void drawShape(QPainter &painter, const QRect &rect, const QPalette &palette, const QBrush &fill,
               bool hasFocus)
{
    const SmoothPainter smooth(painter);
    const double width = hasFocus ? kFocusWidth : kOutlineWidth;
    painter.setPen(
        QPen(hasFocus ? focusMark(palette, fill.color()) : outline(palette, fill.color()), width));
    painter.setBrush(fill);
    const QRectF middleOfLine =
        QRectF(rect).marginsRemoved(QMarginsF(width / 2, width / 2, width / 2, width / 2));
    painter.drawRoundedRect(middleOfLine, kCorner, kCorner);
}

void drawFocusMark(QPainter &painter, const QRect &rect, const QPalette &palette)
{
    const SmoothPainter smooth(painter);
    constexpr double kHalf = kFocusWidth / 2;
    painter.setPen(QPen(focusMark(palette, palette.color(QPalette::Window)), kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).marginsRemoved(QMarginsF(kHalf, kHalf, kHalf, kHalf)),
                            kCorner, kCorner);
}

void drawArrow(QPainter &painter, const QRect &rect, Qt::ArrowType direction, const QColor &colour)
{
    constexpr double kWide = 4;
    constexpr double kHigh = 2;
    const SmoothPainter smooth(painter);
    painter.translate(QRectF(rect).center());
    switch (direction) {
    case Qt::UpArrow:
        painter.rotate(180);
        break;
    case Qt::LeftArrow:
        painter.rotate(90);
        break;
    case Qt::RightArrow:
        painter.rotate(-90);
        break;
    default:
        break;
    }
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{-kWide, -kHigh}, {0, kHigh}, {kWide, -kHigh}}));
}

void drawTick(QPainter &painter, const QRect &rect, const QColor &colour)
{
    const SmoothPainter smooth(painter);
    const QRectF place(rect);
    const auto at = [&place](double across, double down) {
        return QPointF(place.left() + across * place.width(), place.top() + down * place.height());
    };
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({at(0.27, 0.52), at(0.44, 0.69), at(0.74, 0.32)}));
}

} // namespace tarvold::styleparts
