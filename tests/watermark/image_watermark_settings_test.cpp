// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/watermark_panel.h>
#include <platform/foundation/literals.h>
#include <watermark/image_watermark_settings.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::watermark;
using platform::drawing::BlendMode;

namespace {

class ImageWatermarkSettingsReader : public testing::Test
{
protected:
    ImageWatermarkSettings read()
    {
        panels::ImageWatermarkControls& controls = panel;
        return readSettings(controls);
    }

    panels::WatermarkPanel panel;
};

} // namespace

TEST_F(ImageWatermarkSettingsReader, ReadsWhatTheControlsHold)
{
    panel.tfWaterMarkImageFilePath.setStringValue(u"/logo.png"_s);
    panel.tfImageScalePC.setStringValue(u"40"_s);
    panel.mxImageScaleProperty.selectRow(2);
    panel.tfImageWMAngle.setStringValue(u"-30"_s);
    panel.scImageWaterMarkPos.setSelectedSegment(5);
    panel.tfImageXOffset.setStringValue(u"11"_s);
    panel.tfImageYOffset.setStringValue(u"-12"_s);
    panel.tfImageTransparancy.setStringValue(u"70"_s);
    panel.pubRenderMethod.selectItemAtIndex(3);

    const ImageWatermarkSettings settings = read();

    EXPECT_EQ(settings.path, u"/logo.png"_s);
    EXPECT_EQ(settings.scale, (ScaleRule{.percent = 40, .row = 2}));
    EXPECT_EQ(settings.angle, -30);
    EXPECT_EQ(settings.inset, (Inset{.anchor = 5, .xOffset = 11, .yOffset = -12}));
    EXPECT_EQ(settings.opacity, 0.7);
    EXPECT_EQ(settings.blendMode, BlendMode::Multiply);
    EXPECT_EQ(settings.lane, Lane::Single);
    EXPECT_EQ(settings.filter, MarkFilter::None);
    EXPECT_EQ(settings.shadow, std::nullopt);
    EXPECT_EQ(settings.fade, std::nullopt);
}

TEST_F(ImageWatermarkSettingsReader, TakesNoTransparencyForOpaque)
{
    panel.tfImageTransparancy.setStringValue(u"0"_s);
    EXPECT_EQ(read().opacity, 1.0);
    panel.tfImageTransparancy.setStringValue(u"-5"_s);
    EXPECT_EQ(read().opacity, 0.1);
    panel.tfImageTransparancy.setStringValue(u"101"_s);
    EXPECT_EQ(read().opacity, 1.0);
}

TEST_F(ImageWatermarkSettingsReader, TakesThePatternWithItsBox)
{
    panel.cbPatternCheck.setState(1);

    EXPECT_EQ(read().lane, Lane::Pattern);
}

TEST_F(ImageWatermarkSettingsReader, ReadsTheShadowAsItIs)
{
    panel.cbImageShadowCheck.setState(1);
    panel.tfImageShadowXOffset.setStringValue(u"0"_s);
    panel.tfImageShadowYOffset.setStringValue(u"-7"_s);
    panel.tfImageShadowRadius.setStringValue(u"1"_s);
    panel.cwImageShadowColor.setColor({.red = 0.5, .green = 0.25, .blue = 1, .alpha = 0.4});

    EXPECT_EQ(
        read().shadow,
        (MarkShadow{
            .color = {.red = 0.5, .green = 0.25, .blue = 1, .alpha = 1},
            .xOffset = 0,
            .yOffset = -7,
            .blurRadius = 1})
    );
}

TEST_F(ImageWatermarkSettingsReader, ReadsTheFadeOfItsBoxes)
{
    panel.cbImageFadeOut.setState(1);
    panel.tfImageFadeOutAngle.setStringValue(u"45"_s);
    panel.sliderFadeOutValue.setDoubleValue(0.25);
    EXPECT_EQ(read().fade, (FadeRule{.shape = FadeShape::Linear, .extent = 0.25, .angle = 45}));

    panel.cbCircularInvertFadeOut.setState(1);
    EXPECT_EQ(read().fade->shape, FadeShape::Linear);
    panel.cbCircularFadeOut.setState(1);
    EXPECT_EQ(read().fade->shape, FadeShape::InvertedRadial);
    panel.cbCircularInvertFadeOut.setState(0);
    EXPECT_EQ(read().fade->shape, FadeShape::Radial);
}

