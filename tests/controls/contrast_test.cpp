#include "controls/contrast.h"

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

TEST(Contrast, BlackAndWhiteHaveRatio21)
{
    EXPECT_NEAR(contrast::ratio(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrast::ratio(Qt::white, Qt::black), 21, 1e-9);
}

TEST(Contrast, EqualColoursHaveRatio1)
{
    EXPECT_NEAR(contrast::ratio(QColor(12, 200, 77), QColor(12, 200, 77)), 1, 1e-9);
}

TEST(Contrast, MatchesPublishedExamples)
{
    // The lightest grey that passes for text on white, and the next lighter one.
    EXPECT_GE(contrast::ratio(QColor(0x76, 0x76, 0x76), Qt::white), 4.5);
    EXPECT_LT(contrast::ratio(QColor(0x77, 0x77, 0x77), Qt::white), 4.5);
    EXPECT_NEAR(contrast::ratio(Qt::red, Qt::white), 3.998, 0.001);
}

TEST(Contrast, KeepsAVisibleColour)
{
    const QColor blue(0x20, 0x40, 0x80);
    EXPECT_EQ(contrast::visible(blue, {Qt::white}, 3), blue);
}

TEST(Contrast, DarkensOrLightensAColourJustEnough)
{
    for (const QColor &behind : {QColor(Qt::white), QColor(Qt::black), QColor(Qt::yellow),
                                 QColor(0x2A, 0x2A, 0x2A), QColor(0xEF, 0xEF, 0xEF)}) {
        const double ratio = contrast::ratio(contrast::visible(behind, {behind}, 3), behind);
        EXPECT_GE(ratio, 3) << behind.name().toStdString();
        EXPECT_LT(ratio, 3.6) << behind.name().toStdString();
    }
}

TEST(Contrast, ContrastsWithAllBackgrounds)
{
    const QColor dark(0x2A, 0x2A, 0x2A);
    const QColor found = contrast::visible(Qt::white, {Qt::white, dark}, 3);
    EXPECT_GE(contrast::ratio(found, Qt::white), 3);
    EXPECT_GE(contrast::ratio(found, dark), 3);
}

TEST(Contrast, PicksTheBestColourIfNoneIsGoodEnough)
{
    const QColor found = contrast::visible(Qt::white, {Qt::white, Qt::black}, 7);
    EXPECT_GT(contrast::ratio(found, Qt::white), 4);
    EXPECT_GT(contrast::ratio(found, Qt::black), 4);
}

} // namespace
} // namespace tarvold::testing
