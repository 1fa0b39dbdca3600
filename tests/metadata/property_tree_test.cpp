// SPDX-License-Identifier: GPL-3.0-or-later
#include <metadata/property_tree.h>
#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using metadata::PropertyNode;
using platform::metadata::PropertyDictionary;

namespace {

PropertyDictionary nestedProperties()
{
    PropertyDictionary exif;
    exif.insert(u"UserComment"_s, u"text"_s);
    exif.insert(u"FNumber"_s, 2.8);
    PropertyDictionary properties;
    properties.insert(u"{Exif}"_s, exif);
    properties.insert(u"PixelWidth"_s, 47);
    return properties;
}

} // namespace

TEST(PropertyTree, YieldsADictionaryAsANodeWithoutValueAndWithSortedChildren)
{
    const QList<PropertyNode> nodes = metadata::propertyNodes(nestedProperties());

    ASSERT_EQ(nodes.size(), 2);
    EXPECT_EQ(nodes[1].key, u"{Exif}"_s);
    EXPECT_EQ(nodes[1].val, QString());
    ASSERT_EQ(nodes[1].children.size(), 2);
    EXPECT_EQ(nodes[1].children[0].key, u"FNumber"_s);
    EXPECT_EQ(nodes[1].children[0].val, u"2.8"_s);
    EXPECT_EQ(nodes[1].children[1].key, u"UserComment"_s);
}

TEST(PropertyTree, SortsByCodeUnits)
{
    PropertyDictionary properties;
    for (const QString& key : {u"{Exif}"_s, u"sRGBIntent"_s, u"XPixelsPerMeter"_s})
        properties.insert(key, 1);

    const QList<PropertyNode> nodes = metadata::propertyNodes(properties);

    EXPECT_EQ(nodes[0].key, u"XPixelsPerMeter"_s);
    EXPECT_EQ(nodes[1].key, u"sRGBIntent"_s);
    EXPECT_EQ(nodes[2].key, u"{Exif}"_s);
}

TEST(PropertyTree, GivesRowsFromTheTopDown)
{
    const QList<QStringList> rows
        = metadata::propertyRows(metadata::propertyNodes(nestedProperties()));

    EXPECT_EQ(
        rows,
        (QList<QStringList>{
            {u"0"_s, u"PixelWidth"_s, u"47"_s},
            {u"0"_s, u"{Exif}"_s, QString()},
            {u"1"_s, u"FNumber"_s, u"2.8"_s},
            {u"1"_s, u"UserComment"_s, u"text"_s}})
    );
}
