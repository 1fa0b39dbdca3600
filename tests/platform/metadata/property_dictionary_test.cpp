// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <platform/metadata/property_dictionary.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using brenvaldo::platform::metadata::PropertyDictionary;
using brenvaldo::platform::metadata::PropertyValue;

TEST(PropertyValue, PrintsIntegersPlain)
{
    EXPECT_EQ(PropertyValue(72).text(), u"72"_s);
    EXPECT_EQ(PropertyValue(-3).text(), u"-3"_s);
}

TEST(PropertyValue, PrintsDoublesWithSixteenDigitsAtMost)
{
    EXPECT_EQ(PropertyValue(72.0).text(), u"72"_s);
    EXPECT_EQ(PropertyValue(72.5).text(), u"72.5"_s);
    EXPECT_EQ(PropertyValue(1.0 / 15).text(), u"0.06666666666666667"_s);
}

TEST(PropertyValue, PrintsBooleansAsNumbers)
{
    EXPECT_EQ(PropertyValue(true).text(), u"1"_s);
    EXPECT_EQ(PropertyValue(false).text(), u"0"_s);
}

TEST(PropertyValue, PrintsArraysOneElementALine)
{
    const PropertyValue array(PropertyValue::Array{
        PropertyValue(2), PropertyValue(u"word"_s), PropertyValue(u"two words"_s)});

    EXPECT_EQ(array.text(), u"(\n    2,\n    word,\n    \"two words\"\n)"_s);
    EXPECT_EQ(PropertyValue(PropertyValue::Array()).text(), u"(\n)"_s);
}

TEST(PropertyValue, PrintsDictionariesSortedAndIndented)
{
    PropertyDictionary dictionary;
    dictionary.insert(u"Z"_s, PropertyValue(PropertyValue::Array{PropertyValue(0.5)}));
    dictionary.insert(u"A"_s, u"Caf\u00e9"_s);

    EXPECT_EQ(
        PropertyValue(dictionary).text(),
        u"{\n    A = \"Caf\\U00e9\";\n    Z = (\n        \"0.5\"\n    );\n}"_s
    );
}

TEST(PropertyDictionary, KeepsTheOrderOfItsKeys)
{
    PropertyDictionary dictionary;
    dictionary.insert(u"b"_s, 1);
    dictionary.insert(u"a"_s, 2);

    dictionary.insert(u"b"_s, 3);

    EXPECT_EQ(dictionary.keys(), QStringList({u"b"_s, u"a"_s}));
    EXPECT_EQ(dictionary.text(u"b"_s), u"3"_s);
    EXPECT_EQ(dictionary.text(u"c"_s), std::nullopt);
}
