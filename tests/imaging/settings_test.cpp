// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/crop_settings.h>
#include <imaging/filter_settings.h>
#include <imaging/frame_settings.h>
#include <imaging/resize_settings.h>
#include <imaging/rotate_settings.h>
#include <imaging/rounding_settings.h>
#include <imaging/tint_settings.h>
#include <panels/filter_panel.h>
#include <platform/foundation/literals.h>

#include <panels/crop_panel.h>
#include <panels/framing_panel.h>
#include <panels/resize_panel.h>
#include <panels/rotate_panel.h>
#include <panels/roundings_panel.h>
#include <panels/tint_panel.h>
#include <support/geometry_printing.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

TEST(CropSettings, AreReadFromTheirControls)
{
    panels::CropPanel panel;
    panel.dvVCUiCropWxHView.tfCropWidth.setStringValue(u"11"_s);
    panel.dvVCUiCropWxHView.tfCropHeight.setStringValue(u"22"_s);
    panel.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"33"_s);
    panel.dvVCUiCropPositionView.tfXcropOffset.setStringValue(u"44"_s);
    panel.dvVCUiCropPositionView.tfYcropOffset.setStringValue(u"-55"_s);
    panel.dvVCUiCropPositionView.scCropPosition.setSelectedSegment(6);
    panel.pubCropType.selectIndex(1);

    const imaging::CropSettings settings = imaging::readSettings(panel);

    EXPECT_EQ(settings.size, (platform::graphics::PixelSize{11, 22}));
    EXPECT_EQ(settings.cutOff, 33);
    EXPECT_EQ(settings.xOffset, 44);
    EXPECT_EQ(settings.yOffset, -55);
    EXPECT_EQ(settings.anchor, 6);
    EXPECT_EQ(settings.cropType, u"%"_s);
}

TEST(CropSettings, TakeThePhotosOwnSizeForARunWithoutSize)
{
    const test::TemporaryFolder folder;
    const QString path
        = test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"a.jpg"_s));
    panels::CropPanel panel;

    for (const auto& [width, height] : {std::pair(u"10"_s, u"0"_s), std::pair(u""_s, u"20"_s)}) {
        panel.dvVCUiCropWxHView.tfCropWidth.setStringValue(width);
        panel.dvVCUiCropWxHView.tfCropHeight.setStringValue(height);
        const imaging::CropSettings settings = imaging::readSettings(panel, path);
        EXPECT_EQ(settings.size, (platform::graphics::PixelSize{30, 40}));
        EXPECT_EQ(settings.cropType, u"W x H"_s);
        EXPECT_EQ(settings.anchor, 4);
        EXPECT_EQ(
            imaging::readSettings(panel, folder.path(u"missing.jpg"_s)).size,
            (platform::graphics::PixelSize{0, 0})
        );
    }

    panel.dvVCUiCropWxHView.tfCropWidth.setStringValue(u"10"_s);
    EXPECT_EQ(imaging::readSettings(panel, path).size, (platform::graphics::PixelSize{10, 20}));
}

TEST(FrameSettings, AreReadFromTheirControls)
{
    panels::FramingPanel panel;
    panel.pubFramingType.selectIndex(1);
    panel.tfFramingThickness.setStringValue(u"11"_s);
    panel.tfFramingInset.setStringValue(u"-12"_s);
    panel.tfFramingOpacity.setStringValue(u"13"_s);
    panel.pubFramingRenderMethod.selectIndex(4);
    panel.cbFramingGradient.setState(1);
    panel.pubFramingGradientAngle.selectIndex(2);
    panel.myNSColorWellObjFraming.setColor({.red = 0.25, .green = 0.5, .blue = 0.75, .alpha = 0.5});

    EXPECT_EQ(
        imaging::readSettings(panel),
        (imaging::FrameSettings{
            .frameType = 1,
            .thickness = 11,
            .inset = -12,
            .opacity = 13,
            .blendIndex = 4,
            .gradientState = 1,
            .angleIndex = 2,
            .color = {.red = 0.25, .green = 0.5, .blue = 0.75, .alpha = 1}})
    );
}

