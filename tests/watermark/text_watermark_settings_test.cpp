// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/text_watermark_settings.h>

#include <panels/watermark_panel.h>
#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::watermark;

TEST(TextWatermarkSettings, SelectTheFirstFontWhenNoneIs)
{
    panels::WatermarkPanel panel;
    panel.cbFontList.setTitles({QStringLiteral("Alpha"), QStringLiteral("Beta")});
    panel.cbFontList.selectItemAtIndex(-1);

    EXPECT_EQ(readSettings(panel).fontName, QStringLiteral("Alpha"));
    EXPECT_EQ(panel.cbFontList.indexOfSelectedItem(), 0);
}

TEST(TextWatermarkSettings, TakeAFontSizeOfZeroAsTwentyFour)
{
    panels::WatermarkPanel panel;
    panel.tfFontSize.setStringValue(QStringLiteral("0"));

    EXPECT_EQ(readSettings(panel).fontSize, 24);
}

TEST(TextWatermarkSettings, ReplaceShadowOffsetsOfZeroOneByOne)
{
    panels::WatermarkPanel panel;
    panel.cbShadowCheck.setState(1);
    panel.tfTextShadowXOffset.setStringValue(QStringLiteral("0"));
    panel.tfTextShadowYOffset.setStringValue(QStringLiteral("-7"));
    panel.tfTextShadowRadius.setStringValue(QStringLiteral("1"));

    const auto shadow = readSettings(panel).shadow;

    ASSERT_TRUE(shadow.has_value());
    EXPECT_EQ(shadow->xOffset, 2);
    EXPECT_EQ(shadow->yOffset, -7);
    EXPECT_DOUBLE_EQ(shadow->blurRadius, 1);
}

TEST(TextWatermarkSettings, KeepShadowOffsetsCountable)
{
    panels::WatermarkPanel panel;
    panel.cbShadowCheck.setState(1);
    panel.tfTextShadowXOffset.setStringValue(QStringLiteral("2147483647"));
    panel.tfTextShadowYOffset.setStringValue(QStringLiteral("-2147483648"));

    const auto shadow = readSettings(panel).shadow;

    EXPECT_EQ(shadow->xOffset, 1 << 24);
    EXPECT_EQ(shadow->yOffset, -(1 << 24));
}

TEST(TextWatermarkSettings, KeepOffsetsOfTheMarkCountable)
{
    panels::WatermarkPanel panel;
    panel.tfXOffset.setStringValue(QStringLiteral("-2147483648"));
    panel.tfYOffset.setStringValue(QStringLiteral("2147483647"));

    const Placement placement = readSettings(panel).placement;

    EXPECT_EQ(placement.xOffset, -(1 << 24));
    EXPECT_EQ(placement.yOffset, 1 << 24);
}

TEST(TextWatermarkSettings, HaveNoShadowWithoutItsTick)
{
    panels::WatermarkPanel panel;

    EXPECT_FALSE(readSettings(panel).shadow.has_value());
}

TEST(TextWatermarkSettings, GiveTheShadowTheTextsOpacity)
{
    panels::WatermarkPanel panel;
    panel.cbShadowCheck.setState(1);
    panel.tfFontTransparancy.setStringValue(QStringLiteral("40"));

    const TextWatermarkSettings settings = readSettings(panel);

    EXPECT_DOUBLE_EQ(settings.opacity, 0.4);
    EXPECT_DOUBLE_EQ(settings.shadow->color.alpha, 0.4);
}

TEST(TextWatermarkSettings, UseTheOutlineOnlyWithItsTick)
{
    panels::WatermarkPanel panel;
    panel.pubOutlineThickness.selectItemAtIndex(2);
    EXPECT_DOUBLE_EQ(readSettings(panel).strokeWidth, 0);

    panel.cbOutlineCheck.setState(1);
    EXPECT_DOUBLE_EQ(readSettings(panel).strokeWidth, 3);
}

TEST(TextWatermarkSettings, MapUnderlineAndAlignment)
{
    panels::WatermarkPanel panel;
    panel.pubTxtUnderline.selectItemAtIndex(2);
    panel.scTxtAlign.setSelectedSegment(2);

    const TextWatermarkSettings settings = readSettings(panel);

    EXPECT_EQ(settings.underline, platform::UnderlineStyle::Thick);
    EXPECT_EQ(settings.alignment, platform::TextAlignment::Right);
}

TEST(TextWatermarkSettings, AppendOneBlankToAnItalicText)
{
    TextWatermarkSettings settings;
    EXPECT_EQ(textToSet(settings, QStringLiteral("abc")), QStringLiteral("abc"));

    settings.isItalic = true;
    EXPECT_EQ(textToSet(settings, QStringLiteral("abc")), QStringLiteral("abc "));
}

namespace {

struct EffectCase
{
    const char* name;
    int effect;
    TextFill fill;
    bool castsGlyphShadow;
    const char* texture;

    friend void PrintTo(const EffectCase& row, std::ostream* out) { *out << row.name; }
};

class TextEffect : public testing::TestWithParam<EffectCase>
{
};

} // namespace

TEST_P(TextEffect, FollowsTheTable)
{
    const EffectCase& row = GetParam();

    EXPECT_EQ(fillOfEffect(row.effect), row.fill);
    EXPECT_EQ(castsGlyphShadow(row.effect), row.castsGlyphShadow);
    EXPECT_EQ(embosses(row.effect), *row.texture != '\0');
    if (embosses(row.effect)) {
        EXPECT_EQ(textureOfEffect(row.effect), QString::fromLatin1(row.texture));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TextEffect,
    testing::Values(
        EffectCase{"Color", 0, TextFill::Color, true, ""},
        EffectCase{"First", 1, TextFill::White, false, "texture1"},
        EffectCase{"Fifth", 5, TextFill::White, false, "texture5"},
        EffectCase{"ColouredBall", 6, TextFill::White, false, "texture6"},
        EffectCase{"Photo", 7, TextFill::Photo, true, ""},
        EffectCase{"NoirPhotoHasNoGlyphShadow", 8, TextFill::NoirPhoto, false, ""},
        EffectCase{"Ninth", 9, TextFill::White, false, "texture8"},
        EffectCase{"Beyond", 12, TextFill::White, false, "texture8"}
    ),
    brenvaldo::test::CaseName()
);
