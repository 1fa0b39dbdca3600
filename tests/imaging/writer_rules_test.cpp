// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/writer_rules.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using brenvaldo::platform::codecs::FileFormat;
using brenvaldo::test::CaseName;

namespace {

using Properties = WriterRule::Properties;
using Failure = WriterRule::Failure;

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
    static WriterRule::Quality batchQuality(FileFormat format)
    {
        return format == FileFormat::Jpeg ? WriterRule::Quality::FromLevel
                                          : WriterRule::Quality::PlatformDefault;
    }
};

const RowCase rowCases[] = {
    {"Png", u"public.png"_s, FileFormat::Png, u".png"_s, Properties::Carried, Failure::Logged},
    {"Tiff", u"public.tiff"_s, FileFormat::Tiff, u".tiff"_s, Properties::Carried, Failure::Logged},
    {"BmpOfAFile",
     u"com.microsoft.bmp"_s,
     FileFormat::Bmp,
     u""_s,
     Properties::Dropped,
     Failure::Silent},
    {"BmpOfATitle",
     u"public.bmp"_s,
     FileFormat::Bmp,
     u".bmp"_s,
     Properties::Dropped,
     Failure::Logged},
    {"Gif",
     u"com.compuserve.gif"_s,
     FileFormat::Gif,
     u".gif"_s,
     Properties::Dropped,
     Failure::Logged},
    {"Jpeg", u"public.jpeg"_s, FileFormat::Jpeg, u".jpg"_s, Properties::Carried, Failure::Logged},
    {"Jpeg2000",
     u"public.jp2"_s,
     FileFormat::Jpeg2000,
     u".jp2"_s,
     Properties::Dropped,
     Failure::Logged},
    {"Heic", u"public.heic"_s, FileFormat::Heic, u".heic"_s, Properties::Carried, Failure::Logged},
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
    {"CameraRaw", u"com.adobe.raw-image"_s},
    {"Photoshop", u"com.adobe.photoshop-image"_s},
    {"Pdf", u"com.adobe.pdf"_s},
    {"AnotherCase", u"public.PNG"_s},
    {"TypeBehindAPrefix", u"x.public.png"_s},
    {"PublicGif", u"public.gif"_s},
    {"Nothing", u""_s},
};

struct WriterQualityCase
{
    const char* name;
    QString level;
    double expected;
};

void PrintTo(const WriterQualityCase& writerQualityCase, std::ostream* out)
{
    *out << writerQualityCase.name;
}

class WriterQuality : public testing::TestWithParam<WriterQualityCase>
{
};

const WriterQualityCase writerQualityCases[] = {
    {"Lowest", u"1"_s, 0.1},
    {"Second", u"2"_s, 0.2},
    {"Middle", u"5"_s, 0.5},
    {"Eighth", u"8"_s, 0.8},
    {"Ninth", u"9"_s, 0.9},
    {"Ten", u"10"_s, 1.0},
    {"Zero", u"0"_s, 1.0},
    {"Empty", u""_s, 1.0},
    {"Word", u"best"_s, 1.0},
    {"WithABlank", u"5 "_s, 1.0},
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
    EXPECT_EQ(rule->quality, WriterRule::Quality::PlatformDefault);
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
    EXPECT_TRUE(writerRule(Writer::WholePath, u"x.public.heic"_s));
    EXPECT_FALSE(writerRule(Writer::Batch, u"x.public.heic"_s));
}

TEST(IsNotSupported, NamesTwoTypes)
{
    EXPECT_TRUE(isNotSupported(u"com.adobe.photoshop-image"_s));
    EXPECT_TRUE(isNotSupported(u"com.adobe.pdf"_s));
    EXPECT_FALSE(isNotSupported(u"public.png"_s));
    EXPECT_FALSE(isNotSupported(u""_s));
}

TEST(WrittenPath, AddsTheExtensionOfTheType)
{
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_s, u"public.jpeg"_s), u"/out/a.jpg"_s);
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a.b"_s, u"public.png"_s), u"/out/a.b.png"_s);
}

TEST(WrittenPath, IsTheBareBaseForABmpOfAFile)
{
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_s, u"com.microsoft.bmp"_s), u"/out/a"_s);
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_s, u"public.bmp"_s), u"/out/a.bmp"_s);
}

TEST(WrittenPath, IsEmptyWhereNothingIsWritten)
{
    EXPECT_EQ(writtenPath(Writer::Batch, u"/out/a"_s, u"com.adobe.pdf"_s), QString());
    EXPECT_EQ(writtenPath(Writer::Watermark, u"/out/a"_s, u"public.heic"_s), QString());
}

TEST_P(WriterQuality, FollowsTheLevel)
{
    EXPECT_DOUBLE_EQ(writerQuality(GetParam().level), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, WriterQuality, testing::ValuesIn(writerQualityCases), CaseName());

TEST(OutputType, IsMadeOfTheTitle)
{
    EXPECT_EQ(outputTypeForTitle(u"png"_s), u"public.png"_s);
    EXPECT_EQ(outputTypeForTitle(u"jp2"_s), u"public.jp2"_s);
    EXPECT_EQ(outputTypeForTitle(u"gif"_s), u"com.compuserve.gif"_s);
    EXPECT_EQ(outputTypeForTitle(u"original file type"_s), u"original file type"_s);
}

TEST(OutputType, KeepsTheTypeOfEachPhotoForOneTitleAlone)
{
    EXPECT_TRUE(keepsOriginalType(u"original file type"_s));
    EXPECT_FALSE(keepsOriginalType(u"public.png"_s));
}
