// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/writer_rules.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::imaging;
using brenvaldo::platform::codecs::FileFormat;
using brenvaldo::test::CaseName;

namespace {

using Properties = WriterRule::Properties;
using Failure = WriterRule::Failure;
using Quality = WriterRule::Quality;

struct RowCase
{
    const char* name;
    QString type;
    FileFormat format;
    QString extension;
    Properties properties;
    Failure failure;
};

void PrintTo(const RowCase& rowCase, std::ostream* out) { *out << rowCase.name; }

class WriterTable : public testing::TestWithParam<RowCase>
{
protected:
    static Quality batchQuality(FileFormat format)
    {
        return format == FileFormat::Jpeg ? Quality::FromLevel : Quality::PlatformDefault;
    }
};

const RowCase rowCases[] = {
    {"Png", u"public.png"_qs, FileFormat::Png, u".png"_qs, Properties::Carried, Failure::Logged},
    {"Tiff",
     u"public.tiff"_qs,
     FileFormat::Tiff,
     u".tiff"_qs,
     Properties::Carried,
     Failure::Logged},
    {"BmpOfAFile",
     u"com.microsoft.bmp"_qs,
     FileFormat::Bmp,
     u""_qs,
     Properties::Dropped,
     Failure::Silent},
    {"BmpOfATitle",
     u"public.bmp"_qs,
     FileFormat::Bmp,
     u".bmp"_qs,
     Properties::Dropped,
     Failure::Logged},
    {"Gif",
     u"com.compuserve.gif"_qs,
     FileFormat::Gif,
     u".gif"_qs,
     Properties::Dropped,
     Failure::Logged},
    {"Jpeg", u"public.jpeg"_qs, FileFormat::Jpeg, u".jpg"_qs, Properties::Carried, Failure::Logged},
    {"Jpeg2000",
     u"public.jp2"_qs,
     FileFormat::Jpeg2000,
     u".jp2"_qs,
     Properties::Dropped,
     Failure::Logged},
    {"Heic",
     u"public.heic"_qs,
     FileFormat::Heic,
     u".heic"_qs,
     Properties::Carried,
     Failure::Logged},
};

struct UnknownCase
{
    const char* name;
    QString type;
};

void PrintTo(const UnknownCase& unknownCase, std::ostream* out) { *out << unknownCase.name; }

class UnknownType : public testing::TestWithParam<UnknownCase>
{
};

const UnknownCase unknownCases[] = {
    {"CameraRaw", u"com.adobe.raw-image"_qs},
    {"Photoshop", u"com.adobe.photoshop-image"_qs},
    {"Pdf", u"com.adobe.pdf"_qs},
    {"AnotherCase", u"public.PNG"_qs},
    {"TypeBehindAPrefix", u"x.public.png"_qs},
    {"PublicGif", u"public.gif"_qs},
    {"Nothing", u""_qs},
};

struct QualityCase
{
    const char* name;
    QString level;
    double expected;
};

void PrintTo(const QualityCase& qualityCase, std::ostream* out) { *out << qualityCase.name; }

class WriterQuality : public testing::TestWithParam<QualityCase>
{
};

const QualityCase qualityCases[] = {
    {"Lowest", u"1"_qs, 0.1},
    {"Second", u"2"_qs, 0.2},
    {"Middle", u"5"_qs, 0.5},
    {"Eighth", u"8"_qs, 0.8},
    {"Ninth", u"9"_qs, 0.9},
    {"Ten", u"10"_qs, 1.0},
    {"Zero", u"0"_qs, 1.0},
    {"Empty", u""_qs, 1.0},
    {"Word", u"best"_qs, 1.0},
    {"WithABlank", u"5 "_qs, 1.0},
};

} // namespace

TEST_P(WriterTable, TellsTheBatchWriter)
{
    const RowCase& row = GetParam();

    const auto rule = writerRule(Writer::Batch, row.type);

    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->format, row.format);
    EXPECT_EQ(rule->extension, row.extension);
    EXPECT_EQ(rule->properties, row.properties);
    EXPECT_EQ(rule->failure, row.failure);
    EXPECT_EQ(rule->quality, batchQuality(row.format));
}

