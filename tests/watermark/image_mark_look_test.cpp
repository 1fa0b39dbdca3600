// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_fixture.h"

#include <platform/filters/filter.h>

#include <support/text_printing.h>

#include <QSet>

#include <cmath>

using namespace brenvaldo;
using platform::filters::Filter;
using platform::filters::FilterImage;
using platform::graphics::Image;
using test::ImageWatermark;
using test::PhotoBuilder;
using test::PhotoModel;

namespace {

/// The share of a black image that is seen at a pixel of a photo of 100.
double shareAt(const QImage& marked, int x, int y)
{
    return 1 - qGreen(marked.pixel(x, y)) / 100.0;
}

class FadedMark : public ImageWatermark
{
protected:
    FadedMark()
    {
        useImage(solidImage(100, 60, Qt::black));
        panel.cbImageFadeOut.setState(1);
        panel.sliderFadeOutValue.setDoubleValue(0.5);
    }
};

class FilteredMark : public ImageWatermark
{
protected:
    QImage filteredBy(int type)
    {
        panel.pubWatermarkFilterType.selectItemAtIndex(type);
        return marked();
    }
};

class ShadowedMark : public ImageWatermark
{
protected:
    ShadowedMark()
    {
        panel.cbImageShadowCheck.setState(1);
        panel.tfImageShadowRadius.setStringValue(u"0"_s);
        panel.tfImageShadowXOffset.setStringValue(u"5"_s);
        panel.tfImageShadowYOffset.setStringValue(u"-8"_s);
        panel.cwImageShadowColor.setColor({.red = 0, .green = 1, .blue = 0});
    }
};

} // namespace

TEST_F(FadedMark, FallsAlongItsAngle)
{
    const QImage result = marked();
    for (const int x : {0, 10, 25, 49, 50, 99})
        EXPECT_NEAR(shareAt(result, x, 30), std::max(0.0, 1 - (x + 0.5) / 50), 0.011) << x;

    panel.tfImageFadeOutAngle.setStringValue(u"90"_s);
    const QImage upward = marked();
    for (const int y : {59, 50, 40, 30, 5})
        EXPECT_NEAR(shareAt(upward, 50, y), std::max(0.0, 1 - (59.5 - y) / 30), 0.011) << y;
}

TEST_F(FadedMark, FallsRoundItsMiddle)
{
    panel.cbCircularFadeOut.setState(1);

    const QImage result = marked();

    const auto expected = [](double x, double y) {
        return std::max(0.0, 1 - std::hypot(x + 0.5 - 50, y + 0.5 - 30) / 14);
    };
    for (const QPoint point : {QPoint(50, 30), QPoint(55, 30), QPoint(50, 40), QPoint(65, 30)})
        EXPECT_NEAR(shareAt(result, point.x(), point.y()), expected(point.x(), point.y()), 0.011);
}

TEST_F(FadedMark, FallsTowardItsMiddleWhenInverted)
{
    panel.cbCircularFadeOut.setState(1);
    panel.cbCircularInvertFadeOut.setState(1);

    const QImage result = marked();

    EXPECT_NEAR(shareAt(result, 2, 2), 1, 0.011);
    EXPECT_NEAR(shareAt(result, 72, 30), (22.5 - 15) / 15, 0.02);
    EXPECT_NEAR(shareAt(result, 60, 30), 0, 0.011);
}

TEST_F(FadedMark, FallsWithinAHundredthWithTheSliderAtZero)
{
    panel.sliderFadeOutValue.setDoubleValue(0);

    const QImage result = marked();

    EXPECT_NEAR(shareAt(result, 0, 30), 0.5, 0.011);
    EXPECT_NEAR(shareAt(result, 1, 30), 0, 0.011);
}

TEST_F(FadedMark, FollowsTheSizeThatTheResolutionsMatchAt)
{
    panel.cbCircularFadeOut.setState(1);
    panel.sliderFadeOutValue.setDoubleValue(1);
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .solid({100, 100, 100})
                              .dotsPerInch(300)
                              .format(test::PhotoFormat::Png)
                              .write(sources.path(u"a.png"_s));

    run({photo});

    // A mask of 24 x 15 points, whose disc of 5.5 is stretched over the image.
    const QImage result = test::storedPixels(folder.path(u"a.png"_s));
    const double scale = 24.0 / 100;
    EXPECT_NEAR(shareAt(result, 60, 30), 1 - std::hypot(10.5 * scale, 0.125) / 5.5, 0.02);
}

