// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/metadata/exif_properties.h>
#include <platform/metadata/user_comment.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;

namespace {

QString commentOf(const QByteArray& exif)
{
    return exifProperties(*TiffFile::open(exif))
        .exif.text(QLatin1StringView("UserComment"))
        .value_or(u"none"_s);
}

} // namespace

TEST(UserCommentField, HoldsAsciiWhereThatIsEnough)
{
    const TiffField field = userCommentField(u"At sea"_s, ByteOrder::Big);

    EXPECT_EQ(field.tag, 37510);
    EXPECT_EQ(field.type, 7);
    EXPECT_EQ(field.value, QByteArray("ASCII\0\0\0At sea", 14));
}

TEST(UserCommentField, HoldsUtf16InTheOrderOfTheBlock)
{
    EXPECT_EQ(userCommentField(u"é"_s, ByteOrder::Big).value, QByteArray("UNICODE\0\0\xE9", 10));
    EXPECT_EQ(userCommentField(u"é"_s, ByteOrder::Little).value, QByteArray("UNICODE\0\xE9\0", 10));
}

TEST(UserCommentField, IsThereWhenItIsEmpty)
{
    EXPECT_EQ(userCommentField({}, ByteOrder::Big).value, QByteArray("ASCII\0\0\0", 8));
}

TEST(ExifWithUserComment, MakesABlockWhereThereIsNone)
{
    EXPECT_EQ(commentOf(*exifWithUserComment({}, u"Zürich 🏔"_s)), u"Zürich 🏔"_s);
    EXPECT_EQ(commentOf(*exifWithUserComment({}, {})), QString());
}

TEST(ExifWithUserComment, PutsItIntoTheBlockInItsByteOrder)
{
    const QByteArray exif = brenvaldo::test::cameraBlocks().exif;

    EXPECT_EQ(commentOf(*exifWithUserComment(exif, u"new"_s)), u"new"_s);
    EXPECT_EQ(commentOf(*exifWithUserComment(exif, u"né"_s)), u"né"_s);
}

TEST(ExifWithUserComment, RefusesADamagedBlock)
{
    EXPECT_FALSE(exifWithUserComment("no TIFF structure", u"new"_s));
}
