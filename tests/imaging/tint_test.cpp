// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>
#include <platform/foundation/literals.h>

#include <support/geometry_printing.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>

#include <QFileInfo>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace imaging;
using namespace test;
using platform::graphics::ColorModel;

/// Red over the whole of white photos of 100 x 80 pixels.
class AddTint : public testing::Test
{
protected:
    PhotoBuilder photo = PhotoBuilder().size(100, 80).solid({255, 255, 255});
    TintSettings settings = {
        .color = {.red = 1, .green = 0, .blue = 0}, .sizeMode = u"W x H"_s, .originalSizeState = 1};
    DVImageHandling handling;
    TemporaryFolder folder;
    QString type = u"public.png"_s;

    ResultWord tint(const QString& source)
    {
        return handling.finish(handling.addTintToImage2(
            {.source = source, .destinationBase = folder.path(u"tinted"_s)},
            settings,
            {.outputType = u"public.png"_s,
             .compressionLevel = u"9"_s,
             .fileExtension = u"png"_s,
             .fileExtensionNSStr = {},
             .fileUTI = u"public.png"_s,
             .myFileType = type}
        ));
    }

    QImage tinted(PhotoFormat format = PhotoFormat::Png)
    {
        const QString source = photo.format(format).write(folder.path(u"photo"_s));
        EXPECT_EQ(tint(source), ResultWord::Ok);
        return storedPixels(folder.path(u"tinted.png"_s));
    }
};

TEST_F(AddTint, DrawsAtFullStrengthWithoutAnOpacity)
{
    EXPECT_EQ(tinted().pixelColor(50, 40), QColor(255, 0, 0));
}

TEST_F(AddTint, FollowsTheOpacity)
{
    settings.opacity = 1;
    EXPECT_EQ(tinted().pixelColor(50, 40), QColor(255, 252, 252));
    settings.opacity = 40;
    EXPECT_EQ(tinted().pixelColor(50, 40), QColor(255, 153, 153));
    settings.opacity = 150;
    EXPECT_EQ(tinted().pixelColor(50, 40), QColor(255, 0, 0));
}

TEST_F(AddTint, FollowsTheBlendMode)
{
    photo.solid({200, 100, 50});
    settings.color = {.red = 30 / 255., .green = 160 / 255., .blue = 220 / 255.};
    const auto blended = [this](int index) {
        settings.blendIndex = index;
        return tinted().pixelColor(50, 40);
    };

    EXPECT_EQ(blended(0), QColor(30, 160, 220));
    EXPECT_EQ(blended(1), QColor(0, 5, 15));
    EXPECT_EQ(blended(2), QColor(230, 255, 255));
    EXPECT_EQ(blended(3), QColor(24, 63, 43));
    EXPECT_EQ(blended(4), QColor(158, 125, 86));
    EXPECT_EQ(blended(5), QColor(27, 157, 217));
}

TEST_F(AddTint, LeavesThePhotoAroundItsArea)
{
    settings.originalSizeState = 0;
    settings.width = 30;
    settings.height = 20;
    settings.anchor = 8;
    settings.yOffset = 10;

    const QImage pixels = tinted();

    EXPECT_EQ(pixels.pixelColor(70, 50), QColor(Qt::red));
    EXPECT_EQ(pixels.pixelColor(99, 69), QColor(Qt::red));
    EXPECT_EQ(pixels.pixelColor(69, 60), QColor(Qt::white));
    EXPECT_EQ(pixels.pixelColor(80, 49), QColor(Qt::white));
    EXPECT_EQ(pixels.pixelColor(80, 70), QColor(Qt::white));
}

TEST_F(AddTint, FadesOutFromTheLeft)
{
    settings.gradientState = 1;

    const QImage pixels = tinted();

    EXPECT_EQ(pixels.pixelColor(0, 40), QColor(254, 1, 1));
    EXPECT_EQ(pixels.pixelColor(99, 40), QColor(254, 254, 254));
    EXPECT_EQ(pixels.pixelColor(50, 0), pixels.pixelColor(50, 79));
}

TEST_F(AddTint, FadesOutFromTheBottom)
{
    settings.gradientState = 1;
    settings.angleIndex = 1;

    const QImage pixels = tinted();

    EXPECT_LE(pixels.pixelColor(50, 79).green(), 3);
    EXPECT_GE(pixels.pixelColor(50, 0).green(), 252);
    EXPECT_EQ(pixels.pixelColor(0, 40), pixels.pixelColor(99, 40));
}

