// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>
#include <imaging/unit_conversion.h>

#include <support/geometry_printing.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;
using brenvaldo::imaging::cMConversion;
using brenvaldo::imaging::DVImageHandling;
using brenvaldo::platform::graphics::Image;
using brenvaldo::platform::graphics::PixelSize;
using namespace brenvaldo::test;

namespace {

/// 1000 x 501 pixels at `dotsPerInch`, 0 for none stated.
QString photoAt(const TemporaryFolder& folder, double dotsPerInch)
{
    return PhotoBuilder()
        .format(PhotoFormat::Png)
        .size(1000, 501)
        .solid({90, 90, 90})
        .dotsPerInch(dotsPerInch)
        .write(folder.path(u"photo.png"_s));
}

Image imageAt(const TemporaryFolder& folder, double dotsPerInch)
{
    const auto image = openedPhoto(photoAt(folder, dotsPerInch)).image();
    if (!image)
        qFatal("a photo of a test can't be decoded");
    return *image;
}

} // namespace

TEST(ImageResolution, IsSeventyTwoWhereNoneIsStated)
{
    const TemporaryFolder folder;
    DVImageHandling handling;

    EXPECT_EQ(handling.hGetImgResolution(photoAt(folder, 0)), 72);
}

TEST(ImageResolution, IsRoundedUpAndKept)
{
    const TemporaryFolder folder;
    DVImageHandling handling;
    EXPECT_EQ(handling.currentDPI(), 0);

    const double resolution = handling.hGetImgResolution(photoAt(folder, 299.2));

    EXPECT_EQ(resolution, 300);
    EXPECT_EQ(handling.currentDPI(), 300);
}

TEST(ImageResolution, IsReadFromAPictureInHand)
{
    const TemporaryFolder folder;
    DVImageHandling handling;

    EXPECT_EQ(handling.hGetNSImgResolution(imageAt(folder, 72).withDotsPerInch(95.5)), 96);
    EXPECT_EQ(handling.currentDPI(), 96);
}

TEST(ImageResolution, IsNoNumberForAnUnreadablePhoto)
{
    const TemporaryFolder folder;
    DVImageHandling handling;

    EXPECT_TRUE(std::isnan(handling.hGetImgResolution(folder.path(u"missing.jpg"_s))));
}

TEST(ConvertImageResolution, ChangesNoPixels)
{
    const TemporaryFolder folder;
    const Image image = imageAt(folder, 72);

    const Image converted = DVImageHandling::convertImageResolution(image, 300);

    EXPECT_EQ(converted.pixelSize(), (PixelSize{1000, 501}));
    EXPECT_DOUBLE_EQ(converted.dotsPerInch(), 300); // 240 points
}

TEST(ConvertImageResolution, MakesAWidthOfWholePoints)
{
    const TemporaryFolder folder;
    const Image image = imageAt(folder, 72);

    const Image converted = DVImageHandling::convertImageResolution(image, 301);

    EXPECT_DOUBLE_EQ(1000 * 72.0 / converted.dotsPerInch(), 240); // 239.2
}

TEST(ConvertImageResolution, TakesNoResolutionOfZero)
{
    const TemporaryFolder folder;
    const Image image = imageAt(folder, 96);

    EXPECT_NEAR(DVImageHandling::convertImageResolution(image, 0).dotsPerInch(), 96, 0.1);
}

TEST(UnitConversion, UsesTheResolutionOfThePhoto)
{
    const TemporaryFolder folder;
    cMConversion conversion;

    const float pixels
        = conversion.convertXtoPixel(photoAt(folder, 299.2), u"pixel"_s, u"mm"_s, 10);

    EXPECT_EQ(pixels, 118);
    EXPECT_EQ(conversion.myNewValue(), 118);
    EXPECT_EQ(conversion.myDPIvalue(), 300);
}

TEST(UnitConversion, AnswersTheLastResultForAnotherTargetUnit)
{
    const TemporaryFolder folder;
    const QString photo = photoAt(folder, 300);
    cMConversion conversion;
    EXPECT_EQ(conversion.convertXtoPixel(photo, u"mm"_s, u"pixel"_s, 10), 0);
    conversion.convertXtoPixel(photo, u"pixel"_s, u"pixel"_s, 77);

    EXPECT_EQ(conversion.convertXtoPixel(photo, u"mm"_s, u"inch"_s, 1), 77);
}

TEST(UnitConversion, ReadsNoResolutionForPixels)
{
    const TemporaryFolder folder;
    cMConversion conversion;

    conversion.convertXtoPixel(photoAt(folder, 300), u"pixel"_s, u"pixel"_s, 5);

    EXPECT_EQ(conversion.myDPIvalue(), 0);
}

TEST(UnitConversion, ReadsTheResolutionForAnUnknownUnit)
{
    const TemporaryFolder folder;
    cMConversion conversion;

    EXPECT_EQ(conversion.convertXtoPixel(photoAt(folder, 300), u"pixel"_s, u"foot"_s, 5.5F), 5);
    EXPECT_EQ(conversion.myDPIvalue(), 300);
}
