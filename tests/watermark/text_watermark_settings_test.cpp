// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
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
    panel.cbFontList.setTitles({u"Alpha"_s, u"Beta"_s});
    panel.cbFontList.selectItemAtIndex(-1);

    EXPECT_EQ(readSettings(panel).fontName, u"Alpha"_s);
    EXPECT_EQ(panel.cbFontList.indexOfSelectedItem(), 0);
}

TEST(TextWatermarkSettings, TakeAFontSizeOfZeroAsTwentyFour)
{
    panels::WatermarkPanel panel;
    panel.tfFontSize.setStringValue(u"0"_s);

    EXPECT_EQ(readSettings(panel).fontSize, 24);
}

TEST(TextWatermarkSettings, ReadEachControl)
{
    panels::WatermarkPanel panel;
    panel.tvWaterMarkText.setStringValue(u"A text"_s);
    panel.cbFontList.setTitles({u"Alpha"_s, u"Beta"_s});
    panel.cbFontList.selectItemAtIndex(1);
    panel.tfFontSize.setStringValue(u"31"_s);
    panel.tfKerning.setStringValue(u"-3"_s);
    panel.tfLeading.setStringValue(u"17"_s);
    panel.cbFontBold.setState(1);
    panel.cbFontItalic.setState(1);
    panel.pubTxtUnderline.selectItemAtIndex(1);
    panel.scTxtAlign.setSelectedSegment(1);
    panel.cbOutlineCheck.setState(1);
    panel.pubOutlineThickness.selectItemAtIndex(3);
    panel.cwFontColor.setColor({.red = 0.1, .green = 0.2, .blue = 0.3});
    panel.cwEmbossColor.setColor({.red = 0.4, .green = 0.5, .blue = 0.6, .alpha = 0.25});
    panel.tfFontTransparancy.setStringValue(u"80"_s);
    panel.cbShadowCheck.setState(1);
    panel.cwShadowColor.setColor({.red = 0.7, .green = 0.8, .blue = 0.9});
    panel.tfTextShadowXOffset.setStringValue(u"5"_s);
    panel.tfTextShadowYOffset.setStringValue(u"-6"_s);
    panel.tfTextShadowRadius.setStringValue(u"7"_s);
    panel.pubWatermarkTextEffect.selectItemAtIndex(4);
    panel.scWaterMarkPos.setSelectedSegment(3);
    panel.tfXOffset.setStringValue(u"11"_s);
    panel.tfYOffset.setStringValue(u"-12"_s);
    panel.tfWMAngle.setStringValue(u"-13"_s);
    panel.cbTextPatternCheck.setState(1);

    const TextWatermarkSettings settings = readSettings(panel);

    EXPECT_EQ(settings.text, u"A text"_s);
    EXPECT_EQ(settings.fontName, u"Beta"_s);
    EXPECT_EQ(settings.fontSize, 31);
    EXPECT_EQ(settings.kerning, -3);
    EXPECT_EQ(settings.leading, 17);
    EXPECT_TRUE(settings.isBold);
    EXPECT_TRUE(settings.isItalic);
    EXPECT_EQ(settings.underline, platform::drawing::UnderlineStyle::Single);
    EXPECT_EQ(settings.alignment, platform::drawing::TextAlignment::Center);
    EXPECT_EQ(settings.strokeWidth, 5);
    EXPECT_EQ(
        settings.fontColor, (platform::graphics::Color{.red = 0.1, .green = 0.2, .blue = 0.3})
    );
    EXPECT_EQ(
        settings.embossColor,
        (platform::graphics::Color{.red = 0.4, .green = 0.5, .blue = 0.6, .alpha = 1})
    );
    EXPECT_EQ(settings.opacity, 0.8);
    ASSERT_TRUE(settings.shadow.has_value());
    EXPECT_EQ(
        settings.shadow->color,
        (platform::graphics::Color{.red = 0.7, .green = 0.8, .blue = 0.9, .alpha = 0.8})
    );
    EXPECT_EQ(settings.shadow->xOffset, 5);
    EXPECT_EQ(settings.shadow->yOffset, -6);
    EXPECT_EQ(settings.shadow->blurRadius, 7);
    EXPECT_EQ(settings.effect, TextEffect::Relief4);
    EXPECT_EQ(settings.placement.anchor, 3);
    EXPECT_EQ(settings.placement.xOffset, 11);
    EXPECT_EQ(settings.placement.yOffset, -12);
    EXPECT_EQ(settings.placement.angle, -13);
    EXPECT_TRUE(settings.isTiled);
}

