#include "look/picture.h"

#include "support/contrast.h"

#include <QHash>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace tarvold::testing {

Picture::Picture(QWidget &window, const QRect &place)
    : m_place(place & window.rect())
    , m_scale(window.devicePixelRatioF())
{
    // Align with whole screen pixels at scales of 125 % and 150 % too.
    constexpr int kGrid = 4;
    m_place.setTopLeft(
        {m_place.left() - m_place.left() % kGrid, m_place.top() - m_place.top() % kGrid});
    if (m_place.isEmpty()) {
        ADD_FAILURE() << "the area is outside of the window";
        m_image = QImage(1, 1, QImage::Format_RGB32);
        m_image.fill(Qt::black);
        return;
    }
    m_image = window.grab(m_place).toImage().convertToFormat(QImage::Format_RGB32);
}

QRect Picture::onImage(const QRect &place) const
{
    const QRectF moved = QRectF(place).translated(-m_place.topLeft());
    const QRect pixels(
        QPoint(qCeil(moved.left() * m_scale), qCeil(moved.top() * m_scale)),
        QPoint(qFloor(moved.right() * m_scale) - 1, qFloor(moved.bottom() * m_scale) - 1));
    return pixels & m_image.rect();
}

QColor Picture::at(const QPointF &place) const
{
    const QPointF moved = (place - m_place.topLeft()) * m_scale;
    return m_image.pixelColor(qBound(0, qFloor(moved.x()), m_image.width() - 1),
                              qBound(0, qFloor(moved.y()), m_image.height() - 1));
}

QColor Picture::commonest(const QRect &place) const
{
    const QRect pixels = onImage(place);
    QHash<QRgb, int> counts;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            ++counts[m_image.pixel(x, y)];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    return most == counts.end() ? QColor(Qt::black) : QColor(most.key());
}

double Picture::strongest(const QRect &place, const QColor &against) const
{
    const QRect pixels = onImage(place);
    QHash<QRgb, bool> seen;
    double best = 1;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const QRgb colour = m_image.pixel(x, y);
            if (!std::exchange(seen[colour], true)) {
                best = std::max(best, contrast::ratio(QColor(colour), against));
            }
        }
    }
    return best;
}

double Picture::lineAcross(const QPointF &edge, const QPointF &outward) const
{
    constexpr double kOutside = 2.5; // beside the control, but not on a neighbour
    constexpr double kInside = 4;    // on its outline, but not on its text
    const QColor outside = at(edge + outward * kOutside);
    double best = 1;
    for (double depth = 0.25; depth < kInside; depth += 0.5) {
        best = std::max(best, contrast::ratio(at(edge - outward * depth), outside));
    }
    return best;
}

double Picture::edgeContrast(const QRect &control) const
{
    const QRectF place(control);
    double worst = 21;
    for (const double part : {0.25, 0.5, 0.75}) {
        const double x = place.left() + part * place.width();
        const double y = place.top() + part * place.height();
        worst = std::min(
            {worst, lineAcross({x, place.top()}, {0, -1}), lineAcross({x, place.bottom()}, {0, 1}),
             lineAcross({place.left(), y}, {-1, 0}), lineAcross({place.right(), y}, {1, 0})});
    }
    return worst;
}

std::vector<double> Picture::changesTo(const Picture &other) const
{
    EXPECT_EQ(m_image.size(), other.m_image.size());
    std::vector<double> changes;
    const QRect both = m_image.rect() & other.m_image.rect();
    for (int y = both.top(); y <= both.bottom(); ++y) {
        const auto *ours = reinterpret_cast<const QRgb *>(m_image.constScanLine(y));
        const auto *theirs = reinterpret_cast<const QRgb *>(other.m_image.constScanLine(y));
        for (int x = both.left(); x <= both.right(); ++x) {
            if (ours[x] != theirs[x]) {
                changes.push_back(contrast::ratio(QColor(ours[x]), QColor(theirs[x])));
            }
        }
    }
    std::sort(changes.rbegin(), changes.rend());
    return changes;
}

} // namespace tarvold::testing
