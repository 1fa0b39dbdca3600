// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>

#include <platform/metadata/metadata_reader.h>

#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/geometry_printing.h>
#include <support/log_lines.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using namespace brenvaldo::test;
using brenvaldo::platform::graphics::Image;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::platform::metadata::readMetadataBlocks;

namespace {

PhotoBuilder png(int width, int height)
{
    return PhotoBuilder().format(PhotoFormat::Png).size(width, height).corners();
}

struct TurnCase
{
    const char* name;
    float angle;
    PixelSize size;
    std::string corners; ///< of a photo of 48 x 32 with the corners "RGBW"
};

void PrintTo(const TurnCase& turnCase, std::ostream* out) { *out << turnCase.name; }

class QuickTurn : public testing::TestWithParam<TurnCase>
{
};

const TurnCase turnCases[] = {
    {"Right", -90, {32, 48}, "BRWG"},
    {"Left", 90, {32, 48}, "GWRB"},
    {"UpsideDown", 180, {48, 32}, "WBGR"},
    {"NotAtAll", 0, {48, 32}, "RGBW"},
    {"RightTheLongWay", 270, {32, 48}, "BRWG"},
};

Image picture(const TemporaryFolder& folder, const PhotoBuilder& photo)
{
    const auto image = openedPhoto(photo.write(folder.path(u"picture.png"_s))).image();
    if (!image)
        qFatal("a photo of a test can't be decoded");
    return *image;
}

} // namespace

TEST_P(QuickTurn, ReplacesThePhotoByItsTurn)
{
    const TurnCase& row = GetParam();
    const TemporaryFolder folder;
    const QString path = png(48, 32).write(folder.path(u"photo.png"_s));
    DVImageHandling handling;

    const auto word = handling.hRotatePicture(path, folder.path(), row.angle);

    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(handling.storeResult(), ResultWord::Ok);
    EXPECT_EQ(openedPhoto(path).header().storedSize, row.size);
    EXPECT_EQ(cornerColors(storedPixels(path)), row.corners);
}

INSTANTIATE_TEST_SUITE_P(Angles, QuickTurn, testing::ValuesIn(turnCases), CaseName());

TEST(QuickTurn, ComputesNoPixelsInAQuarterTurn)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .depth(16)
                             .size(47, 33)
                             .gradient()
                             .write(folder.path(u"photo.png"_s));
    const QImage before = storedPixels(path);
    DVImageHandling handling;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), 90), ResultWord::Ok);
    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), -90), ResultWord::Ok);

    EXPECT_EQ(largestDifference(storedPixels(path), before), 0);
    EXPECT_EQ(openedPhoto(path).header().bitsPerComponent, 16);
}

TEST(QuickTurn, TurnsTheStoredPixelsAndKeepsTheTag)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().size(400, 300).orientation(6).write(folder.path(u"photo.jpg"_s));
    DVImageHandling handling;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), 90), ResultWord::Ok);

    EXPECT_EQ(openedPhoto(path).header().storedSize, (PixelSize{300, 400}));
    EXPECT_EQ(openedPhoto(path).header().orientation, 6);
}

TEST(QuickTurn, LeavesBlackCornersToAnOpaquePhoto)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .size(1000, 1000)
                             .solid({200, 100, 50})
                             .write(folder.path(u"photo.png"_s));
    DVImageHandling handling;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), 45), ResultWord::Ok);

    const QImage pixels = storedPixels(path);
    EXPECT_EQ(openedPhoto(path).header().storedSize, (PixelSize{1414, 1414}));
    EXPECT_FALSE(openedPhoto(path).header().hasAlpha);
    EXPECT_EQ(pixels.pixelColor(5, 5), QColor(0, 0, 0));
    EXPECT_EQ(pixels.pixelColor(707, 707), QColor(200, 100, 50));
}

TEST(QuickTurn, LeavesTransparentCornersToAPhotoWithAlpha)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .model(PhotoModel::RgbAlpha)
                             .size(100, 100)
                             .solid({200, 100, 50, 255})
                             .write(folder.path(u"photo.png"_s));
    DVImageHandling handling;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), 45), ResultWord::Ok);

    const QImage pixels = storedPixels(path);
    EXPECT_EQ(pixels.size(), QSize(141, 141));
    EXPECT_EQ(pixels.pixelColor(5, 5).alpha(), 0);
    EXPECT_EQ(pixels.pixelColor(70, 70), QColor(200, 100, 50));
}

TEST(QuickTurn, FailsForAnAngleThatIsNoNumber)
{
    const TemporaryFolder folder;
    const QString path = png(48, 32).write(folder.path(u"photo.png"_s));
    const QByteArray before = TemporaryFolder::read(path);
    DVImageHandling handling;

    const auto word
        = handling.hRotatePicture(path, folder.path(), std::numeric_limits<float>::infinity());

    EXPECT_EQ(word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(path), before);
}

TEST(QuickEdits, KeepTheMetadataUnchanged)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .exif(exifBlock({.orientation = 3, .make = "Maker"}))
                             .write(folder.path(u"photo.jpg"_s));
    const auto before = readMetadataBlocks(path);
    DVImageHandling handling;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), -90), ResultWord::Ok);
    EXPECT_EQ(handling.hFlipHorizontalPicture(path, folder.path()), ResultWord::Ok);

    const auto after = readMetadataBlocks(path);
    ASSERT_TRUE(before && after);
    EXPECT_EQ(after->exif, before->exif);
}

