// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>

#include <platform/foundation/literals.h>
#include <platform/metadata/metadata_reader.h>

#include <support/exif_block.h>
#include <support/geometry_printing.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using platform::graphics::PixelSize;

namespace {

/// A photo whose pixels tell where they stood: red is the column, green the row.
test::PhotoBuilder coordinates(int width, int height)
{
    return test::PhotoBuilder()
        .format(test::PhotoFormat::Png)
        .size(width, height)
        .pixels([](int x, int y) {
            return test::Samples{x, y, 0};
        });
}

CropSettings rectangleOf(PixelSize size, int anchor, std::int64_t x = 0, std::int64_t y = 0)
{
    return {.size = size, .xOffset = x, .yOffset = y, .anchor = anchor, .cropType = u"W x H"_s};
}

CropSettings cutOff(const QString& type, std::int64_t value)
{
    return {.size = {}, .cutOff = value, .anchor = 4, .cropType = type};
}

OutputTail tailFor(const QString& type)
{
    OutputTail tail;
    tail.compressionLevel = u"10"_s;
    tail.myFileType = type;
    return tail;
}

/// A cropped photo: where its first pixel stood, and its size.
struct Part
{
    QPoint first;
    QSize size;

    friend bool operator==(const Part&, const Part&) = default;
};

void PrintTo(const Part& part, std::ostream* out)
{
    *out << part.size.width() << " x " << part.size.height() << " from (" << part.first.x() << ", "
         << part.first.y() << ')';
}

class Cropping : public testing::Test
{
protected:
    QString write(const test::PhotoBuilder& photo) const
    {
        return photo.write(folder.path(u"a.png"_s));
    }

    ResultWord crop(const QString& path, const CropSettings& settings, const QString& type)
    {
        return handling.finish(handling.hCropPhotos(
            {.source = path, .destinationBase = folder.path(u"out"_s)}, settings, tailFor(type)
        ));
    }

    Part cropped(const QString& path, const CropSettings& settings)
    {
        EXPECT_EQ(crop(path, settings, u"public.png"_s), ResultWord::Ok);
        return partAt(folder.path(u"out.png"_s));
    }

    static Part partAt(const QString& path)
    {
        const QImage image = test::storedPixels(path);
        const QColor first = image.pixelColor(0, 0);
        return {.first = {first.red(), first.green()}, .size = image.size()};
    }

    test::TemporaryFolder folder;
    DVImageHandling handling;
};

using GalleryCropping = Cropping;
using CropPreview = Cropping;

} // namespace

TEST_F(Cropping, CutsTheRectangleOutAtItsAnchorAndOffset)
{
    const QString path = write(coordinates(100, 80));

    EXPECT_EQ(cropped(path, rectangleOf({40, 20}, 0, 3, 4)), (Part{{3, 4}, {40, 20}}));
    EXPECT_EQ(cropped(path, rectangleOf({40, 20}, 4)), (Part{{30, 30}, {40, 20}}));
    EXPECT_EQ(cropped(path, rectangleOf({40, 20}, 8, -1, -2)), (Part{{59, 58}, {40, 20}}));
}

TEST_F(Cropping, CutsOffPercentAndPixels)
{
    const QString path = write(coordinates(100, 80));

    EXPECT_EQ(cropped(path, cutOff(u"%"_s, 25)), (Part{{12, 10}, {75, 60}}));
    EXPECT_EQ(cropped(path, cutOff(u"%"_s, 150)), (Part{{0, 0}, {100, 80}}));
    EXPECT_EQ(cropped(path, cutOff(u"px"_s, 10)), (Part{{5, 5}, {90, 70}}));
}

TEST_F(Cropping, LeavesOutWhatLiesOutsideOfThePhoto)
{
    const QString path = write(coordinates(100, 80));

    EXPECT_EQ(cropped(path, rectangleOf({40, 20}, 8, 10)), (Part{{70, 60}, {30, 20}}));
    EXPECT_EQ(cropped(path, rectangleOf({400, 300}, 4)), (Part{{0, 0}, {100, 80}}));
    EXPECT_EQ(cropped(path, rectangleOf({40, 20}, 0, -10, -5)), (Part{{0, 0}, {30, 15}}));
}

