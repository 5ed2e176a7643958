#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <vector>

class QWidget;

namespace tarvold::testing {

/// A rendered part of a window. Positions are in device-independent pixels of the window, at any
/// screen scale; the picture is clipped to the window.
class Picture
{
public:
    /// Renders the area now. Fails the test if it is outside of the window.
    Picture(QWidget &window, const QRect &place);

    /// The colour at a position, or at the nearest position in the picture.
    QColor at(const QPointF &place) const;

    /// The most frequent colour of an area; for the rectangle of a text, its background.
    QColor commonest(const QRect &place) const;

    /// The highest contrast of any pixel in the area with a colour.
    double strongest(const QRect &place, const QColor &against) const;

    /// The contrast of a text with its background, the most frequent colour. The text colour is the
    /// one with the highest contrast: antialiased edges are between the two.
    double textContrast(const QRect &place) const { return strongest(place, commonest(place)); }

    /// The contrast of the outline, or the fill, of a control with its surroundings: on three lines
    /// across each side, the best contrast near the edge with the colour just outside; the result
    /// is the worst of these lines.
    double edgeContrast(const QRect &control) const;

    /// The contrasts of all changed pixels with another picture of the same area, highest first.
    std::vector<double> changesTo(const Picture &other) const;

    /// Screen pixels per device-independent pixel.
    double scale() const { return m_scale; }

private:
    double lineAcross(const QPointF &edge, const QPointF &outward) const;
    QRect onImage(const QRect &place) const;

    QRect m_place;
    QImage m_image;
    double m_scale;
};

} // namespace tarvold::testing
