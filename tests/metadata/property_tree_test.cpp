// SPDX-License-Identifier: GPL-3.0-or-later
#include <metadata/property_tree.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using metadata::PropertyNode;
using platform::metadata::PropertyDictionary;

namespace {

PropertyDictionary nestedProperties()
{
    PropertyDictionary exif;
    exif.insert(u"UserComment"_qs, u"text"_qs);
    exif.insert(u"FNumber"_qs, 2.8);
    PropertyDictionary properties;
    properties.insert(u"{Exif}"_qs, exif);
    properties.insert(u"PixelWidth"_qs, 47);
    return properties;
}

} // namespace

TEST(PropertyTree, YieldsADictionaryAsANodeWithoutValueAndWithSortedChildren)
{
    const QList<PropertyNode> nodes = metadata::propertyNodes(nestedProperties());

    ASSERT_EQ(nodes.size(), 2);
    EXPECT_EQ(nodes[1].key, u"{Exif}"_qs);
    EXPECT_EQ(nodes[1].val, QString());
    ASSERT_EQ(nodes[1].children.size(), 2);
    EXPECT_EQ(nodes[1].children[0].key, u"FNumber"_qs);
    EXPECT_EQ(nodes[1].children[0].val, u"2.8"_qs);
    EXPECT_EQ(nodes[1].children[1].key, u"UserComment"_qs);
}

TEST(PropertyTree, SortsByCodeUnits)
{
    PropertyDictionary properties;
    for (const QString& key : {u"{Exif}"_qs, u"sRGBIntent"_qs, u"XPixelsPerMeter"_qs})
        properties.insert(key, 1);

    const QList<PropertyNode> nodes = metadata::propertyNodes(properties);

    EXPECT_EQ(nodes[0].key, u"XPixelsPerMeter"_qs);
    EXPECT_EQ(nodes[1].key, u"sRGBIntent"_qs);
    EXPECT_EQ(nodes[2].key, u"{Exif}"_qs);
}

TEST(PropertyTree, GivesRowsFromTheTopDown)
{
    const QList<QStringList> rows
        = metadata::propertyRows(metadata::propertyNodes(nestedProperties()));

    EXPECT_EQ(
        rows,
        (QList<QStringList>{
            {u"0"_qs, u"PixelWidth"_qs, u"47"_qs},
            {u"0"_qs, u"{Exif}"_qs, QString()},
            {u"1"_qs, u"FNumber"_qs, u"2.8"_qs},
            {u"1"_qs, u"UserComment"_qs, u"text"_qs}})
    );
}
