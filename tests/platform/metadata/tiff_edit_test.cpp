// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/containers/tiff_edit.h>
#include <platform/metadata/exif_thumbnail.h>
#include <support/exif_block.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;
using brenvaldo::platform::metadata::thumbnailAlone;
using brenvaldo::test::cameraBlocks;
using brenvaldo::test::exifBlock;

namespace {

constexpr std::uint16_t make = 271;
constexpr std::uint16_t software = 305;
constexpr std::uint16_t dateTimeOriginal = 36867;

TiffField textField(std::uint16_t tag, const QByteArray& text)
{
    return {.tag = tag, .type = tiff::Ascii, .value = text};
}

TiffField comment(const QByteArray& text)
{
    return {.tag = tiff::UserComment, .type = tiff::Undefined, .value = text};
}

QByteArray edited(const QByteArray& bytes, const TiffEdit& edit)
{
    const auto pieces = editedTiff(bytes, edit);
    return pieces ? pieces->join() : QByteArray();
}

QByteArray rootValue(const QByteArray& bytes, std::uint16_t tag)
{
    const TiffDirectory root = TiffFile::open(bytes)->firstDirectory();
    const TiffField* field = fieldOf(root, tag);
    return field ? QByteArray(field->value.constData(), field->value.size()) : "none";
}

QByteArray exifValue(const QByteArray& bytes, std::uint16_t tag)
{
    const auto file = TiffFile::open(bytes);
    const TiffDirectory exif = file->subDirectory(file->firstDirectory(), tiff::ExifDirectory);
    const TiffField* field = fieldOf(exif, tag);
    return field ? QByteArray(field->value.constData(), field->value.size()) : "none";
}

QByteArray camera() { return cameraBlocks().exif; }

/// A directory at offset 8 whose entries are given byte by byte.
QByteArray littleTiff(const QByteArrayList& entries, const QByteArray& behind = {})
{
    QByteArray bytes = tiffHeader(ByteOrder::Little, 8);
    appendUnsigned(bytes, static_cast<std::uint64_t>(entries.size()), 2, ByteOrder::Little);
    return bytes + entries.join() + QByteArray(4, '\0') + behind;
}

QByteArray entry(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::uint32_t value)
{
    QByteArray bytes;
    appendUnsigned(bytes, tag, 2, ByteOrder::Little);
    appendUnsigned(bytes, type, 2, ByteOrder::Little);
    appendUnsigned(bytes, count, 4, ByteOrder::Little);
    appendUnsigned(bytes, value, 4, ByteOrder::Little);
    return bytes;
}

} // namespace

TEST(EditedTiff, SetsAFieldOfEitherDirectory)
{
    const QByteArray after = edited(
        camera(), {.root = {textField(software, "a program")}, .exif = {comment("a new comment")}}
    );

    EXPECT_EQ(rootValue(after, software), "a program");
    EXPECT_EQ(exifValue(after, tiff::UserComment), "a new comment");
}

TEST(EditedTiff, SetsAShortValueInItsEntry)
{
    EXPECT_EQ(rootValue(edited(camera(), {.root = {textField(make, "abc")}}), make), "abc");
}

TEST(EditedTiff, MovesNothingOfTheFile)
{
    const QByteArray before = camera();

    const QByteArray after
        = edited(before, {.root = {textField(software, "new")}, .exif = {comment("another one")}});

    EXPECT_EQ(after.mid(8, before.size() - 8), before.sliced(8));
    EXPECT_EQ(rootValue(after, make), rootValue(before, make));
    EXPECT_EQ(exifValue(after, dateTimeOriginal), exifValue(before, dateTimeOriginal));
    EXPECT_EQ(exifValue(after, tiff::MakerNote), exifValue(before, tiff::MakerNote));
    EXPECT_EQ(thumbnailAlone(after), thumbnailAlone(before));
}

TEST(EditedTiff, TakesAFieldAway)
{
    const QByteArray after = edited(camera(), {.removedFromRoot = {make}});

    EXPECT_EQ(rootValue(after, make), "none");
    EXPECT_EQ(exifValue(after, dateTimeOriginal), exifValue(camera(), dateTimeOriginal));
}

TEST(EditedTiff, SortsTheEntries)
{
    const QByteArray after = edited(camera(), {.root = {textField(software, "new")}});

    const TiffDirectory root = TiffFile::open(after)->firstDirectory();
    EXPECT_TRUE(std::is_sorted(root.begin(), root.end(), [](const auto& left, const auto& right) {
        return left.tag < right.tag;
    }));
}