TEST(RoundingSettings, AreReadFromTheirControls)
{
    panels::RoundingsPanel panel;
    panel.pubRCType.selectIndex(2);
    panel.tfRCDiameter.setStringValue(u"11"_s);
    panel.cwRCBorderColor.setColor({.red = 0.25, .green = 0.5, .blue = 0.75, .alpha = 0.5});
    panel.cwRCBackgroundColor.setColor({.red = 0.1, .green = 0.2, .blue = 0.3, .alpha = 0.5});
    panel.cbRCBorderColor.setState(1);
    panel.tfRCBorderWidth.setStringValue(u"12"_s);
    panel.tfRCOpacity.setStringValue(u"-13"_s);
    panel.pubRCGradientAngle.selectIndex(3);
    panel.pubRCRenderMethod.selectIndex(4);
    panel.pubRCBorderPos.selectIndex(1);
    panel.tfRCEnlargeCanvas.setStringValue(u"14"_s);

    imaging::RoundingSettings expected{
        .radius = 11,
        .type = 2,
        .borderColor = {.red = 0.25, .green = 0.5, .blue = 0.75, .alpha = 1},
        .backgroundColor = {.red = 0.1, .green = 0.2, .blue = 0.3, .alpha = 1},
        .borderState = 1,
        .borderWidth = 12,
        .backgroundState = 0,
        .opacity = -13,
        .gradientState = 0,
        .angleIndex = 3,
        .blendIndex = 4,
        .borderPosition = 1,
        .margin = 14};
    EXPECT_EQ(imaging::readSettings(panel), expected);

    panel.cbRCBorderColor.setState(0);
    panel.cbRCBackgroundColor.setState(1);
    expected.borderState = 0;
    expected.backgroundState = 1;
    EXPECT_EQ(imaging::readSettings(panel), expected);

    panel.cbRCBackgroundColor.setState(0);
    panel.cbRCGradient.setState(1);
    expected.backgroundState = 0;
    expected.gradientState = 1;
    EXPECT_EQ(imaging::readSettings(panel), expected);
}

TEST(TintSettings, AreReadFromTheirControls)
{
    panels::TintPanel panel;
    panel.cwAddTint.setColor({.red = 0.25, .green = 0.5, .blue = 0.75, .alpha = 0.5});
    panel.pubAddTintRenderMethod.selectIndex(4);
    panel.cbAddTintDuoTone.setState(1);
    panel.scAddTintPosition.setSelectedSegment(5);
    panel.tfAddTintPosX.setStringValue(u"-11"_s);
    panel.tfAddTintPosY.setStringValue(u"12"_s);
    panel.tbvFrameType.selectIndex(1);
    panel.tfAddTintWidth.setStringValue(u"13"_s);
    panel.tfAddTintHeight.setStringValue(u"14"_s);
    panel.cbAddTintOrigSize.setState(0);
    panel.tfAddTintPercentage.setStringValue(u"15"_s);
    panel.tfAddTintPixels.setStringValue(u"16"_s);
    panel.pubAddTintPercentageOrient.selectIndex(2);
    panel.cbAddTintGradient.setState(1);
    panel.pubAddTintAngle.selectIndex(3);
    panel.tfAddTintOpacity.setStringValue(u"17"_s);

    imaging::TintSettings settings = imaging::readSettings(panel);

    EXPECT_EQ(
        settings.color,
        (platform::graphics::Color{.red = 0.25, .green = 0.5, .blue = 0.75, .alpha = 1})
    );
    EXPECT_EQ(settings.blendIndex, 4);
    EXPECT_EQ(settings.duoToneState, 1);
    EXPECT_EQ(settings.anchor, 5);
    EXPECT_EQ(settings.xOffset, -11);
    EXPECT_EQ(settings.yOffset, 12);
    EXPECT_EQ(settings.sizeMode, u"%"_s);
    EXPECT_EQ(settings.width, 13);
    EXPECT_EQ(settings.height, 14);
    EXPECT_EQ(settings.originalSizeState, 0);
    EXPECT_EQ(settings.percentage, 15);
    EXPECT_EQ(settings.pixels, 16);
    EXPECT_EQ(settings.percentageMode, 2);
    EXPECT_EQ(settings.gradientState, 1);
    EXPECT_EQ(settings.angleIndex, 3);
    EXPECT_EQ(settings.opacity, 17);

    panel.cbAddTintDuoTone.setState(0);
    panel.cbAddTintGradient.setState(0);
    panel.cbAddTintOrigSize.setState(1);
    settings = imaging::readSettings(panel);
    EXPECT_EQ(settings.duoToneState, 0);
    EXPECT_EQ(settings.gradientState, 0);
    EXPECT_EQ(settings.originalSizeState, 1);
}

TEST(ResizeSettings, AreReadFromTheirControls)
{
    panels::ResizePanel panel;
    panel.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"11"_s);
    panel.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(u"12"_s);
    panel.dvVCUiScaleFixView.tfScaleFixHeight.setStringValue(u"13"_s);
    for (const int type : {0, 1, 3}) {
        panel.dvVCUiScaleMaxView.pubScaleMaxType.selectIndex(type);
        EXPECT_EQ(
            imaging::readSettings(panel.dvVCUiScaleMaxView),
            (imaging::MaximumSettings{.value = 11, .type = type})
        );
    }
    for (const int state : {0, 1}) {
        panel.dvVCUiScaleFixView.cbScaleAspectRatio.setState(state);
        EXPECT_EQ(
            imaging::readSettings(panel.dvVCUiScaleFixView),
            (imaging::BoxSettings{.box = {12, 13}, .aspectState = state})
        );
    }
}

TEST(ResizeSettings, WrapAtThirtyTwoBits)
{
    panels::ResizePanel panel;
    panel.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"4294967296"_s);
    panel.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(u"4294967297"_s);
    panel.dvVCUiScaleFixView.tfScaleFixHeight.setStringValue(u"4294967298"_s);

    EXPECT_EQ(imaging::readSettings(panel.dvVCUiScaleMaxView).value, 0);
    EXPECT_EQ(
        imaging::readSettings(panel.dvVCUiScaleFixView).box, (platform::graphics::PixelSize{1, 2})
    );
}