TEST_F(FadedMark, IsFilteredAfterItFades)
{
    panel.pubWatermarkFilterType.selectItemAtIndex(2);

    const QImage result = marked();

    EXPECT_NEAR(qGreen(result.pixel(10, 30)), 100 + 155 * 0.79, 3);
    EXPECT_EQ(result.pixel(80, 30), qRgb(100, 100, 100));
}

TEST_F(FilteredMark, IsBlackAndWhite)
{
    const QRgb pixel = filteredBy(1).pixel(5, 5);

    EXPECT_EQ(qRed(pixel), qGreen(pixel));
    EXPECT_EQ(qGreen(pixel), qBlue(pixel));
    EXPECT_NE(qGreen(pixel), 100);
}

TEST_F(FilteredMark, IsNegative) { EXPECT_EQ(filteredBy(2).pixel(5, 5), qRgb(55, 215, 235)); }

TEST_F(FilteredMark, IsUnchangedByAFilterThatIsNone)
{
    EXPECT_EQ(filteredBy(0).pixel(5, 5), qRgb(200, 40, 20));
}

TEST_F(FilteredMark, HasLinesThatTurnWithTheAngle)
{
    useImage(solidImage(60, 60, QColor(128, 128, 128)));
    panel.tfWatermarkFilterSize.setStringValue(u"10"_s);
    const QImage lying = filteredBy(4);
    EXPECT_EQ(lying.pixel(5, 30), lying.pixel(45, 30));
    EXPECT_NE(lying.pixel(30, 5), lying.pixel(30, 10));

    panel.tfLineScreenAngle.setStringValue(u"90"_s);
    const QImage standing = filteredBy(4);
    EXPECT_NEAR(qGreen(standing.pixel(30, 5)), qGreen(standing.pixel(30, 45)), 1);
    EXPECT_NE(standing.pixel(5, 30), standing.pixel(10, 30));
}

TEST_F(FilteredMark, TurnsDotsAndLinesInOppositeDirections)
{
    constexpr double pi = 3.141592653589793;
    const QImage image = solidImage(60, 60, QColor(128, 128, 128));
    useImage(image);
    panel.tfWatermarkFilterSize.setStringValue(u"12"_s);
    panel.tfLineScreenAngle.setStringValue(u"30"_s);
    const auto screened = [&image](const QString& filter, double angle) {
        const Image layer = Image::fromQImage(image);
        const auto made = Filter::filterWithName(filter)
                              ->setValue(u"inputImage"_s, FilterImage(layer))
                              .setValue(u"inputWidth"_s, 12.0)
                              .setValue(u"inputAngle"_s, angle)
                              .setValue(u"inputSharpness"_s, 0.0)
                              .outputImage();
        return made->toImage(layer).toQImage().convertToFormat(QImage::Format_RGB32);
    };
    const QRect area(0, 0, 60, 60);

    EXPECT_EQ(
        filteredBy(3).copy(area).convertToFormat(QImage::Format_RGB32),
        screened(u"CIDotScreen"_s, pi / 6)
    );
    EXPECT_EQ(
        filteredBy(4).copy(area).convertToFormat(QImage::Format_RGB32),
        screened(u"CILineScreen"_s, -pi / 6)
    );
}

TEST_F(FilteredMark, HasRingsAboutTheirCentre)
{
    useImage(solidImage(60, 60, QColor(128, 128, 128)));
    panel.tfWatermarkFilterSize.setStringValue(u"10"_s);
    panel.tfCenterCircularWidth.setStringValue(u"50"_s);
    panel.tfCenterCircularHeight.setStringValue(u"50"_s);
    const QImage rings = filteredBy(5);
    EXPECT_EQ(rings.pixel(29, 10), rings.pixel(30, 49));
    EXPECT_EQ(rings.pixel(10, 29), rings.pixel(49, 30));

    panel.tfCenterCircularWidth.setStringValue(u"0"_s);
    EXPECT_NE(filteredBy(5), rings);
    panel.tfCenterCircularWidth.setStringValue({});
    panel.tfCenterCircularHeight.setStringValue({});
    EXPECT_EQ(filteredBy(5), rings);
}

TEST_F(FilteredMark, IsSharperByTheSecondSharpness)
{
    useImage(solidImage(60, 60, QColor(128, 128, 128)));
    panel.tfWatermarkFilterSize.setStringValue(u"20"_s);
    const QImage soft = filteredBy(5);

    panel.pubWatermarkFilterSharpness.selectItemAtIndex(1);

    const auto levels = [](const QImage& image) {
        QSet<QRgb> colors;
        for (int x = 0; x < 60; ++x)
            colors.insert(image.pixel(x, 30));
        return colors.size();
    };
    EXPECT_LT(levels(filteredBy(5)), levels(soft));
}