TEST_F(ImageWatermarkSettingsReader, TakesASliderAtZeroForAHundredth)
{
    panel.cbImageFadeOut.setState(1);
    panel.sliderFadeOutValue.setDoubleValue(0);

    EXPECT_FLOAT_EQ(static_cast<float>(read().fade->extent), 0.01F);
}

TEST_F(ImageWatermarkSettingsReader, ReplacesAFadeAngleThatIsNone)
{
    panel.cbImageFadeOut.setState(1);
    panel.tfImageFadeOutAngle.setStringValue(u"400"_s);

    EXPECT_EQ(read().fade->angle, 0);
    EXPECT_EQ(panel.tfImageFadeOutAngle.stringValue(), u"0"_s);
}

TEST_F(ImageWatermarkSettingsReader, ReplacesTheFadeAngleWhileNothingFades)
{
    panel.tfImageFadeOutAngle.setStringValue(u"-361"_s);
    (void)read();
    EXPECT_EQ(panel.tfImageFadeOutAngle.stringValue(), u"0"_s);

    panel.tfImageFadeOutAngle.setStringValue(u"-360"_s);
    (void)read();
    EXPECT_EQ(panel.tfImageFadeOutAngle.stringValue(), u"-360"_s);
}

TEST_F(ImageWatermarkSettingsReader, ReadsTheFilterAndItsScreen)
{
    panel.pubWatermarkFilterType.selectItemAtIndex(5);
    panel.tfWatermarkFilterSize.setStringValue(u"7.5"_s);
    panel.pubWatermarkFilterSharpness.selectItemAtIndex(1);
    panel.tfLineScreenAngle.setStringValue(u"30"_s);
    panel.tfCenterCircularWidth.setStringValue(u"10"_s);
    panel.tfCenterCircularHeight.setStringValue(u"20"_s);

    const ImageWatermarkSettings settings = read();

    EXPECT_EQ(settings.filter, MarkFilter::Rings);
    EXPECT_EQ(settings.screen.width, 7.5F);
    EXPECT_EQ(settings.screen.sharpness, 1.0F);
    EXPECT_EQ(settings.screen.angle, 30.0F);
    EXPECT_EQ(settings.screen.centreX, 10.0F);
    EXPECT_EQ(settings.screen.centreY, 20.0F);
}

TEST_F(ImageWatermarkSettingsReader, TakesEmptyFieldsOfTheScreenForTheMiddleAndNoAngle)
{
    panel.tfLineScreenAngle.setStringValue({});
    panel.tfCenterCircularWidth.setStringValue({});
    panel.tfCenterCircularHeight.setStringValue({});

    const ImageWatermarkSettings settings = read();

    EXPECT_EQ(settings.screen.angle, 0.0F);
    EXPECT_EQ(settings.screen.centreX, 50.0F);
    EXPECT_EQ(settings.screen.centreY, 50.0F);
}

TEST_F(ImageWatermarkSettingsReader, KnowsTheFiltersByTheirIndex)
{
    QStringList titles;
    for (int index = 0; index < 8; ++index)
        titles.append(QString::number(index));
    panel.pubWatermarkFilterType.setTitles(titles);
    const auto filterAt = [this](int index) {
        panel.pubWatermarkFilterType.selectItemAtIndex(index);
        return read().filter;
    };

    EXPECT_EQ(filterAt(-1), MarkFilter::None);
    EXPECT_EQ(filterAt(0), MarkFilter::None);
    EXPECT_EQ(filterAt(1), MarkFilter::Noir);
    EXPECT_EQ(filterAt(2), MarkFilter::Negative);
    EXPECT_EQ(filterAt(3), MarkFilter::Dots);
    EXPECT_EQ(filterAt(4), MarkFilter::Lines);
    EXPECT_EQ(filterAt(5), MarkFilter::Rings);
    EXPECT_EQ(filterAt(6), MarkFilter::None);
}

TEST_F(ImageWatermarkSettingsReader, LimitsOffsetsToWhatAPhotoCanShow)
{
    panel.tfImageXOffset.setStringValue(u"2000000000"_s);
    panel.tfImageYOffset.setStringValue(u"-2000000000"_s);

    EXPECT_EQ(read().inset.xOffset, 16777216);
    EXPECT_EQ(read().inset.yOffset, -16777216);
}