TEST(TextWatermarkSettings, HaveNothingSwitchedOnWithoutTicks)
{
    panels::WatermarkPanel panel;

    const TextWatermarkSettings settings = readSettings(panel);

    EXPECT_FALSE(settings.isBold);
    EXPECT_FALSE(settings.isItalic);
    EXPECT_FALSE(settings.isTiled);
    EXPECT_FALSE(settings.shadow.has_value());
    EXPECT_EQ(settings.strokeWidth, 0);
}

TEST(TextWatermarkSettings, ReplaceShadowOffsetsOfZeroOneByOne)
{
    panels::WatermarkPanel panel;
    panel.cbShadowCheck.setState(1);
    panel.tfTextShadowXOffset.setStringValue(u"0"_s);
    panel.tfTextShadowYOffset.setStringValue(u"-7"_s);
    const auto first = readSettings(panel).shadow;
    panel.tfTextShadowXOffset.setStringValue(u"9"_s);
    panel.tfTextShadowYOffset.setStringValue(u"0"_s);
    const auto second = readSettings(panel).shadow;

    EXPECT_EQ(first->xOffset, 2);
    EXPECT_EQ(first->yOffset, -7);
    EXPECT_EQ(second->xOffset, 9);
    EXPECT_EQ(second->yOffset, 2);
}

TEST(TextWatermarkSettings, TakeAShadowRadiusBelowTwoAsOne)
{
    panels::WatermarkPanel panel;
    panel.cbShadowCheck.setState(1);
    const auto radius = [&panel](const QString& text) {
        panel.tfTextShadowRadius.setStringValue(text);
        return readSettings(panel).shadow->blurRadius;
    };

    EXPECT_EQ(radius(u"-3"_s), 1);
    EXPECT_EQ(radius(u"0"_s), 1);
    EXPECT_EQ(radius(u"1"_s), 1);
    EXPECT_EQ(radius(u"2"_s), 2);
}

TEST(TextWatermarkSettings, KeepShadowOffsetsCountable)
{
    panels::WatermarkPanel panel;
    panel.cbShadowCheck.setState(1);
    panel.tfTextShadowXOffset.setStringValue(u"2147483647"_s);
    panel.tfTextShadowYOffset.setStringValue(u"-2147483648"_s);

    const auto shadow = readSettings(panel).shadow;

    EXPECT_EQ(shadow->xOffset, 1 << 24);
    EXPECT_EQ(shadow->yOffset, -(1 << 24));
}

TEST(TextWatermarkSettings, KeepOffsetsOfTheMarkCountable)
{
    panels::WatermarkPanel panel;
    panel.tfXOffset.setStringValue(u"-2147483648"_s);
    panel.tfYOffset.setStringValue(u"2147483647"_s);

    const Placement placement = readSettings(panel).placement;

    EXPECT_EQ(placement.xOffset, -(1 << 24));
    EXPECT_EQ(placement.yOffset, 1 << 24);
}

TEST(TextWatermarkSettings, GiveTheShadowTheTextsOpacity)
{
    panels::WatermarkPanel panel;
    panel.cbShadowCheck.setState(1);
    panel.tfFontTransparancy.setStringValue(u"40"_s);

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

TEST(TextWatermarkSettings, MapUnderlines)
{
    using platform::drawing::UnderlineStyle;
    panels::WatermarkPanel panel;
    const auto underline = [&panel](int index) {
        panel.pubTxtUnderline.selectItemAtIndex(index);
        return readSettings(panel).underline;
    };

    EXPECT_EQ(underline(0), UnderlineStyle::None);
    EXPECT_EQ(underline(1), UnderlineStyle::Single);
    EXPECT_EQ(underline(2), UnderlineStyle::Thick);
    EXPECT_EQ(underline(-1), UnderlineStyle::Thick);
}

TEST(TextWatermarkSettings, MapAlignments)
{
    using platform::drawing::TextAlignment;
    panels::WatermarkPanel panel;
    const auto alignment = [&panel](int segment) {
        panel.scTxtAlign.setSelectedSegment(segment);
        return readSettings(panel).alignment;
    };

    EXPECT_EQ(alignment(0), TextAlignment::Left);
    EXPECT_EQ(alignment(1), TextAlignment::Center);
    EXPECT_EQ(alignment(2), TextAlignment::Right);
    EXPECT_EQ(alignment(-1), TextAlignment::Right);
}

TEST(TextWatermarkSettings, AppendOneBlankToAnItalicText)
{
    TextWatermarkSettings settings;
    EXPECT_EQ(textToSet(settings, u"abc"_s), u"abc"_s);

    settings.isItalic = true;
    EXPECT_EQ(textToSet(settings, u"abc"_s), u"abc "_s);
}
