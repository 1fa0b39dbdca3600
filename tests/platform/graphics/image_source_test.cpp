// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/image_source.h>

#include <support/case_name.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform;
using namespace test;

struct OrientationCase
{
    const char* name;
    int tag;
    PixelSize upright;
    const char* corners; ///< of the upright picture
    int orientation;

    friend void PrintTo(const OrientationCase& row, std::ostream* out) { *out << row.name; }
};

class ImageSourceOrientation : public testing::TestWithParam<OrientationCase>
{
};

TEST_P(ImageSourceOrientation, TurnsThePixelsUpright)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(48, 32)
                             .corners()
                             .orientation(GetParam().tag)
                             .write(folder.path(QStringLiteral("photo.jpg")));

    const QImage upright = uprightPixels(path);

    EXPECT_EQ(openedPhoto(path).header().uprightSize, GetParam().upright);
    EXPECT_EQ((PixelSize{upright.width(), upright.height()}), GetParam().upright);
    EXPECT_EQ(cornerColors(upright), GetParam().corners);
}

TEST_P(ImageSourceOrientation, LeavesStoredPixelsAlone)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(48, 32)
                             .corners()
                             .orientation(GetParam().tag)
                             .write(folder.path(QStringLiteral("photo.jpg")));

    const QImage stored = storedPixels(path);

    EXPECT_EQ(openedPhoto(path).header().orientation, GetParam().orientation);
    EXPECT_EQ(openedPhoto(path).header().storedSize, (PixelSize{48, 32}));
    EXPECT_EQ(stored.size(), QSize(48, 32));
    EXPECT_EQ(cornerColors(stored), "RGBW");
}

INSTANTIATE_TEST_SUITE_P(
    Orientations,
    ImageSourceOrientation,
    testing::Values(
        OrientationCase{"NotSet", 0, {48, 32}, "RGBW", 1},
        OrientationCase{"Upright", 1, {48, 32}, "RGBW", 1},
        OrientationCase{"Mirrored", 2, {48, 32}, "GRWB", 2},
        OrientationCase{"UpsideDown", 3, {48, 32}, "WBGR", 3},
        OrientationCase{"MirroredUpsideDown", 4, {48, 32}, "BWRG", 4},
        OrientationCase{"Transposed", 5, {32, 48}, "RBGW", 5},
        OrientationCase{"Clockwise", 6, {32, 48}, "BRWG", 6},
        OrientationCase{"Transversed", 7, {32, 48}, "WGBR", 7},
        OrientationCase{"CounterClockwise", 8, {32, 48}, "GWRB", 8},
        OrientationCase{"Invalid", 9, {48, 32}, "RGBW", 1}
    ),
    CaseName()
);

TEST(ImageSource, ReportsTheSizeAPhotoShowsAt)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().size(400, 300).orientation(6).write(folder.path(QStringLiteral("photo.jpg")
        ));

    const auto source = openedPhoto(path);

    EXPECT_EQ(source.header().storedSize, (PixelSize{400, 300}));
    EXPECT_EQ(source.header().uprightSize, (PixelSize{300, 400}));
}

TEST(ImageSource, ReadsWholePixelsAMetreAsWholeDotsPerInch)
{
    const TemporaryFolder folder;
    for (const int dotsPerInch : {72, 144, 300}) {
        const QString path = PhotoBuilder()
                                 .format(PhotoFormat::Png)
                                 .dotsPerInch(dotsPerInch)
                                 .write(folder.path(QStringLiteral("photo.png")));

        EXPECT_EQ(openedPhoto(path).header().dotsPerInch, dotsPerInch);
        EXPECT_EQ(openedPhoto(path).image()->dotsPerInch(), dotsPerInch);
    }
}

TEST(ImageSource, FollowsTheContentsNotTheName)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder().write(folder.path(QStringLiteral("photo.png")));

    EXPECT_EQ(openedPhoto(path).header().typeIdentifier, QStringLiteral("public.jpeg"));
}

} // namespace
} // namespace brenvaldo
