// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/memory_check.h>
#include <platform/graphics/deferred_pixels.h>

#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::platform::graphics;
using namespace brenvaldo::platform::codecs;
using namespace brenvaldo::test;

namespace {

std::size_t decodingBytesOf(PhotoFormat format)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder().size(64, 64).format(format).write(folder.path() + u'a');
    return openedPhoto(path).image()->node()->decodingBytes;
}

} // namespace

TEST(MemoryCheck, CountsWhatTheDecoderTakes)
{
    ImageNode node;
    node.pixels = newMemoryPixels({.width = 10, .height = 10, .bands = 3});

    EXPECT_NO_THROW(checkMemoryForWholePicture(node, 10));

    node.decodingBytes = std::size_t{1} << 60;
    EXPECT_THROW(checkMemoryForWholePicture(node, 10), vips::VError);
}

TEST(DecodingBytes, AreThoseOfDecodersThatHoldThePicture)
{
    EXPECT_EQ(decodingBytesOf(PhotoFormat::Jpeg), 0U);
    EXPECT_EQ(decodingBytesOf(PhotoFormat::ProgressiveJpeg), 64U * 64 * 3 * 2);
    EXPECT_EQ(decodingBytesOf(PhotoFormat::Bmp), 64U * 64 * 3);
    EXPECT_EQ(decodingBytesOf(PhotoFormat::Heic), 64U * 64 * 3);
}