TEST_F(AddTint, FadesOutInsideOfItsArea)
{
    settings
        = {.color = settings.color,
           .anchor = 8,
           .yOffset = 10,
           .sizeMode = u"W x H"_s,
           .width = 30,
           .height = 20,
           .gradientState = 1};

    const QImage pixels = tinted();

    EXPECT_LE(pixels.pixelColor(70, 60).green(), 5);
    EXPECT_GE(pixels.pixelColor(99, 60).green(), 250);
    EXPECT_EQ(pixels.pixelColor(69, 60), QColor(Qt::white));
    EXPECT_EQ(pixels.pixelColor(70, 49), QColor(Qt::white));
    EXPECT_EQ(pixels.pixelColor(70, 70), QColor(Qt::white));
}

TEST_F(AddTint, TurnsThePhotoBlackAndWhiteFirst)
{
    photo.solid({200, 100, 50});
    settings.duoToneState = 1;
    settings.blendIndex = 3;

    EXPECT_EQ(tinted().pixelColor(50, 40), QColor(108, 0, 0));
}

TEST_F(AddTint, GivesAGreyPhotoItsColourInTwoTones)
{
    photo.model(PhotoModel::Gray).solid({192});
    settings.duoToneState = 1;
    settings.blendIndex = 3;

    EXPECT_EQ(tinted().pixelColor(50, 40), QColor(215, 0, 0));
}

TEST_F(AddTint, StaysGreyOnAGreyPhoto)
{
    photo.model(PhotoModel::Gray).solid({192});

    const QString source = photo.format(PhotoFormat::Png).write(folder.path(u"photo"_s));
    EXPECT_EQ(tint(source), ResultWord::Ok);

    const auto image = openedPhoto(folder.path(u"tinted.png"_s)).image();
    EXPECT_EQ(image->colorModel(), ColorModel::Gray);
    EXPECT_LT(image->toQImage().pixelColor(50, 40).red(), 180);
}

TEST_F(AddTint, KeepsDepthAndAlpha)
{
    photo.model(PhotoModel::RgbAlpha).depth(16).solid({10, 20, 30, 0});
    settings.opacity = 40;

    const QString source = photo.format(PhotoFormat::Png).write(folder.path(u"photo"_s));
    EXPECT_EQ(tint(source), ResultWord::Ok);

    const auto image = openedPhoto(folder.path(u"tinted.png"_s)).image();
    EXPECT_EQ(image->bitsPerComponent(), 16);
    EXPECT_EQ(image->toQImage().pixelColor(50, 40).alpha(), 102);
}

TEST_F(AddTint, WorksOnStoredPixels)
{
    photo.orientation(6);
    settings.originalSizeState = 0;
    settings.width = 30;
    settings.height = 20;

    const QImage pixels = tinted(PhotoFormat::Jpeg);

    EXPECT_EQ(pixels.size(), QSize(100, 80));
    EXPECT_LT(pixels.pixelColor(5, 5).green(), 40);
    EXPECT_GT(pixels.pixelColor(5, 60).green(), 220);
}

TEST_F(AddTint, KeepsTheOriginOfThePhotoBeforeForAnAnchorThatIsNone)
{
    settings
        = {.color = settings.color, .anchor = 8, .sizeMode = u"W x H"_s, .width = 30, .height = 20};
    tinted();
    settings.anchor = 9;

    EXPECT_EQ(tinted().pixelColor(71, 79), QColor(Qt::red));
    handling = {};
    EXPECT_EQ(tinted().pixelColor(1, 79), QColor(Qt::red));
}

TEST_F(AddTint, FailsForAPhotoThatCannotBeRead)
{
    const LogLines log;

    EXPECT_EQ(tint(folder.path(u"none.png"_s)), ResultWord::Failed);

    EXPECT_TRUE(log.lines().contains(u"no imageRef"_s));
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"tinted.png"_s)));
}

TEST_F(AddTint, FailsWithoutAFileWhateverTheType)
{
    type = u"com.adobe.pdf"_s;

    EXPECT_EQ(tint(folder.path(u"none.pdf"_s)), ResultWord::Failed);
    EXPECT_EQ(tint(folder.write(u"text.pdf"_s, "text")), ResultWord::NotSupported);
}

TEST_F(AddTint, SaysNothingOfAFileThatHoldsNoPhoto)
{
    const LogLines log;

    EXPECT_EQ(tint(folder.write(u"text.png"_s, "text")), ResultWord::Failed);

    EXPECT_FALSE(log.lines().contains(u"no imageRef"_s));
}

TEST_F(AddTint, ShowsInThePreviewWhatIsWritten)
{
    photo.gradient().dotsPerInch(300);
    settings.gradientState = 1;
    settings.opacity = 60;
    settings.duoToneState = 1;
    const QImage written = tinted();
    const auto stored = openedPhoto(folder.path(u"photo"_s)).image()->copiedToMemory();

    const auto shown = DVImageHandling().addTintToImage2Preview(*stored, settings);

    EXPECT_EQ(shown.dotsPerInch(), 72);
    EXPECT_EQ(largestDifference(shown.toQImage(), written), 0);
}

} // namespace
} // namespace brenvaldo
