// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/signatures.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;

TEST(FileKind, TellsTheContainerAndTheType)
{
    const auto jpeg = fileKindOf("\xFF\xD8\xFF\xE0");
    ASSERT_TRUE(jpeg);
    EXPECT_EQ(jpeg->container, Container::Jpeg);
    EXPECT_STREQ(jpeg->typeIdentifier, "public.jpeg");

    const auto raw = fileKindOf(QByteArrayView("II*\0\x10\0\0\0CR\x02", 11));
    ASSERT_TRUE(raw);
    EXPECT_EQ(raw->container, Container::Tiff);
    EXPECT_STREQ(raw->typeIdentifier, "com.canon.cr2-raw-image");

    const auto heif = fileKindOf(QByteArrayView(
        "\0\0\0\x10"
        "ftypheic\0\0\0\0",
        16
    ));
    ASSERT_TRUE(heif);
    EXPECT_EQ(heif->container, Container::Heif);
    EXPECT_STREQ(heif->typeIdentifier, "public.heic");
}

TEST(FileKind, IsNoneForAFilm)
{
    EXPECT_FALSE(fileKindOf(QByteArrayView(
        "\0\0\0\x10"
        "ftypmp42\0\0\0\0",
        16
    )));
}

TEST(FileKind, IsNoneForAPhotoshopFileOfAnUnknownVersion)
{
    EXPECT_FALSE(fileKindOf(QByteArrayView("8BPS\0\3", 6)));
}

TEST(FileKind, IsNoneForABeginning)
{
    EXPECT_FALSE(fileKindOf({}));
    EXPECT_FALSE(fileKindOf("\xFF\xD8"));
    EXPECT_FALSE(fileKindOf(QByteArrayView(
        "\0\0\0\x10"
        "ftyp",
        8
    )));
}
