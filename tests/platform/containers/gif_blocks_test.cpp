// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/gif_blocks.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;

namespace {

const QByteArray header("GIF89a\x01\0\x01\0\0\0\0", 13);
const QByteArray comment("\x21\xFE\x02hi\x03 !\xF9\0", 10);
const QByteArray picture("\x2C\0\0\0\0\x01\0\x01\0\0\x02\x02\x21\xFE\0", 15);

} // namespace

TEST(GifBlocks, AreWalkedOverPicturesAndTheirData)
{
    const QByteArray file = header + picture + comment + ';';
    const auto extensions = readGifExtensions(file);

    ASSERT_EQ(extensions.size(), 1);
    EXPECT_EQ(extensions[0].label, 0xFE);
    EXPECT_EQ(extensions[0].dataBlocks, QByteArrayView("\x02hi\x03 !\xF9\0", 8));
}

TEST(GifBlocks, JoinTheirData)
{
    EXPECT_EQ(joinedDataBlocks(QByteArrayView("\x02hi\x03 !\xF9\0", 8)), "hi !\xF9");
}

TEST(GifBlocks, StandBehindTheGlobalPalette)
{
    QByteArray withPalette = header;
    withPalette[10] = '\x80';

    EXPECT_FALSE(hasGlobalPalette(header));
    EXPECT_TRUE(hasGlobalPalette(withPalette));
    EXPECT_EQ(readGifExtensions(withPalette + QByteArray(6, '\x21') + comment).size(), 1);
}

TEST(GifBlocks, EndWhereTheFileIsCutOff)
{
    EXPECT_EQ(readGifExtensions(header + comment + comment.chopped(1)).size(), 1);
    EXPECT_TRUE(readGifExtensions({}).isEmpty());
}
