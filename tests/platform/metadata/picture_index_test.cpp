// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/tiff_directory.h>
#include <platform/metadata/picture_index.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;
using brenvaldo::platform::metadata::movedPictureIndex;

namespace {

QByteArray entry(std::uint64_t size, std::uint64_t offset, ByteOrder order)
{
    QByteArray bytes;
    appendUnsigned(bytes, 0x20000, 4, order);
    appendUnsigned(bytes, size, 4, order);
    appendUnsigned(bytes, offset, 4, order);
    appendUnsigned(bytes, 0, 4, order);
    return bytes;
}

QByteArray index(const QByteArray& entries, ByteOrder order)
{
    const TiffDirectory directory{
        {.tag = 0xB001, .type = tiff::Long, .value = QByteArray(4, '\1')},
        {.tag = 0xB002, .type = tiff::Undefined, .value = entries}};
    return tiffHeader(order, 8) + serializedDirectory(directory, 8, order);
}

} // namespace

TEST(MovedPictureIndex, ShiftsTheFurtherPicturesAndGrowsTheFirst)
{
    for (const ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
        const QByteArray before = index(
            entry(5000, 0, order) + entry(300, 4900, order) + entry(20, 5200, order), order
        );

        EXPECT_EQ(
            movedPictureIndex(before, {.shift = -40, .growth = 700}),
            index(entry(5700, 0, order) + entry(300, 4860, order) + entry(20, 5160, order), order)
        );
    }
}

TEST(MovedPictureIndex, LeavesWhatIsDamaged)
{
    const QByteArray cut = index(entry(5000, 0, ByteOrder::Big).chopped(1), ByteOrder::Big);

    EXPECT_EQ(movedPictureIndex(cut, {.shift = 1, .growth = 1}), cut);
    EXPECT_EQ(movedPictureIndex("no index", {.shift = 1, .growth = 1}), "no index");
    EXPECT_EQ(
        movedPictureIndex(tiffHeader(ByteOrder::Big, 8) + QByteArray(6, '\0'), {.shift = 1}),
        tiffHeader(ByteOrder::Big, 8) + QByteArray(6, '\0')
    );
}