TEST_F(ShadowedMark, CastsItsShadowToTheRightAndDown)
{
    const QImage result = marked();

    EXPECT_EQ(result.pixel(10, 5), qRgb(200, 40, 20));
    EXPECT_EQ(result.pixel(22, 12), qRgb(0, 255, 0));
    EXPECT_EQ(result.pixel(24, 17), qRgb(0, 255, 0));
    EXPECT_EQ(result.pixel(25, 18), qRgb(100, 100, 100));
    EXPECT_EQ(result.pixel(3, 12), qRgb(100, 100, 100));
}

TEST_F(ShadowedMark, CastsNoneWithItsBoxOff)
{
    panel.cbImageShadowCheck.setState(0);

    EXPECT_EQ(marked().pixel(22, 12), qRgb(100, 100, 100));
}

TEST_F(ShadowedMark, IsAsTranslucentAsTheMark)
{
    panel.tfImageTransparancy.setStringValue(u"50"_s);

    const QImage result = marked();

    EXPECT_NEAR(qGreen(result.pixel(22, 12)), 177, 1);
    EXPECT_NEAR(qRed(result.pixel(22, 12)), 50, 1);
}

TEST_F(ShadowedMark, FallsOffLikeAGaussian)
{
    useImage(solidImage(60, 60, Qt::red));
    panel.scImageWaterMarkPos.setSelectedSegment(4);
    panel.tfImageShadowXOffset.setStringValue(u"0"_s);
    panel.tfImageShadowYOffset.setStringValue(u"0"_s);
    panel.tfImageShadowRadius.setStringValue(u"12"_s);
    panel.cwImageShadowColor.setColor({});

    const QImage result = marked({200, 160});

    for (const int beyond : {0, 3, 6, 9, 12}) {
        const double share = 0.5 * std::erfc((beyond + 0.5) / 6 / std::sqrt(2.0));
        EXPECT_NEAR(qGreen(result.pixel(130 + beyond, 80)), 100 * (1 - share), 1.6) << beyond;
    }
}

TEST_F(ShadowedMark, FallsIntoThePhotoFromAMarkOutsideOfIt)
{
    panel.tfImageXOffset.setStringValue(u"-20"_s);

    const QImage result = marked();

    EXPECT_EQ(result.pixel(4, 12), qRgb(0, 255, 0));
    EXPECT_EQ(result.pixel(5, 12), qRgb(100, 100, 100));
}

TEST_F(ShadowedMark, LiesBelowTheMarkWhateverTheOperation)
{
    panel.pubRenderMethod.selectItemAtIndex(3);

    const QImage result = marked();

    EXPECT_EQ(result.pixel(22, 12), qRgb(0, 255, 0));
    EXPECT_NEAR(qRed(result.pixel(2, 2)), 78, 1);
    EXPECT_EQ(result.pixel(10, 9), qRgb(0, 40, 0));
}

TEST_F(ShadowedMark, IsInForceForThePhotoThatIsDrawnFirst)
{
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .model(PhotoModel::RgbAlpha)
                              .pixels([](int x, int y) {
                                  const bool isHole = x >= 60 && y >= 40;
                                  return test::Samples{100, 100, 100, isHole ? 0 : 255};
                              })
                              .format(test::PhotoFormat::Png)
                              .write(sources.path(u"a.png"_s));

    run({photo});

    const QImage result(folder.path(u"a.png"_s));
    EXPECT_EQ(result.pixel(63, 60), qRgba(0, 255, 0, 255));
    EXPECT_EQ(result.pixel(90, 46), qRgba(0, 255, 0, 255));
    EXPECT_EQ(qAlpha(result.pixel(70, 60)), 0);
    EXPECT_EQ(result.pixel(30, 60), qRgba(100, 100, 100, 255));

    panel.cbImageShadowCheck.setState(0);
    run({photo});
    EXPECT_EQ(qAlpha(QImage(folder.path(u"a.png"_s)).pixel(63, 60)), 0);
}

TEST_F(ShadowedMark, OfAPhotoThatIsReadOnceIsStillWhole)
{
    panel.cbPatternCheck.setState(1);
    const QString photo = PhotoBuilder()
                              .size(300, 200)
                              .model(PhotoModel::RgbAlpha)
                              .solid({100, 100, 100, 128})
                              .format(test::PhotoFormat::Png)
                              .write(sources.path(u"a.png"_s));

    run({photo});

    EXPECT_EQ(done.value(0).word, u"OK"_s);
}
