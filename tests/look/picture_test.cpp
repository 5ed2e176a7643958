#include "look/picture.h"
#include "support/contrast.h"

#include <QPainter>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

const QColor kGrey(0x76, 0x76, 0x76);
const QRect kBox(20, 20, 40, 30);

/// A white widget with a box that has a grey outline, one pixel wide, with an optional gap, and a
/// word in it.
class Drawing : public QWidget
{
public:
    Drawing() { resize(100, 80); }

    QColor word = Qt::black;
    QRect gap;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.fillRect(kBox, kGrey);
        painter.fillRect(kBox.adjusted(1, 1, -1, -1), Qt::white);
        painter.fillRect(gap, Qt::white);
        painter.fillRect(QRect(30, 30, 3, 8), word);
    }
};

} // namespace

TEST(ContrastTest, MatchesTheGuidelines)
{
    EXPECT_DOUBLE_EQ(contrast::ratio(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(contrast::ratio(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(contrast::ratio(kGrey, kGrey), 1);
    EXPECT_NEAR(contrast::ratio(kGrey, Qt::white), 4.54, 0.005);
    EXPECT_NEAR(contrast::ratio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
}

TEST(PictureTest, TextContrastIsTheHighestWithTheMostFrequentColour)
{
    Drawing drawing;
    drawing.word = kGrey;
    const Picture picture(drawing, drawing.rect());
    const QRect inside = kBox.adjusted(4, 4, -4, -4);
    EXPECT_EQ(picture.commonest(inside), QColor(Qt::white));
    EXPECT_NEAR(picture.textContrast(inside), 4.54, 0.005);
}

TEST(PictureTest, AnOutlineMustBeOnAllSides)
{
    Drawing drawing;
    EXPECT_NEAR(Picture(drawing, drawing.rect()).edgeContrast(kBox), 4.54, 0.005);
    for (const QRect &gap :
         {QRect(20, 20, 40, 1), QRect(20, 49, 40, 1), QRect(20, 20, 1, 30), QRect(59, 20, 1, 30)}) {
        drawing.gap = gap;
        EXPECT_DOUBLE_EQ(Picture(drawing, drawing.rect()).edgeContrast(kBox), 1);
    }
}

TEST(PictureTest, ChangesAreCountedInScreenPixels)
{
    Drawing drawing;
    const Picture before(drawing, drawing.rect());
    drawing.word = Qt::white;
    const std::vector<double> changes = before.changesTo(Picture(drawing, drawing.rect()));
    const double scale = before.scale();
    EXPECT_GE(double(changes.size()), 3 * 8 * scale * scale - 1);
    EXPECT_DOUBLE_EQ(changes.front(), 21);
}

} // namespace tarvold::testing
