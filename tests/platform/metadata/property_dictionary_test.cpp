// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/property_dictionary.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using brenvaldo::platform::metadata::PropertyDictionary;
using brenvaldo::platform::metadata::PropertyValue;

namespace {

QString text(const char* literal) { return QString::fromUtf8(literal); }

} // namespace

TEST(PropertyValue, PrintsIntegersPlain)
{
    EXPECT_EQ(PropertyValue(72).text(), text("72"));
    EXPECT_EQ(PropertyValue(-3).text(), text("-3"));
}

TEST(PropertyValue, PrintsDoublesWithSixteenDigitsAtMost)
{
    EXPECT_EQ(PropertyValue(72.0).text(), text("72"));
    EXPECT_EQ(PropertyValue(72.5).text(), text("72.5"));
    EXPECT_EQ(PropertyValue(1.0 / 15).text(), text("0.06666666666666667"));
}

TEST(PropertyValue, PrintsBooleansAsNumbers)
{
    EXPECT_EQ(PropertyValue(true).text(), text("1"));
    EXPECT_EQ(PropertyValue(false).text(), text("0"));
}

TEST(PropertyValue, PrintsArraysOneElementALine)
{
    const PropertyValue array(PropertyValue::Array{
        PropertyValue(2), PropertyValue(text("word")), PropertyValue(text("two words"))});

    EXPECT_EQ(array.text(), text("(\n    2,\n    word,\n    \"two words\"\n)"));
    EXPECT_EQ(PropertyValue(PropertyValue::Array()).text(), text("(\n)"));
}

TEST(PropertyValue, PrintsDictionariesSortedAndIndented)
{
    PropertyDictionary dictionary;
    dictionary.insert(text("Z"), PropertyValue(PropertyValue::Array{PropertyValue(0.5)}));
    dictionary.insert(text("A"), text("Caf\u00e9"));

    EXPECT_EQ(
        PropertyValue(dictionary).text(),
        text("{\n    A = \"Caf\\U00e9\";\n    Z = (\n        \"0.5\"\n    );\n}")
    );
}

TEST(PropertyDictionary, KeepsTheOrderOfItsKeys)
{
    PropertyDictionary dictionary;
    dictionary.insert(text("b"), 1);
    dictionary.insert(text("a"), 2);

    dictionary.insert(text("b"), 3);

    EXPECT_EQ(dictionary.keys(), QStringList({text("b"), text("a")}));
    EXPECT_EQ(dictionary.text(text("b")), text("3"));
    EXPECT_EQ(dictionary.text(text("c")), std::nullopt);
}
