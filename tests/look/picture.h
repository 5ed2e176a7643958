#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <vector>

class QWidget;

namespace tarvold::testing {

/// A picture of a part of a window, as it is drawn. Places are in the window's device-independent
/// pixels, whatever the scale of the screen; what is outside of the window is not in the picture.
class Picture
{
public:
    /// Draws the part of the window now. A place that is not in the window at all makes a picture
    /// of nothing.
    Picture(QWidget &window, const QRect &place);

    /// The colour at a place; at the nearest one where the place is not in the picture.
    QColor at(const QPointF &place) const;

    /// The colour of most pixels of a place: of a text's rectangle, what the text is drawn on.
    QColor commonest(const QRect &place) const;

    /// The greatest contrast of any pixel of the place with a colour.
    double strongest(const QRect &place, const QColor &against) const;

    /// The contrast of a text with what it is drawn on. Its own colour is the extreme against the
    /// commonest one: the edges of letters are mixed from both, and can only lie between.
    double textContrast(const QRect &place) const { return strongest(place, commonest(place)); }

    /// How well the outline, or the fill, of a control can be told from what is around it: on three
    /// lines across each side, the best contrast near the edge with the colour just outside; the
    /// worst of these lines.
    double edgeContrast(const QRect &control) const;

    /// The contrasts of all pixels with those of another picture of the same place, the greatest
    /// first.
    std::vector<double> changesTo(const Picture &other) const;

    /// How many pixels of the screen a device-independent pixel is wide.
    double scale() const { return m_scale; }

private:
    double lineAcross(const QPointF &edge, const QPointF &outward) const;
    QRect onImage(const QRect &place) const;

    QRect m_place;
    QImage m_image;
    double m_scale;
};

} // namespace tarvold::testing