TEST_F(Cropping, CutsANegativeRectangleOutBeforeItsOrigin)
{
    EXPECT_EQ(
        cropped(write(coordinates(100, 80)), cutOff(u"px"_s, 150)), (Part{{25, 5}, {50, 70}})
    );
}

TEST_F(Cropping, FailsWhereNothingIsLeft)
{
    const QString path = write(coordinates(100, 80));

    for (const CropSettings& settings :
         {rectangleOf({40, 20}, 8, 40), rectangleOf({0, 0}, 0), cutOff(u"%"_s, 100)})
        EXPECT_EQ(crop(path, settings, u"public.png"_s), ResultWord::Failed);
    EXPECT_FALSE(QFile::exists(folder.path(u"out.png"_s)));
}

TEST_F(Cropping, FailsForAnUnreadablePhoto)
{
    const CropSettings settings = rectangleOf({4, 2}, 0);

    EXPECT_EQ(crop(folder.path(u"gone.png"_s), settings, u"public.png"_s), ResultWord::Failed);
    EXPECT_EQ(
        crop(folder.path(u"gone.psd"_s), settings, u"com.adobe.photoshop-image"_s),
        ResultWord::NotSupported
    );
}

TEST_F(Cropping, KeepsThePlaceOfTheCropBeforeForAnAnchorThatThereIsNot)
{
    const QString path = write(coordinates(100, 80));

    EXPECT_EQ(cropped(path, rectangleOf({40, 20}, 9)), (Part{{0, 0}, {40, 20}}));
    (void)cropped(path, rectangleOf({40, 20}, 4));
    EXPECT_EQ(cropped(path, rectangleOf({10, 10}, -1)), (Part{{30, 30}, {10, 10}}));
}

TEST_F(Cropping, SharesItsPlaceWithTintsAndResizes)
{
    const QString path = write(coordinates(100, 80));
    const SourceAndBase files{.source = path, .destinationBase = folder.path(u"other"_s)};
    const TintSettings corner{
        .color = {},
        .anchor = 6,
        .xOffset = 7,
        .yOffset = 11,
        .sizeMode = u"W x H"_s,
        .width = 30,
        .height = 20};

    (void)handling.addTintToImage2(files, corner, tailFor(u"public.png"_s));
    EXPECT_EQ(cropped(path, rectangleOf({10, 10}, 9)), (Part{{7, 11}, {10, 10}}));

    (void)handling.hScalePhotosWidthAndHeight(files, {40, 40}, 1, tailFor(u"public.png"_s));
    EXPECT_EQ(cropped(path, rectangleOf({10, 10}, 9)), (Part{{5, 0}, {10, 10}}));
}

TEST_F(Cropping, CountsInThePhotoAsItShows)
{
    const QString path = write(
        test::PhotoBuilder().format(test::PhotoFormat::Png).size(100, 80).corners().orientation(6)
    );

    EXPECT_EQ(cropped(path, rectangleOf({80, 100}, 4)).size, QSize(80, 100));
    (void)cropped(path, rectangleOf({20, 20}, 0));
    EXPECT_EQ(test::cornerColors(test::storedPixels(folder.path(u"out.png"_s))), "BBBB");
}

TEST_F(Cropping, KeepsDepthModelProfileAndMetadata)
{
    const QString path = test::PhotoBuilder()
                             .format(test::PhotoFormat::Tiff)
                             .size(20, 10)
                             .model(test::PhotoModel::GrayAlpha)
                             .depth(16)
                             .write(folder.path(u"deep.tiff"_s));

    ASSERT_EQ(crop(path, rectangleOf({10, 5}, 4), u"public.tiff"_s), ResultWord::Ok);

    const auto header = test::openedPhoto(folder.path(u"out.tiff"_s)).header();
    EXPECT_EQ(header.storedSize, (PixelSize{10, 5}));
    EXPECT_EQ(header.bitsPerComponent, 16);
    EXPECT_EQ(header.colorModel, platform::graphics::ColorModel::Gray);
    EXPECT_TRUE(header.hasAlpha);

    const QString turned = write(coordinates(30, 20).orientation(6));
    ASSERT_EQ(crop(turned, rectangleOf({10, 5}, 4), u"public.jpeg"_s), ResultWord::Ok);
    EXPECT_EQ(test::openedPhoto(folder.path(u"out.jpg"_s)).header().orientation, 6);
}

