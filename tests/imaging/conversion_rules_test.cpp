// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/conversion_rules.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::imaging;
using brenvaldo::platform::codecs::FileFormat;
using brenvaldo::test::CaseName;

namespace {

using Route = ConversionRule::Route;
using Quality = ConversionRule::Quality;

struct ConversionCase
{
    const char* name;
    QString type;
    QString word;
    FileFormat format;
    Route route;
};

void PrintTo(const ConversionCase& conversionCase, std::ostream* out)
{
    *out << conversionCase.name;
}

class ConversionTable : public testing::TestWithParam<ConversionCase>
{
};

const ConversionCase conversionCases[] = {
    {"Pdf", u"public.pdf"_qs, u"pdf"_qs, FileFormat::Pdf, Route::Plain},
    {"Png", u"public.png"_qs, u"png"_qs, FileFormat::Png, Route::Metadata},
    {"Tiff", u"public.tiff"_qs, u"tiff"_qs, FileFormat::Tiff, Route::Metadata},
    {"Bmp", u"com.microsoft.bmp"_qs, u"bmp"_qs, FileFormat::Bmp, Route::Plain},
    {"Gif", u"com.compuserve.gif"_qs, u"gif"_qs, FileFormat::Gif, Route::Plain},
    {"Jpeg", u"public.jpeg"_qs, u"jpeg"_qs, FileFormat::Jpeg, Route::Plain},
    {"Jpeg2000", u"public.jp2"_qs, u"jp2"_qs, FileFormat::Jpeg2000, Route::Plain},
    {"Heic", u"public.heic"_qs, u"heic"_qs, FileFormat::Heic, Route::Metadata},
};

struct QualityCase
{
    const char* name;
    QString level;
    double expected;
};

void PrintTo(const QualityCase& qualityCase, std::ostream* out) { *out << qualityCase.name; }

class ConversionQuality : public testing::TestWithParam<QualityCase>
{
};

const QualityCase qualityCases[] = {
    {"Lowest", u"1"_qs, 0.1},
    {"Eighth", u"8"_qs, 0.8},
    {"Ninth", u"9"_qs, 0.9},
    {"Ten", u"10"_qs, 0.9},
    {"Empty", u""_qs, 0.9},
};

} // namespace

TEST_P(ConversionTable, TakesTheSuffixOfATypeIdentifier)
{
    const ConversionCase& row = GetParam();

    const auto rule = conversionRuleForType(row.type);

    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->format, row.format);
    EXPECT_EQ(rule->route, row.route);
    EXPECT_EQ(
        rule->quality,
        row.format == FileFormat::Jpeg ? Quality::FromLevel : Quality::PlatformDefault
    );
}

TEST_P(ConversionTable, TakesAWholeExtensionWord)
{
    const ConversionCase& row = GetParam();

    const auto rule = conversionRuleForWord(row.word);

    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->format, row.format);
}

TEST_P(ConversionTable, NamesTheTargetAfterTheSuffix)
{
    const ConversionCase& row = GetParam();

    EXPECT_EQ(conversionTarget(u"/out/a"_qs, row.type), u"/out/a."_qs + row.word);
}

INSTANTIATE_TEST_SUITE_P(Rows, ConversionTable, testing::ValuesIn(conversionCases), CaseName());

TEST(ConversionRule, IsMissingForOtherTypes)
{
    EXPECT_FALSE(conversionRuleForType(u"com.adobe.raw-image"_qs));
    EXPECT_FALSE(conversionRuleForType(u"public.jpg"_qs));
    EXPECT_FALSE(conversionRuleForType(u""_qs));
    EXPECT_EQ(conversionTarget(u"/out/a"_qs, u"com.adobe.raw-image"_qs), u"/out/a"_qs);
}

TEST(ConversionRule, TestsTheWordHeicAloneAsASuffix)
{
    EXPECT_TRUE(conversionRuleForWord(u"xheic"_qs));
    EXPECT_FALSE(conversionRuleForWord(u"xpng"_qs));
    EXPECT_FALSE(conversionRuleForWord(u"jpg"_qs));
}

TEST_P(ConversionQuality, NeverReachesOne)
{
    EXPECT_DOUBLE_EQ(conversionQuality(GetParam().level), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ConversionQuality, testing::ValuesIn(qualityCases), CaseName());
