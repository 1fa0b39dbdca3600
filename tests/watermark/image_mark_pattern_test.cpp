// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_fixture.h"

#include <support/text_printing.h>

#include <cmath>

using namespace brenvaldo;
using test::ImageWatermark;

namespace {

class MarkPattern : public ImageWatermark
{
protected:
    MarkPattern()
    {
        QImage image = solidImage(20, 10, QColor(200, 40, 20));
        image.setPixelColor(0, 0, Qt::white); // the top left corner of each tile
        useImage(image);
        panel.cbPatternCheck.setState(1);
    }

    /// Places of the white corners along the first row and column that have one.
    static QList<QPoint> corners(const QImage& marked)
    {
        QList<QPoint> places;
        for (int y = 0; y < marked.height(); ++y) {
            for (int x = 0; x < marked.width(); ++x) {
                if (marked.pixel(x, y) == qRgb(255, 255, 255))
                    places.append({x, y});
            }
        }
        return places;
    }
};

} // namespace

TEST_F(MarkPattern, CoversThePhotoWithTilesAroundItsMiddle)
{
    const QImage result = marked(); // 6 tiles and one more across, 8 and one more along

    EXPECT_EQ(corners(result).first(), QPoint(10, 5));
    EXPECT_EQ(corners(result).value(1), QPoint(30, 5));
    EXPECT_EQ(corners(result).size(), 6 * 8);
    EXPECT_EQ(markedArea(result), QRect(0, 0, 120, 80));
}

TEST_F(MarkPattern, LeavesGapsOfTheOffsets)
{
    panel.tfImageXOffset.setStringValue(u"7"_s);
    panel.tfImageYOffset.setStringValue(u"4"_s);

    const QImage result = marked();

    // Tiles begin 10 to the left and 5 below; half of each gap, truncated, lies before a tile.
    const QList<QPoint> places = corners(result);
    EXPECT_EQ(places.first(), QPoint(20, 3));
    EXPECT_EQ(places.value(1), QPoint(47, 3));
    EXPECT_EQ(places.last().x(), 101);
    EXPECT_EQ(places.last().y(), 73);
    EXPECT_EQ(result.pixel(15, 60), qRgb(100, 100, 100));
}

TEST_F(MarkPattern, CutsTilesThatOverlapByNegativeOffsets)
{
    panel.tfImageXOffset.setStringValue(u"-6"_s);

    const QImage result = marked();

    EXPECT_EQ(markedArea(result), QRect(0, 0, 120, 80));
    EXPECT_TRUE(corners(result).isEmpty());
}

TEST_F(MarkPattern, OfCellsWithoutSizeLeavesNoMark)
{
    panel.tfImageXOffset.setStringValue(u"-20"_s);

    EXPECT_EQ(markedArea(marked()), QRect());
    EXPECT_EQ(done.value(0).word, u"OK"_s);
}

TEST_F(MarkPattern, ShowsOneTileWhenTheGapsAreLargerThanThePhoto)
{
    panel.tfImageXOffset.setStringValue(u"100"_s);
    panel.tfImageYOffset.setStringValue(u"90"_s);
    EXPECT_EQ(markedArea(marked()), QRect(40, 30, 20, 10));

    panel.tfImageXOffset.setStringValue(u"16000000"_s);
    EXPECT_EQ(markedArea(marked()), QRect());
}

TEST_F(MarkPattern, HasNoPlace)
{
    const QImage before = marked();
    panel.scImageWaterMarkPos.setSelectedSegment(8);

    EXPECT_EQ(marked(), before);
}

TEST_F(MarkPattern, OfAnImageLargerThanThePhotoShowsItsMiddle)
{
    QImage image = solidImage(200, 100, QColor(200, 40, 20));
    image.setPixelColor(100, 50, Qt::white);
    useImage(image);

    EXPECT_EQ(corners(marked()), QList<QPoint>{QPoint(60, 40)});
}

TEST_F(MarkPattern, KeepsTinyTilesOnTheEdgeOfThePhoto)
{
    QImage image = solidImage(1, 1, Qt::white);
    useImage(image);

    EXPECT_EQ(corners(marked()).size(), 120 * 80);
}