TEST(QuickEdits, MirrorThePhotoInPlace)
{
    const TemporaryFolder folder;
    const QString path = png(48, 32).write(folder.path(u"photo.png"_s));
    DVImageHandling handling;

    EXPECT_EQ(handling.hFlipHorizontalPicture(path, folder.path()), ResultWord::Ok);
    EXPECT_EQ(cornerColors(storedPixels(path)), "GRWB");

    EXPECT_EQ(handling.hFlipVerticalPicture(path, folder.path()), ResultWord::Ok);
    EXPECT_EQ(cornerColors(storedPixels(path)), "WBGR");
    EXPECT_EQ(handling.storeResult(), ResultWord::Ok);
}

TEST(QuickEdits, WriteUnderThePhotosNameIntoAnotherFolder)
{
    const TemporaryFolder folder;
    const TemporaryFolder other;
    const QString path = png(48, 32).write(folder.path(u"photo.png"_s));
    const QByteArray before = TemporaryFolder::read(path);
    DVImageHandling handling;

    EXPECT_EQ(handling.hFlipVerticalPicture(path, other.path()), ResultWord::Ok);

    EXPECT_EQ(TemporaryFolder::read(path), before);
    EXPECT_EQ(cornerColors(storedPixels(other.path(u"photo.png"_s))), "BWRG");
}

TEST(QuickEdits, TakeTheTypeFromTheExtension)
{
    const TemporaryFolder folder;
    const QString path = png(48, 32).write(folder.path(u"photo.jpg"_s));
    DVImageHandling handling;

    EXPECT_EQ(handling.hFlipVerticalPicture(path, folder.path()), ResultWord::Ok);

    EXPECT_EQ(openedPhoto(path).header().typeIdentifier, u"public.jpeg"_s);
}

TEST(QuickEdits, DoNotSupportPhotoshopAndPdf)
{
    const TemporaryFolder folder;
    DVImageHandling handling;

    for (const QString& name : {u"photo.psd"_s, u"photo.pdf"_s}) {
        const QString path = png(48, 32).write(folder.path(name));
        const QByteArray before = TemporaryFolder::read(path);

        EXPECT_EQ(handling.hFlipHorizontalPicture(path, folder.path()), ResultWord::NotSupported);
        EXPECT_EQ(handling.hFlipVerticalPicture(path, folder.path()), ResultWord::NotSupported);
        EXPECT_EQ(handling.storeResult(), ResultWord::Failed);
        EXPECT_EQ(TemporaryFolder::read(path), before);
    }
}

TEST(QuickEdits, LetTheWriterRefuseToTurnAPhotoshopFile)
{
    const TemporaryFolder folder;
    const QString path = png(48, 32).write(folder.path(u"photo.psd"_s));
    const QString missing = folder.path(u"missing.psd"_s);
    DVImageHandling handling;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), 90), ResultWord::NotSupported);
    EXPECT_EQ(handling.hRotatePicture(missing, folder.path(), 90), std::nullopt);
}

TEST(QuickEdits, TellTheLogThatThereIsNoFile)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"missing.jpg"_s);
    DVImageHandling handling;
    const LogLines log;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), 90), std::nullopt);
    EXPECT_EQ(handling.hFlipHorizontalPicture(path, folder.path()), std::nullopt);
    EXPECT_EQ(handling.hFlipVerticalPicture(path, folder.path()), std::nullopt);

    EXPECT_EQ(log.lines().filter(u"Image source is NULL."_s).size(), 3);
    EXPECT_EQ(handling.storeResult(), ResultWord::Failed);
}

TEST(QuickEdits, TellTheLogThatThereIsNoPhotoInTheFile)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"note.jpg"_s, "this is no photo");
    DVImageHandling handling;
    const LogLines log;

    EXPECT_EQ(handling.hRotatePicture(path, folder.path(), 90), std::nullopt);
    EXPECT_EQ(handling.hFlipVerticalPicture(path, folder.path()), std::nullopt);

    EXPECT_EQ(log.lines().filter(u"Image not created from image source."_s).size(), 2);
    EXPECT_EQ(TemporaryFolder::read(path), "this is no photo");
}

TEST(RotatePictureBase, HoldsTheTurnedPictureOnATransparentCanvas)
{
    const TemporaryFolder folder;
    const Image layer = picture(folder, png(100, 100).solid({200, 100, 50}));

    const auto turned = DVImageHandling::hRotatePictureBase(layer, 45);

    ASSERT_TRUE(turned);
    const QImage pixels = turned->toQImage();
    EXPECT_EQ(turned->pixelSize(), (PixelSize{142, 142}));
    EXPECT_EQ(pixels.pixelColor(5, 5).alpha(), 0);
    EXPECT_EQ(pixels.pixelColor(71, 71), QColor(200, 100, 50));
}

TEST(RotatePictureBase, TurnsCounterClockwise)
{
    const TemporaryFolder folder;

    const auto turned = DVImageHandling::hRotatePictureBase(picture(folder, png(48, 32)), 90);

    ASSERT_TRUE(turned);
    EXPECT_EQ(turned->pixelSize(), (PixelSize{32, 48}));
    EXPECT_EQ(cornerColors(turned->toQImage()), "GWRB");
}

TEST(RotatePictureBase, MeasuresInPoints)
{
    const TemporaryFolder folder;
    const Image dense = picture(folder, png(96, 64).dotsPerInch(144));

    const auto turned = DVImageHandling::hRotatePictureBase(dense, -90);

    ASSERT_TRUE(turned);
    EXPECT_EQ(turned->pixelSize(), (PixelSize{32, 48}));
    EXPECT_EQ(turned->dotsPerInch(), 72);
}

TEST(RotatePictureBase, GivesNothingForAnAngleThatIsNoNumber)
{
    const TemporaryFolder folder;
    const Image layer = picture(folder, png(48, 32));

    EXPECT_FALSE(DVImageHandling::hRotatePictureBase(layer, std::numeric_limits<float>::infinity())
    );
}
