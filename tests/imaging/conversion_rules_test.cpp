// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/conversion_rules.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using brenvaldo::platform::codecs::FileFormat;
using brenvaldo::test::CaseName;

namespace {

using Route = ConversionRule::Route;

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
    {"Pdf", u"public.pdf"_s, u"pdf"_s, FileFormat::Pdf, Route::Plain},
    {"Png", u"public.png"_s, u"png"_s, FileFormat::Png, Route::Metadata},
    {"Tiff", u"public.tiff"_s, u"tiff"_s, FileFormat::Tiff, Route::Metadata},
    {"Bmp", u"com.microsoft.bmp"_s, u"bmp"_s, FileFormat::Bmp, Route::Plain},
    {"Gif", u"com.compuserve.gif"_s, u"gif"_s, FileFormat::Gif, Route::Plain},
    {"Jpeg", u"public.jpeg"_s, u"jpeg"_s, FileFormat::Jpeg, Route::Plain},
    {"Jpeg2000", u"public.jp2"_s, u"jp2"_s, FileFormat::Jpeg2000, Route::Plain},
    {"Heic", u"public.heic"_s, u"heic"_s, FileFormat::Heic, Route::Metadata},
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
    {"Lowest", u"1"_s, 0.1},
    {"Eighth", u"8"_s, 0.8},
    {"Ninth", u"9"_s, 0.9},
    {"Ten", u"10"_s, 0.9},
    {"Empty", u""_s, 0.9},
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
        row.format == FileFormat::Jpeg ? ConversionRule::Quality::FromLevel
                                       : ConversionRule::Quality::PlatformDefault
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

    EXPECT_EQ(conversionTarget(u"/out/a"_s, row.type), u"/out/a."_s + row.word);
}

INSTANTIATE_TEST_SUITE_P(Rows, ConversionTable, testing::ValuesIn(conversionCases), CaseName());

TEST(ConversionRule, IsMissingForOtherTypes)
{
    EXPECT_FALSE(conversionRuleForType(u"com.adobe.raw-image"_s));
    EXPECT_FALSE(conversionRuleForType(u"public.jpg"_s));
    EXPECT_FALSE(conversionRuleForType(u""_s));
    EXPECT_EQ(conversionTarget(u"/out/a"_s, u"com.adobe.raw-image"_s), u"/out/a"_s);
}

TEST(ConversionRule, TestsTheWordHeicAloneAsASuffix)
{
    EXPECT_TRUE(conversionRuleForWord(u"xheic"_s));
    EXPECT_FALSE(conversionRuleForWord(u"xpng"_s));
    EXPECT_FALSE(conversionRuleForWord(u"jpg"_s));
}

TEST_P(ConversionQuality, NeverReachesOne)
{
    EXPECT_DOUBLE_EQ(conversionQuality(GetParam().level), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ConversionQuality, testing::ValuesIn(qualityCases), CaseName());
