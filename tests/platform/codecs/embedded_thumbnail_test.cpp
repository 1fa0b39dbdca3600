// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <support/exif_block.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform::codecs;
using namespace test;

QByteArray smallJpeg(int width, int height)
{
    return PhotoBuilder().size(width, height).corners().bytes();
}

TEST(EmbeddedThumbnail, StandsUpright)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(600, 400)
                             .exif(exifBlock({.orientation = 6, .thumbnail = smallJpeg(120, 80)}))
                             .write(folder.path(u"a.jpg"_s));

    const QImage thumbnail = embeddedThumbnail(path);

    EXPECT_EQ(thumbnail.size(), QSize(80, 120));
    EXPECT_EQ(cornerColors(thumbnail), "BRWG");
}

TEST(EmbeddedThumbnail, IsFoundBehindFillBytes)
{
    const TemporaryFolder folder;
    QByteArray photo
        = PhotoBuilder().size(120, 80).exif(exifBlock({.thumbnail = smallJpeg(30, 20)})).bytes();
    constexpr qsizetype behindTheStart = 2;
    photo.insert(behindTheStart, "\xFF\xFF");

    const QString path = folder.write(u"a.jpg"_s, photo);

    EXPECT_EQ(embeddedThumbnail(path).size(), QSize(30, 20));
}

TEST(EmbeddedThumbnail, FollowsAnOrientationStoredAsAByte)
{
    const TemporaryFolder folder;
    QByteArray block = exifBlock({.orientation = 6, .thumbnail = smallJpeg(30, 20)});
    constexpr char byte = 1;
    block[block.indexOf(QByteArrayView("\x12\x01\x03\0", 4)) + 2] = byte;

    const QString path = PhotoBuilder().size(120, 80).exif(block).write(folder.path(u"a.jpg"_s));

    EXPECT_EQ(embeddedThumbnail(path).size(), QSize(20, 30));
}

TEST(EmbeddedThumbnail, LosesTheBarsOfTheCamera)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(600, 400)
                             .exif(exifBlock({.thumbnail = smallJpeg(160, 120)}))
                             .write(folder.path(u"a.jpg"_s));

    EXPECT_EQ(embeddedThumbnail(path).size(), QSize(160, 106));
}

TEST(EmbeddedThumbnail, IsNullWithoutOne)
{
    const TemporaryFolder folder;

    EXPECT_TRUE(embeddedThumbnail(PhotoBuilder().write(folder.path(u"a.jpg"_s))).isNull());
    EXPECT_TRUE(embeddedThumbnail(folder.path(u"missing.jpg"_s)).isNull());
    EXPECT_TRUE(embeddedThumbnail(folder.write(u"b.jpg"_s, "no photo")).isNull());
}

TEST(EmbeddedThumbnail, IsNullInADamagedBlock)
{
    const TemporaryFolder folder;
    const QByteArray block = exifBlock({.orientation = 6, .thumbnail = smallJpeg(32, 24)});
    for (qsizetype length = 0; length < 100; ++length) {
        const QString path
            = PhotoBuilder().exif(block.first(length)).write(folder.path(u"a.jpg"_s));

        EXPECT_TRUE(embeddedThumbnail(path).isNull()) << length;
    }
}

TEST(EmbeddedThumbnail, SurvivesAnyByteOfTheBlock)
{
    const TemporaryFolder folder;
    const QByteArray block = exifBlock({.orientation = 6, .thumbnail = smallJpeg(32, 24)});
    for (qsizetype at = 0; at < 100; ++at) {
        QByteArray damaged = block;
        damaged[at] = '\xFF';
        const QString path = PhotoBuilder().exif(damaged).write(folder.path(u"a.jpg"_s));

        const QImage thumbnail = embeddedThumbnail(path);

        EXPECT_LE(thumbnail.width(), 32) << at;
    }
}

} // namespace
} // namespace brenvaldo
