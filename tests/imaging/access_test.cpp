// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>

#include <support/geometry_printing.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::imaging::DVImageHandling;
using brenvaldo::platform::graphics::PixelSize;
using namespace brenvaldo::test;

namespace {

PhotoBuilder turnedPhoto() { return PhotoBuilder().size(400, 300).corners().orientation(6); }

QString noPhoto(const TemporaryFolder& folder)
{
    return folder.write(u"note.jpg"_s, "this is no photo");
}

} // namespace

TEST(ImageAccess, OpensAPhotoUpright)
{
    const TemporaryFolder folder;
    const QString path = turnedPhoto().write(folder.path(u"photo.jpg"_s));

    const auto image = DVImageHandling::hNSURLtoCIImage(QUrl::fromLocalFile(path));

    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelSize(), (PixelSize{300, 400}));
    EXPECT_EQ(cornerColors(image->toQImage()), "BRWG");
}

TEST(ImageAccess, OpensTheStoredPixelsOfAPhoto)
{
    const TemporaryFolder folder;
    const QString path = turnedPhoto().write(folder.path(u"photo.jpg"_s));

    const auto image = DVImageHandling::hStringToCGImageRef(path);

    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelSize(), (PixelSize{400, 300}));
    EXPECT_EQ(cornerColors(image->toQImage()), "RGBW");
}

TEST(ImageAccess, GivesNothingForAFileThatIsNoPhoto)
{
    const TemporaryFolder folder;
    const QString path = noPhoto(folder);

    EXPECT_FALSE(DVImageHandling::hNSURLtoCIImage(QUrl::fromLocalFile(path)));
    EXPECT_FALSE(DVImageHandling::hStringToCGImageRef(path));
    EXPECT_FALSE(DVImageHandling::hStringToCGImageRef(folder.path(u"missing.jpg"_s)));
}

TEST(ImageAccess, DrawsAPictureAtOnePixelAPoint)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder().dotsPerInch(300).write(folder.path(u"photo.jpg"_s));
    const auto image = DVImageHandling::hStringToCGImageRef(path);
    ASSERT_TRUE(image);

    const auto drawn = DVImageHandling::imageFromCGImageRef(*image);

    EXPECT_EQ(drawn.pixelSize(), image->pixelSize());
    EXPECT_EQ(drawn.dotsPerInch(), 72);
}

TEST(ImageAccess, KeepsThePixelsOfAPictureThroughItsOtherForms)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder().corners().write(folder.path(u"photo.jpg"_s));
    const auto image = DVImageHandling::hStringToCGImageRef(path);
    ASSERT_TRUE(image);

    const auto inMemory
        = DVImageHandling::ciimageFromNSImage(DVImageHandling::nsImageToCGImageRef(*image));

    ASSERT_TRUE(inMemory);
    EXPECT_EQ(largestDifference(inMemory->toQImage(), storedPixels(path)), 0);
}

TEST(ImageAccess, GivesNothingForTheOtherFormOfADamagedPhoto)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(400, 300).bytes();
    const QString path = folder.write(u"half.jpg"_s, whole.left(whole.size() / 2));
    const auto image = DVImageHandling::hStringToCGImageRef(path);
    ASSERT_TRUE(image);

    EXPECT_FALSE(DVImageHandling::ciimageFromNSImage(*image));
}

TEST(ImageSize, IsThatOfTheUprightPhoto)
{
    const TemporaryFolder folder;
    const QString path = turnedPhoto().write(folder.path(u"photo.jpg"_s));

    EXPECT_EQ(DVImageHandling::hGetImgPixelSize(path), (PixelSize{300, 400}));
}

TEST(ImageSize, IsThatOfAPictureInHand)
{
    const TemporaryFolder folder;
    const QString path = turnedPhoto().write(folder.path(u"photo.jpg"_s));
    const auto image = DVImageHandling::hNSURLtoCIImage(QUrl::fromLocalFile(path));

    EXPECT_EQ(DVImageHandling::hGetCIImgPixelSize(image), (PixelSize{300, 400}));
}

TEST(ImageSize, IsToldAsText)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().size(4000, 3000).solid({90, 90, 90}).write(folder.path(u"photo.jpg"_s));

    EXPECT_EQ(DVImageHandling::hGetPixelSize(path), u"4000px x 3000px (w x h)"_s);
}

TEST(ImageSize, IsZeroForAFileThatIsNoPhoto)
{
    const TemporaryFolder folder;
    const QString path = noPhoto(folder);

    EXPECT_EQ(DVImageHandling::hGetImgPixelSize(path), (PixelSize{0, 0}));
    EXPECT_EQ(DVImageHandling::hGetCIImgPixelSize(std::nullopt), (PixelSize{0, 0}));
    EXPECT_EQ(DVImageHandling::hGetPixelSize(path), u"0px x 0px (w x h)"_s);
}