TEST_P(WriterTable, TellsTheWatermarkWriterThatHasNoHeic)
{
    const RowCase& row = GetParam();

    const auto rule = writerRule(Writer::Watermark, row.type);

    ASSERT_EQ(rule.has_value(), row.format != FileFormat::Heic);
    if (!rule)
        return;
    EXPECT_EQ(rule->format, row.format);
    EXPECT_EQ(rule->extension, row.extension);
    EXPECT_EQ(rule->properties, row.properties);
    EXPECT_EQ(rule->failure, row.failure);
    EXPECT_EQ(rule->quality, batchQuality(row.format));
}

TEST_P(WriterTable, TellsTheWriterThatTakesAWholePath)
{
    const RowCase& row = GetParam();

    const auto rule = writerRule(Writer::WholePath, row.type);

    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->format, row.format);
    EXPECT_EQ(rule->extension, QString());
    EXPECT_EQ(rule->properties, row.properties);
    EXPECT_EQ(rule->failure, row.format == FileFormat::Heic ? Failure::Logged : Failure::Silent);
    EXPECT_EQ(rule->quality, Quality::PlatformDefault);
}

INSTANTIATE_TEST_SUITE_P(Rows, WriterTable, testing::ValuesIn(rowCases), CaseName());

TEST_P(UnknownType, HasNoRuleInAnyWriter)
{
    const QString& type = GetParam().type;

    EXPECT_FALSE(writerRule(Writer::Batch, type));
    EXPECT_FALSE(writerRule(Writer::Watermark, type));
    EXPECT_FALSE(writerRule(Writer::WholePath, type));
}

INSTANTIATE_TEST_SUITE_P(Rows, UnknownType, testing::ValuesIn(unknownCases), CaseName());

TEST(WriterRule, KnowsHeicByItsSuffixWhereThePathIsWhole)
{
    EXPECT_TRUE(writerRule(Writer::WholePath, u"x.public.heic"_qs));
    EXPECT_FALSE(writerRule(Writer::Batch, u"x.public.heic"_qs));
}

TEST(IsNotSupported, NamesTwoTypes)
{
    EXPECT_TRUE(isNotSupported(u"com.adobe.photoshop-image"_qs));
    EXPECT_TRUE(isNotSupported(u"com.adobe.pdf"_qs));
    EXPECT_FALSE(isNotSupported(u"public.png"_qs));
    EXPECT_FALSE(isNotSupported(u""_qs));
}

TEST(WrittenPath, AddsTheExtensionOfTheType)
{
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_qs, u"public.jpeg"_qs), u"/out/a.jpg"_qs);
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a.b"_qs, u"public.png"_qs), u"/out/a.b.png"_qs);
}

TEST(WrittenPath, IsTheBareBaseForABmpOfAFile)
{
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_qs, u"com.microsoft.bmp"_qs), u"/out/a"_qs);
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_qs, u"public.bmp"_qs), u"/out/a.bmp"_qs);
}

TEST(WrittenPath, IsEmptyWhereNothingIsWritten)
{
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_qs, u"com.adobe.pdf"_qs), QString());
    EXPECT_EQ(writtenPath(Writer::Watermark, u"/out/a"_qs, u"public.heic"_qs), QString());
}

TEST_P(WriterQuality, FollowsTheLevel)
{
    EXPECT_DOUBLE_EQ(writerQuality(GetParam().level), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, WriterQuality, testing::ValuesIn(qualityCases), CaseName());

TEST(OutputType, IsMadeOfTheTitle)
{
    EXPECT_EQ(outputTypeForTitle(u"png"_qs), u"public.png"_qs);
    EXPECT_EQ(outputTypeForTitle(u"jp2"_qs), u"public.jp2"_qs);
    EXPECT_EQ(outputTypeForTitle(u"gif"_qs), u"com.compuserve.gif"_qs);
    EXPECT_EQ(outputTypeForTitle(u"original file type"_qs), u"original file type"_qs);
}

TEST(OutputType, KeepsTheTypeOfEachPhotoForOneTitleAlone)
{
    EXPECT_TRUE(keepsOriginalType(u"original file type"_qs));
    EXPECT_FALSE(keepsOriginalType(u"public.png"_qs));
}
