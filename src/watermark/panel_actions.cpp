// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel_actions.h"

#include "placeholders.h"
#include "text_effect.h"

#include <controls/action_registry.h>
#include <panels/watermark_panel.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/notification_center.h>

#include <array>
#include <initializer_list>

namespace brenvaldo::watermark {

namespace {

using panels::WatermarkPanel;

void setEnabled(std::initializer_list<controls::Control*> controls, bool enabled)
{
    for (controls::Control* control : controls)
        control->setEnabled(enabled);
}

void changesNothing(WatermarkPanel& /*panel*/) { }

void followsTextShadow(WatermarkPanel& panel)
{
    setEnabled(
        {&panel.tfTextShadowXOffset,
         &panel.tfTextShadowYOffset,
         &panel.tfTextShadowRadius,
         &panel.cwShadowColor},
        panel.cbShadowCheck.isOn()
    );
}

void followsImageShadow(WatermarkPanel& panel)
{
    setEnabled(
        {&panel.tfImageShadowXOffset,
         &panel.tfImageShadowYOffset,
         &panel.tfImageShadowRadius,
         &panel.cwImageShadowColor},
        panel.cbImageShadowCheck.isOn()
    );
}

void followsOutline(WatermarkPanel& panel)
{
    panel.pubOutlineThickness.setEnabled(panel.cbOutlineCheck.isOn());
}

void followsEffect(WatermarkPanel& panel)
{
    const TextEffect effect = textEffectOfIndex(panel.pubWatermarkTextEffect.indexOfSelectedItem());
    const bool isColored = traitsOf(effect).hasReliefColor;
    panel.cwEmbossColor.setHidden(!isColored);
    panel.cwEmbossColor.setEnabled(isColored);
}

void followsAlignment(WatermarkPanel& panel)
{
    using Alignment = controls::TextView::Alignment;
    constexpr std::array alignments{Alignment::Left, Alignment::Center, Alignment::Right};
    const auto segment = static_cast<std::size_t>(panel.scTxtAlign.selectedSegment());
    panel.tvWaterMarkText.setAlignment(
        segment < alignments.size() ? alignments.at(segment) : Alignment::Right
    );
}

void followsFadeOut(WatermarkPanel& panel)
{
    const bool fades = panel.cbImageFadeOut.isOn();
    panel.tfImageFadeOutAngle.setEnabled(fades && !panel.cbCircularFadeOut.isOn());
    setEnabled(
        {&panel.sliderFadeOutValue, &panel.cbCircularFadeOut, &panel.cbCircularInvertFadeOut}, fades
    );
}

void followsCircularFadeOut(WatermarkPanel& panel)
{
    const bool isCircular = panel.cbCircularFadeOut.isOn();
    panel.tfImageFadeOutAngle.setEnabled(!isCircular);
    panel.cbCircularInvertFadeOut.setEnabled(isCircular);
    if (!isCircular)
        panel.pubOutlineThickness.setEnabled(true);
}

void followsImageSize(WatermarkPanel& panel)
{
    constexpr int lastScaledRow = 2;
    const int row = panel.mxImageScaleProperty.selectedRow();
    if (row >= 0 && row <= lastScaledRow) {
        panel.tfImageScalePC.setEnabled(true);
        return;
    }
    panel.tfImageScalePC.setStringValue(u"100"_s);
    panel.tfImageScalePC.setEnabled(false);
    panel.cbPatternCheck.setState(0);
}

void followsFilterType(WatermarkPanel& panel)
{
    constexpr int lastPlainFilter = 2;
    constexpr int circularScreen = 5;
    const int type = panel.pubWatermarkFilterType.indexOfSelectedItem();
    if (type < 0 || type > circularScreen)
        return;
    const bool isScreen = type > lastPlainFilter;
    const bool isCircular = type == circularScreen;
    setEnabled({&panel.tfWatermarkFilterSize, &panel.pubWatermarkFilterSharpness}, isScreen);
    setEnabled({&panel.tfCenterCircularWidth, &panel.tfCenterCircularHeight}, isCircular);
    panel.tfLineScreenAngle.setEnabled(isScreen && !isCircular);
}

void insertsPhotoProperty(WatermarkPanel& panel)
{
    const int index = panel.pubPhotoProperties.indexOfSelectedItem();
    if (index < 0 || index >= placeholders().size())
        return;
    panel.tvWaterMarkText.setStringValue(
        panel.tvWaterMarkText.stringValue() + placeholders().at(index).token
    );
}

/// An action, what it does to the panel, and what it tells the preview.
struct PanelAction
{
    const char16_t* name;
    void (*adjust)(WatermarkPanel&);
    const char16_t* notification;
};

constexpr std::array panelActions{
    PanelAction{u"textDidChange", changesNothing, u"cbTextEntred"},
    PanelAction{u"hInsertPhotoProperty", insertsPhotoProperty, u"cbTextWatermarkMetaDataEntred"},
    PanelAction{u"hChooseWatermarkFilterType", followsFilterType, u"pubWatermarkFilterTypeEntred"},
    PanelAction{u"hCheckFadeOutBox", followsFadeOut, u"cbCheckFadeOutBoxEntred"},
    PanelAction{u"hCicularFadeOut", followsCircularFadeOut, u"cbCircularFadeOutEntred"},
    PanelAction{u"hImageShadowCheckBox", followsImageShadow, u"cbImageShadowCheckBoxEntred"},
    PanelAction{u"hTextShadowCheckBox", followsTextShadow, u"cbTextShadowCheckBoxEntred"},
    PanelAction{u"hTextOutlineCheckBox", followsOutline, u"cbTextOutlineCheckBoxEntred"},
    PanelAction{u"hAddTextWatermarkEffect", followsEffect, u"pubWatermarkTextEffectEntred"},
    PanelAction{u"hTextAlignment", followsAlignment, u"cbTextWatermarkAlignment"},
    PanelAction{u"hImageWatermarkSizeEntred", followsImageSize, u"mxImageWatermarkSizeEntred"},
    PanelAction{u"hTextShadowColorEntred", changesNothing, u"cbTextShadowColorEntred"},
    PanelAction{u"hTextColorEntred", changesNothing, u"cbTextColorEntred"},
    PanelAction{u"hTextItalicCheckBox", changesNothing, u"cbTextItalicCheckBoxEntred"},
    PanelAction{u"hTextBoldCheckBox", changesNothing, u"cbTextBoldCheckBoxEntred"},
    PanelAction{u"hTextOutlineThicknessComboBox", changesNothing, u"cbTextOutlineThicknessEntred"},
    PanelAction{u"hUnderlineComboBox", changesNothing, u"cbUnderlineComboBoxEntred"},
    PanelAction{
        u"hTextWatermarkPositionSelector", changesNothing, u"cbTextWatermarkPositionEntred"},
    PanelAction{u"hTextFontFamilyComboBox", changesNothing, u"cbTextFontFamilyEntred"},
    PanelAction{
        u"hAddTextWatermarkEffectIntensity",
        changesNothing,
        u"pubWatermarkTextEffectIntensityEntred"},
    PanelAction{u"hImgPatternCheckBox", changesNothing, u"cbImagePatternCheckBoxEntred"},
    PanelAction{u"hTxtPatternCheckBox", changesNothing, u"cbTxtPatternCheckBoxEntred"},
    PanelAction{
        u"hImageWatermarkPositionSelector", changesNothing, u"cbImageWatermarkPositionEntred"},
    PanelAction{u"hOpacityRenderMethodSelector", changesNothing, u"pubOpacityRenderMethodEntred"},
    PanelAction{u"hSliderFadeOutImageSelector", changesNothing, u"srSliderFadeOutImageEntred"},
    PanelAction{u"hImageShadowColorEntred", changesNothing, u"cwImageShadowColorEntred"},
    PanelAction{u"hEmbossColorEntred", changesNothing, u"cwEmbossColorEntred"},
    PanelAction{u"hScreenSizeEntred", changesNothing, u"tfScreenSizeEntred"},
    PanelAction{u"hScreenSharpnessEntred", changesNothing, u"pubScreenSharpnessEntred"},
};

} // namespace

void registerPanelActions(
    controls::ActionRegistry& actions,
    panels::WatermarkPanel& panel,
    const platform::NotificationCenter& notifications
)
{
    for (const PanelAction& action : panelActions) {
        actions.add(
            u"DVWatermark"_s,
            QString::fromUtf16(action.name),
            [&panel, &notifications, action](const controls::Sender&) {
                action.adjust(panel);
                notifications.post(QString::fromUtf16(action.notification));
            }
        );
    }
}

} // namespace brenvaldo::watermark
