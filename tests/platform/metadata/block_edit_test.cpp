// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/containers/photoshop_resources.h>
#include <platform/metadata/block_edit.h>
#include <platform/metadata/xmp_values.h>
#include <support/iptc_block.h>
#include <support/text_printing.h>

#include <QCryptographicHash>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using brenvaldo::test::cameraBlocks;
using brenvaldo::test::iptcDataSet;

namespace {

QByteArray resource(int id, const QByteArray& data)
{
    return brenvaldo::test::photoshopResource(id, data);
}

QByteArray checksum(const QByteArray& iptc)
{
    return QCryptographicHash::hash(iptc, QCryptographicHash::Md5);
}

const MetadataEdit& headline()
{
    static const MetadataEdit edit{.iptc = {{IptcKey::Headline, {u"News"_s}}}};
    return edit;
}

} // namespace

TEST(PhotoshopWith, ReplacesTheResourceWhereItStands)
{
    EXPECT_EQ(
        photoshopWith(resource(1, "a") + resource(0x0404, "old") + resource(2, "b"), "new"),
        resource(1, "a") + resource(0x0404, "new") + resource(2, "b")
    );
}

TEST(PhotoshopWith, ReplacesTheFirstOfSeveral)
{
    EXPECT_EQ(
        photoshopWith(resource(0x0404, "old") + resource(0x0404, "older"), "new"),
        resource(0x0404, "new") + resource(0x0404, "older")
    );
}

TEST(PhotoshopWith, AppendsTheFirstResource)
{
    EXPECT_EQ(photoshopWith(resource(1, "a"), "new"), resource(1, "a") + resource(0x0404, "new"));
    EXPECT_EQ(photoshopWith({}, "new"), resource(0x0404, "new"));
}

TEST(PhotoshopWith, KeepsAChecksumRightThatWasRight)
{
    EXPECT_EQ(
        photoshopWith(resource(0x0404, "old") + resource(0x0425, checksum("old")), "new"),
        resource(0x0404, "new") + resource(0x0425, checksum("new"))
    );
    EXPECT_EQ(
        photoshopWith(resource(0x0404, "old") + resource(0x0425, "of long ago"), "new"),
        resource(0x0404, "new") + resource(0x0425, "of long ago")
    );
}

TEST(PhotoshopWith, FillsAChecksumOfNone)
{
    EXPECT_EQ(
        photoshopWith(resource(0x0425, QByteArray(16, '\0')), "new"),
        resource(0x0425, checksum("new")) + resource(0x0404, "new")
    );
}

TEST(PhotoshopWith, TakesPaddingForNoDamage)
{
    EXPECT_EQ(
        photoshopWith(resource(1, "ab") + QByteArray(2, '\0'), "new"),
        resource(1, "ab") + resource(0x0404, "new")
    );
    EXPECT_FALSE(photoshopWith(resource(1, "ab") + "garbage", "new"));
}

TEST(EditedBlocks, ChangesIptcInEveryPlaceThatHoldsIt)
{
    const MetadataBlocks before = cameraBlocks();

    const MetadataBlocks after = *editedBlocks(before, headline());

    EXPECT_TRUE(after.iptc.contains(iptcDataSet(105, "News")));
    EXPECT_TRUE(after.iptc.contains(iptcDataSet(80, "Jane")));
    EXPECT_EQ(photoshopResourceData(after.photoshop, PhotoshopResourceId::Iptc), after.iptc);
    EXPECT_EQ(XmpValues(after.xmp).texts("Xmp.photoshop.Headline"), QStringList{u"News"_s});
    EXPECT_EQ(XmpValues(after.xmp).texts("Xmp.dc.title"), QStringList{u"A title"_s});
    EXPECT_EQ(after.exif, before.exif);
}

TEST(EditedBlocks, LeaveIptcAloneWithoutAChange)
{
    MetadataBlocks before = cameraBlocks();
    before.iptc = "damaged";
    before.xmp = "damaged";

    const auto after = editedBlocks(before, {.userComment = u"new"_s});

    ASSERT_TRUE(after);
    EXPECT_NE(after->exif, before.exif);
    EXPECT_EQ(after->iptc, before.iptc);
    EXPECT_EQ(after->xmp, before.xmp);
    EXPECT_EQ(after->photoshop, before.photoshop);
}

TEST(EditedBlocks, AreNoneWhereABlockIsDamaged)
{
    MetadataBlocks iptc = cameraBlocks();
    iptc.iptc = "damaged";
    MetadataBlocks xmp = cameraBlocks();
    xmp.xmp = "damaged";
    MetadataBlocks photoshop = cameraBlocks();
    photoshop.photoshop = "damaged";
    MetadataBlocks exif = cameraBlocks();
    exif.exif = "damaged";

    EXPECT_FALSE(editedBlocks(iptc, headline()));
    EXPECT_FALSE(editedBlocks(xmp, headline()));
    EXPECT_FALSE(editedBlocks(photoshop, headline()));
    EXPECT_TRUE(editedBlocks(exif, headline()));
    EXPECT_FALSE(editedBlocks(exif, {.userComment = u"new"_s}));
}