TEST(EditedTiff, MakesAnExifDirectory)
{
    for (const ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
        const QByteArray after = edited(emptyTiff(order), {.exif = {comment("a comment")}});

        EXPECT_EQ(exifValue(after, tiff::UserComment), "a comment");
        EXPECT_EQ(TiffFile::open(after)->order(), order);
    }
}

TEST(EditedTiff, DoesNotGrowWhenTheSameIsWrittenAgain)
{
    const TiffEdit edit{
        .root = {textField(software, "a program")}, .exif = {comment("a comment of odd length")}};
    const QByteArray once = edited(camera(), edit);

    EXPECT_EQ(edited(once, edit), once);
}

TEST(EditedTiff, GivesRoomBackThatStoodAtTheEnd)
{
    const QByteArray once = edited(camera(), {.exif = {comment(QByteArray(5000, 'x'))}});

    const QByteArray twice = edited(once, {.exif = {comment("a short one")}});

    EXPECT_EQ(exifValue(twice, tiff::UserComment), "a short one");
    EXPECT_EQ(twice.size(), edited(camera(), {.exif = {comment("a short one")}}).size());
}

TEST(EditedTiff, KeepsAValueThatTwoEntriesShare)
{
    // The value at the end belongs to both tags.
    const QByteArray before = littleTiff(
        {entry(make, tiff::Ascii, 6, 38), entry(software, tiff::Ascii, 6, 38)}, "shared"
    );

    const QByteArray after = edited(before, {.root = {textField(make, "another")}});

    EXPECT_EQ(rootValue(after, make), "another");
    EXPECT_EQ(rootValue(after, software), "shared");
}

TEST(EditedTiff, KeepsEntriesThatNobodyUnderstands)
{
    const QByteArray unknownType = entry(700, 99, 1, 12345);
    const QByteArray beyondTheEnd = entry(800, tiff::Ascii, 1000, 4000000);

    const QByteArray after
        = edited(littleTiff({unknownType, beyondTheEnd}), {.root = {textField(make, "Brand")}});

    EXPECT_TRUE(after.contains(unknownType));
    EXPECT_TRUE(after.contains(beyondTheEnd));
}

TEST(EditedTiff, KeepsTheDirectoryThatFollows)
{
    const auto before = TiffFile::open(camera())->secondOffset();
    ASSERT_NE(before, 0U);

    const QByteArray after = edited(camera(), {.exif = {comment("new")}});

    EXPECT_EQ(TiffFile::open(after)->secondOffset(), before);
}

TEST(EditedTiff, RefusesWhatIsCutOff)
{
    const TiffEdit edit{.exif = {comment("new")}};
    const QByteArray lostExif = littleTiff({entry(tiff::ExifDirectory, tiff::Long, 1, 70000)});

    EXPECT_FALSE(editedTiff("no TIFF structure", edit));
    EXPECT_FALSE(editedTiff(camera().first(20), edit));
    EXPECT_FALSE(editedTiff(lostExif, edit));
    EXPECT_TRUE(editedTiff(lostExif, {.root = {textField(make, "Brand")}}));
    EXPECT_FALSE(editedTiff(QByteArray("II\x2B\0\x08\0\0\0\x10\0\0\0\0\0\0\0", 16), edit));
}

TEST(EditedTiff, RefusesADirectoryThatHasNoRoomForMore)
{
    const QByteArrayList entries(65000, entry(make, tiff::Short, 1, 1));

    EXPECT_FALSE(editedTiff(littleTiff(entries), {.root = {textField(software, "new")}}));
}

TEST(TiffWithExifValue, OverwritesAValueThatLeavesTheRoom)
{
    const QByteArray before = exifBlock({.make = "Brand", .userComment = "a comment and its room"});

    const auto after = tiffWithExifValue(before, comment("a new one"));

    ASSERT_TRUE(after);
    EXPECT_EQ(after->size(), before.size());
    EXPECT_EQ(exifValue(*after, tiff::UserComment), "a new one");
    EXPECT_EQ(rootValue(*after, make), rootValue(before, make));
    EXPECT_FALSE(after->contains("room"));
}

TEST(TiffWithExifValue, IsNoneWithoutTheRoom)
{
    const QByteArray before = exifBlock({.make = "Brand", .userComment = "short"});

    EXPECT_FALSE(tiffWithExifValue(before, comment("longer than before")));
    EXPECT_FALSE(tiffWithExifValue(before, comment("four")));
    EXPECT_FALSE(tiffWithExifValue(exifBlock({.make = "Brand"}), comment("a new one")));
    EXPECT_FALSE(tiffWithExifValue("no TIFF structure", comment("a new one")));
    EXPECT_FALSE(
        tiffWithExifValue(before, {.tag = tiff::UserComment, .type = tiff::Ascii, .value = "other"})
    );
}