TEST_F(MarkPattern, TurnsAboutTheMiddleOfThePhoto)
{
    useImage(solidImage(30, 20, QColor(200, 40, 20)));
    panel.tfImageXOffset.setStringValue(u"30"_s);
    panel.tfImageYOffset.setStringValue(u"20"_s);
    panel.tfImageWMAngle.setStringValue(u"30"_s);

    const QImage result = marked();

    // The block: 5 tiles across (120 / 30 + 1) and 5 along give 150 x 100, half of the diagonal
    // is 90, so that the square's side is 182 and its middle lies on that of the photo.
    const double radians = 30 * 3.141592653589793 / 180;
    int compared = 0;
    for (int y = 4; y < 80; y += 3) {
        for (int x = 4; x < 120; x += 3) {
            const double right = x + 0.5 - 60;
            const double up = 40 - y - 0.5;
            const double u = 91 + right * std::cos(radians) + up * std::sin(radians);
            const double v = 91 - right * std::sin(radians) + up * std::cos(radians);
            const double inX = std::fmod(u, 60.0) - 15;
            const double inY = std::fmod(v, 40.0) - 10;
            const double distance = std::max(std::abs(inX - 15) - 15, std::abs(inY - 10) - 10);
            if (std::abs(distance) < 2)
                continue; // the soft edge
            EXPECT_EQ(result.pixel(x, y), distance < 0 ? qRgb(200, 40, 20) : qRgb(100, 100, 100))
                << x << ' ' << y;
            ++compared;
        }
    }
    EXPECT_GT(compared, 500);
}

TEST_F(MarkPattern, KeepsItsPixelsInAQuarterTurn)
{
    panel.tfImageXOffset.setStringValue(u"10"_s);
    panel.tfImageYOffset.setStringValue(u"10"_s);
    panel.tfImageWMAngle.setStringValue(u"90"_s);

    const QImage result = marked();

    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x)
            EXPECT_TRUE(
                result.pixel(x, y) == qRgb(100, 100, 100) || result.pixel(x, y) == qRgb(200, 40, 20)
                || result.pixel(x, y) == qRgb(255, 255, 255)
            );
    }
    const QList<QPoint> places = corners(result);
    ASSERT_GE(places.size(), 2);
    EXPECT_EQ(places.value(1) - places.value(0), QPoint(20, 0));
}

TEST_F(MarkPattern, FadesAsAWhole)
{
    useImage(solidImage(20, 10, Qt::black));
    panel.cbImageFadeOut.setState(1);
    panel.sliderFadeOutValue.setDoubleValue(1);

    const QImage result = marked();

    // The tiles are 140 wide and begin 10 to the left of the photo.
    for (const int x : {0, 30, 60, 119})
        EXPECT_NEAR(qGreen(result.pixel(x, 40)), 100 * (x + 10.5) / 140, 1.1) << x;

    panel.tfImageWMAngle.setStringValue(u"90"_s);
    const QImage turned = marked();
    for (const int x : {5, 60, 115})
        EXPECT_NEAR(qGreen(turned.pixel(x, 40)), 100 * (x + 0.5) / 120, 1.1) << x;
}

TEST_F(MarkPattern, FadesToASmallMiddleWhenInverted)
{
    useImage(solidImage(20, 10, Qt::black));
    panel.cbImageFadeOut.setState(1);
    panel.cbCircularFadeOut.setState(1);
    panel.cbCircularInvertFadeOut.setState(1);
    panel.sliderFadeOutValue.setDoubleValue(1);

    const QImage result = marked();

    // 140 x 90 tiles around the middle: whole from 45 on, gone up to 45 / 150.
    EXPECT_NEAR(qGreen(result.pixel(2, 40)), 0, 1);
    EXPECT_NEAR(qGreen(result.pixel(82, 39)), 100 * (1 - (22.5 - 0.3) / 44.7), 1.5);
}

TEST_F(MarkPattern, IsFilteredAndTranslucent)
{
    useImage(solidImage(20, 10, QColor(200, 40, 20)));
    panel.pubWatermarkFilterType.selectItemAtIndex(2);
    panel.tfImageTransparancy.setStringValue(u"50"_s);

    const QRgb pixel = marked().pixel(60, 40);

    EXPECT_NEAR(qRed(pixel), 77.5, 1);
    EXPECT_NEAR(qGreen(pixel), 157.5, 1);
}

TEST_F(MarkPattern, CastsAShadowBetweenItsTiles)
{
    useImage(solidImage(20, 10, QColor(200, 40, 20)));
    panel.tfImageXOffset.setStringValue(u"20"_s);
    panel.tfImageYOffset.setStringValue(u"20"_s);
    panel.cbImageShadowCheck.setState(1);
    panel.tfImageShadowXOffset.setStringValue(u"6"_s);
    panel.tfImageShadowYOffset.setStringValue(u"0"_s);
    panel.tfImageShadowRadius.setStringValue(u"0"_s);
    panel.cwImageShadowColor.setColor({.red = 0, .green = 1, .blue = 0});

    const QImage result = marked();

    // One tile's left edge lies at 0, 40 and 80; the shadow shows in 6 pixels behind its right one.
    EXPECT_EQ(result.pixel(10, 70), qRgb(200, 40, 20));
    EXPECT_EQ(result.pixel(23, 70), qRgb(0, 255, 0));
    EXPECT_EQ(result.pixel(63, 70), qRgb(0, 255, 0));
    EXPECT_EQ(result.pixel(28, 70), qRgb(100, 100, 100));
}