TEST(RotateSettings, AreReadFromTheirControls)
{
    panels::RotatePanel panel;
    panel.tfRotationAngle.setStringValue(u"12.5"_s);
    panel.cbRotationBackgroundColor.setState(1);
    panel.cwRotationBackgroundColor.setColor({.red = 0.5, .green = 0.25, .blue = 1, .alpha = 0.2});
    panel.tfRotationBackgroundHexColor.setStringValue(u"FF0000"_s);
    panel.tfRotationEnlargeCanvas.setStringValue(u"-20"_s);

    const imaging::RotateSettings settings = imaging::readSettings(panel);

    EXPECT_EQ(settings.degrees, 12.5F);
    EXPECT_TRUE(settings.hasCanvas);
    EXPECT_EQ(
        settings.canvasColor,
        (platform::graphics::Color{.red = 0.5, .green = 0.25, .blue = 1, .alpha = 1})
    );
    EXPECT_EQ(settings.canvasMargin, -20);
    panel.cbRotationBackgroundColor.setState(0);
    EXPECT_FALSE(imaging::readSettings(panel).hasCanvas);
}

TEST(FilterSettings, AreReadFromTheirControls)
{
    panels::FilterPanel panel;
    panel.pubFilterSelection.selectIndex(21);
    panels::FilterScreenView& screen = panel.vwFiltersScreenView;
    screen.tfFilterColorConvWidth.setStringValue(u"7.5"_s);
    screen.tfFilterLineScreenAngle.setStringValue(u"-30"_s);
    screen.tfFilterCenterCircularWidth.setStringValue(u"25"_s);
    screen.tfFilterCenterCircularHeight.setStringValue(u"75.5"_s);
    screen.cbFilterColorConvMask.setState(1);
    screen.pubFilterColorConvSharpness.selectIndex(2);
    panel.vwFiltersGaussianView.tfFilterBlurRadiusVal.setStringValue(u"4.5"_s);
    const platform::graphics::Color colour
        = {.red = 0.25, .green = 0.5, .blue = 0.75, .alpha = 0.5};
    panel.vwFiltersMonochromeView.cwFilterMonochromeColor.setColor(colour);
    panel.vwFiltersMonochromeView.pubFilterMonochromeIntensity.selectIndex(3);
    panel.vwFiltersPosterizeView.tfFilterColorConvLevels.setStringValue(u"9"_s);
    panel.vwFiltersSepiaView.pubFilterColorConvIntensity.selectIndex(5);
    panel.vwFiltersUnsharpView.tfFilterUnsharpMaskRadius.setStringValue(u"1.5"_s);
    panel.vwFiltersUnsharpView.pubFilterUnsharpMaskIntensity.selectIndex(7);

    imaging::FilterSettings settings = imaging::readSettings(panel);

    EXPECT_EQ(settings.number, 21);
    EXPECT_EQ(settings.screen.width, 7.5F);
    EXPECT_EQ(settings.screen.angle, -30.0F);
    EXPECT_EQ(settings.screen.centreX, 25.0F);
    EXPECT_EQ(settings.screen.centreY, 75.5F);
    EXPECT_TRUE(settings.screen.isMask);
    EXPECT_FALSE(settings.screen.isInverted);
    EXPECT_EQ(settings.screen.sharpness, 0.3F);
    EXPECT_EQ(settings.blurRadius, 4.5F);
    EXPECT_EQ(settings.color, colour);
    EXPECT_EQ(settings.monochromeIntensity, 0.4F);
    EXPECT_EQ(settings.levels, 9.0F);
    EXPECT_EQ(settings.sepiaIntensity, 0.6F);
    EXPECT_EQ(settings.unsharpRadius, 1.5F);
    EXPECT_EQ(settings.unsharpIntensity, 0.8F);

    screen.cbFilterColorConvMask.setState(0);
    screen.cbFilterColorConvInvert.setState(1);
    settings = imaging::readSettings(panel);
    EXPECT_FALSE(settings.screen.isMask);
    EXPECT_TRUE(settings.screen.isInverted);
}

TEST(FilterSettings, TakeEmptyFieldsAsLevelAndInTheMiddle)
{
    panels::FilterPanel panel;
    panel.vwFiltersScreenView.tfFilterLineScreenAngle.setStringValue({});
    panel.vwFiltersScreenView.tfFilterCenterCircularWidth.setStringValue({});
    panel.vwFiltersScreenView.tfFilterCenterCircularHeight.setStringValue({});

    const imaging::ScreenSettings screen = imaging::readSettings(panel).screen;

    EXPECT_EQ(screen.angle, 0.0F);
    EXPECT_EQ(screen.centreX, 50.0F);
    EXPECT_EQ(screen.centreY, 50.0F);
}
