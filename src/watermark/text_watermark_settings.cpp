// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_watermark_settings.h"

#include "offset_field.h"

#include <panels/text_watermark_controls.h>

namespace brenvaldo::watermark {

namespace {

int orDefault(int value, int fallback) { return value == 0 ? fallback : value; }

platform::drawing::UnderlineStyle underlineOfIndex(int index)
{
    switch (index) {
    case 0:
        return platform::drawing::UnderlineStyle::None;
    case 1:
        return platform::drawing::UnderlineStyle::Single;
    default:
        return platform::drawing::UnderlineStyle::Thick;
    }
}

platform::drawing::TextAlignment alignmentOfSegment(int segment)
{
    switch (segment) {
    case 0:
        return platform::drawing::TextAlignment::Left;
    case 1:
        return platform::drawing::TextAlignment::Center;
    default:
        return platform::drawing::TextAlignment::Right;
    }
}

platform::drawing::Shadow readShadow(const panels::TextWatermarkControls& controls, double opacity)
{
    constexpr int defaultOffset = 2;
    const int radius = controls.tfTextShadowRadius.intValue();
    return {
        .color = controls.cwShadowColor.color().withAlpha(opacity),
        .xOffset = orDefault(offsetOf(controls.tfTextShadowXOffset), defaultOffset),
        .yOffset = orDefault(offsetOf(controls.tfTextShadowYOffset), defaultOffset),
        .blurRadius = static_cast<double>(radius < 2 ? 1 : radius)};
}

QString selectedFont(controls::ComboBox& fonts)
{
    if (fonts.indexOfSelectedItem() < 0)
        fonts.selectItemAtIndex(0);
    return fonts.objectValueOfSelectedItem();
}

} // namespace

TextWatermarkSettings readSettings(panels::TextWatermarkControls& controls)
{
    constexpr int defaultFontSize = 24;
    const double opacity = opacityOfPercent(controls.tfFontTransparancy.intValue());
    TextWatermarkSettings settings{
        .text = controls.tvWaterMarkText.stringValue(),
        .fontName = selectedFont(controls.cbFontList),
        .fontSize = orDefault(controls.tfFontSize.intValue(), defaultFontSize),
        .kerning = controls.tfKerning.intValue(),
        .leading = controls.tfLeading.intValue(),
        .isBold = controls.cbFontBold.isOn(),
        .isItalic = controls.cbFontItalic.isOn(),
        .underline = underlineOfIndex(controls.pubTxtUnderline.indexOfSelectedItem()),
        .alignment = alignmentOfSegment(controls.scTxtAlign.selectedSegment()),
        .strokeWidth = controls.cbOutlineCheck.isOn()
            ? strokeWidthOfIndex(controls.pubOutlineThickness.indexOfSelectedItem())
            : 0,
        .fontColor = controls.cwFontColor.color(),
        .embossColor = controls.cwEmbossColor.color().withAlpha(1),
        .opacity = opacity,
        .shadow = {},
        .effect = textEffectOfIndex(controls.pubWatermarkTextEffect.indexOfSelectedItem()),
        .placement
        = {.anchor = controls.scWaterMarkPos.selectedSegment(),
           .xOffset = offsetOf(controls.tfXOffset),
           .yOffset = offsetOf(controls.tfYOffset),
           .angle = controls.tfWMAngle.intValue()},
        .isTiled = controls.cbTextPatternCheck.isOn()};
    if (controls.cbShadowCheck.isOn())
        settings.shadow = readShadow(controls, opacity);
    return settings;
}

QString textToSet(const TextWatermarkSettings& settings, const QString& text)
{
    return settings.isItalic ? text + QLatin1Char(' ') : text;
}

} // namespace brenvaldo::watermark