TEST_F(GalleryCropping, CutsOutOfTheStoredPixelsUnderTheSameName)
{
    const QString path = write(coordinates(100, 80).orientation(6));
    QDir(folder.path()).mkpath(u"t"_s);
    const DVImageHandling::GalleryCrop crop
        = {.size = {40, 20},
           .kind = u"myCropThumb"_s,
           .anchor = 4,
           .thumbnailOffset = {1, 2},
           .bigOffset = {3, 4}};

    EXPECT_EQ(handling.cropImage9(path, folder.path(u"t/"_s), crop), ResultWord::Ok);
    EXPECT_EQ(partAt(folder.path(u"t/a.png"_s)), (Part{{31, 32}, {40, 20}}));
    EXPECT_EQ(test::openedPhoto(folder.path(u"t/a.png"_s)).header().orientation, 6);
}

TEST_F(GalleryCropping, TakesTheOffsetOfBigPicturesForAnyOtherKind)
{
    const QString path = write(coordinates(100, 80));
    DVImageHandling::GalleryCrop crop = {
        .size = {40, 20}, .kind = {}, .anchor = 0, .thumbnailOffset = {1, 2}, .bigOffset = {3, 4}};

    for (const QString& kind : {u"myCropBig"_s, u""_s}) {
        (void)write(coordinates(100, 80));
        crop.kind = kind;
        EXPECT_EQ(handling.cropImage9(path, folder.path(), crop), ResultWord::Ok);
        EXPECT_EQ(partAt(path), (Part{{3, 4}, {40, 20}}));
    }
}

TEST_F(GalleryCropping, PassesOverWhatItCannotRead)
{
    const QString out = folder.path(u"t/"_s);
    QDir().mkpath(out);
    const DVImageHandling::GalleryCrop crop = {.size = {4, 2}};

    EXPECT_EQ(handling.cropImage9(folder.path(u"gone.jpg"_s), out, crop), ResultWord::Ok);
    EXPECT_EQ(
        handling.cropImage9(folder.write(u"a.jpg"_s, "no photo"), out, crop), ResultWord::Failed
    );
    EXPECT_EQ(handling.cropImage9(u"/a.psd"_s, out, crop), ResultWord::NotSupported);
    EXPECT_EQ(handling.cropImage9(u"/a.pdf"_s, out, crop), ResultWord::NotSupported);
    EXPECT_TRUE(QDir(out).isEmpty());
}

TEST_F(CropPreview, OutlinesTheRectangleOnAnotherwiseTransparentPicture)
{
    const QString path = write(coordinates(200, 160).orientation(6));

    const auto picture = handling.hCropPhotosPreview(path, rectangleOf({100, 80}, 0, 20, 30));

    ASSERT_TRUE(picture);
    const QImage outline = picture->toQImage();
    ASSERT_EQ(outline.size(), QSize(160, 200));
    EXPECT_EQ(outline.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(outline.pixelColor(70, 70).alpha(), 0);
    EXPECT_EQ(outline.pixelColor(25, 30), QColor(255, 0, 0));
    EXPECT_EQ(outline.pixelColor(25, 29), QColor(255, 0, 0));
    EXPECT_EQ(outline.pixelColor(25, 109), QColor(255, 0, 0));
    EXPECT_EQ(outline.pixelColor(20, 105), QColor(255, 0, 0));
    EXPECT_EQ(outline.pixelColor(119, 105), QColor(255, 0, 0));
    EXPECT_EQ(outline.pixelColor(25, 28).alpha(), 0);
    EXPECT_EQ(outline.pixelColor(25, 31).alpha(), 0);
}

TEST_F(CropPreview, IsNothingForAnUnreadablePhoto)
{
    EXPECT_FALSE(handling.hCropPhotosPreview(folder.path(u"gone.jpg"_s), rectangleOf({4, 2}, 0)));
}

TEST_F(CropPreview, SharesThePlaceWithTheCrops)
{
    const QString path = write(coordinates(100, 80));
    (void)handling.hCropPhotosPreview(path, rectangleOf({40, 20}, 6, 5, -7));

    EXPECT_EQ(cropped(path, rectangleOf({10, 10}, -1)), (Part{{5, 7}, {10, 10}}));

    const auto picture = handling.hCropPhotosPreview(path, rectangleOf({10, 10}, -1));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->toQImage().pixelColor(5, 70), QColor(255, 0, 0));
}
