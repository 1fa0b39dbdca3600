// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_watermark_controls.h"

#include "common_titles.h"

namespace brenvaldo::panels {

namespace {

constexpr int firstTextWatermarkTag = 200;

} // namespace

TextWatermarkControls::TextWatermarkControls()
{
    pubPhotoProperties.addAlias(u"pubTWMPhotoProperties"_qs);
    cbFontList.addAlias(u"cbWatermarkFont"_qs);
    cActionsTWMArrayController.addAlias(u"cActionsIWMArrayController"_qs);
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &tfTextShadowXOffset,
             &tfTextShadowYOffset,
             &tfTextShadowRadius,
             &cwShadowColor,
             &cwEmbossColor,
             &pubOutlineThickness})
        control->setEnabled(false);
    cwEmbossColor.setHidden(true);
    giveTags();
    giveActions();
}

void TextWatermarkControls::giveTags()
{
    int tag = firstTextWatermarkTag;
    for (controls::TextControl* field : std::initializer_list<controls::TextControl*>{
             &tvWaterMarkText,
             &tfFontSize,
             &tfKerning,
             &tfLeading,
             &tfFontTransparancy,
             &tfXOffset,
             &tfYOffset,
             &tfWMAngle,
             &tfTextShadowXOffset,
             &tfTextShadowYOffset,
             &tfTextShadowRadius}) {
        field->setTag(tag++);
        field->addAction(endEditingAction());
    }
}

void TextWatermarkControls::giveActions()
{
    tvWaterMarkText.addTypingAction(u"DVWatermark.textDidChange"_qs);
    pubPhotoProperties.addAction(u"DVWatermark.hInsertPhotoProperty"_qs);
    pubFileNamePhotoProperties.addAction(u"cGUIcontrols.hInsertPhotoProperty"_qs);
    scTxtAlign.addAction(u"DVWatermark.hTextAlignment"_qs);
    cbFontList.addAction(u"DVWatermark.hTextFontFamilyComboBox"_qs);
    cwFontColor.addAction(u"DVWatermark.hTextColorEntred"_qs);
    cbFontBold.addAction(u"DVWatermark.hTextBoldCheckBox"_qs);
    cbFontItalic.addAction(u"DVWatermark.hTextItalicCheckBox"_qs);
    pubTxtUnderline.addAction(u"DVWatermark.hUnderlineComboBox"_qs);
    scWaterMarkPos.addAction(u"DVWatermark.hTextWatermarkPositionSelector"_qs);
    cbTextPatternCheck.addAction(u"DVWatermark.hTxtPatternCheckBox"_qs);
    cbShadowCheck.addAction(u"DVWatermark.hTextShadowCheckBox"_qs);
    cwShadowColor.addAction(u"DVWatermark.hTextShadowColorEntred"_qs);
    cbOutlineCheck.addAction(u"DVWatermark.hTextOutlineCheckBox"_qs);
    pubOutlineThickness.addAction(u"DVWatermark.hTextOutlineThicknessComboBox"_qs);
    pubWatermarkTextEffect.addAction(u"DVWatermark.hAddTextWatermarkEffect"_qs);
    pubWatermarkTextEffectIntensity.addAction(u"DVWatermark.hAddTextWatermarkEffectIntensity"_qs);
    cwEmbossColor.addAction(u"DVWatermark.hEmbossColorEntred"_qs);
}

Layout TextWatermarkControls::textRows()
{
    return {
        {Heading{u"Text"_qs}},
        {Row{.label = u"Text"_qs, .fields = {{.control = &tvWaterMarkText}}}},
        {Row{
            .label = u"Insert"_qs,
            .fields
            = {{.control = &pubPhotoProperties, .accessibleName = u"Insert a photo property"_qs}},
            .hint = u"Each photo shows its own value in place of <[\u2026]>."_qs}},
        {Row{.label = u"Align"_qs, .fields = {{.control = &scTxtAlign}}}},
    };
}

Layout TextWatermarkControls::fontRows()
{
    return {
        {Heading{u"Font"_qs}},
        {Row{.label = u"Font"_qs, .fields = {{.control = &cbFontList}}}},
        {Row{
            .label = u"Size"_qs,
            .fields
            = {{.control = &tfFontSize, .unit = u"pt"_qs},
               {.control = &cwFontColor, .accessibleName = u"Text colour"_qs}}}},
        {Row{
            .label = u"Style"_qs,
            .fields
            = {{.control = &cbFontBold},
               {.control = &cbFontItalic},
               {.control = &pubTxtUnderline, .accessibleName = u"Underline"_qs}}}},
        {Row{
            .label = u"Spacing"_qs,
            .fields
            = {{.control = &tfKerning,
                .unit = u"pt letters"_qs,
                .accessibleName = u"Extra space between letters"_qs},
               {.control = &tfLeading,
                .unit = u"pt lines"_qs,
                .accessibleName = u"Extra space between lines"_qs}}}},
        {Row{
            .label = u"Opacity"_qs, .fields = {{.control = &tfFontTransparancy, .unit = u"%"_qs}}}},
    };
}

Layout TextWatermarkControls::placeRows()
{
    return {
        {Heading{u"Place"_qs}},
        {Row{.label = u"Position"_qs, .fields = {{.control = &scWaterMarkPos}}}},
        {Row{
            .label = u"Shift"_qs,
            .fields
            = {{.control = &tfXOffset,
                .unit = u"px right"_qs,
                .accessibleName = u"Shift to the right"_qs},
               {.control = &tfYOffset, .unit = u"px up"_qs, .accessibleName = u"Shift upward"_qs}},
            .hint = u"The gaps between the copies when the text is repeated."_qs}},
        {Row{.label = u"Angle"_qs, .fields = {{.control = &tfWMAngle, .unit = u"\u00b0"_qs}}}},
        {Row{.fields = {{.control = &cbTextPatternCheck}}}},
    };
}

Layout TextWatermarkControls::shadowRows()
{
    return {
        {Heading{u"Shadow"_qs}},
        {Row{.fields = {{.control = &cbShadowCheck}}}},
        {Row{
            .label = u"Shift"_qs,
            .fields
            = {{.control = &tfTextShadowXOffset,
                .unit = u"px right"_qs,
                .accessibleName = u"Shift of the shadow to the right"_qs},
               {.control = &tfTextShadowYOffset,
                .unit = u"px up"_qs,
                .accessibleName = u"Shift of the shadow upward"_qs}}}},
        {Row{
            .label = u"Softness"_qs,
            .fields
            = {{.control = &tfTextShadowRadius,
                .unit = u"px"_qs,
                .accessibleName = u"Softness of the shadow"_qs},
               {.control = &cwShadowColor, .accessibleName = u"Colour of the shadow"_qs}}}},
    };
}

Layout TextWatermarkControls::lookRows()
{
    return {
        {Heading{u"Look"_qs}},
        {Row{
            .fields
            = {{.control = &cbOutlineCheck},
               {.control = &pubOutlineThickness,
                .accessibleName = u"Thickness of the outline"_qs}}}},
        {Row{.label = u"Effect"_qs, .fields = {{.control = &pubWatermarkTextEffect}}}},
        {Row{.label = u"Strength"_qs, .fields = {{.control = &pubWatermarkTextEffectIntensity}}}},
        {Row{.label = u"Relief colour"_qs, .fields = {{.control = &cwEmbossColor}}}},
    };
}

Layout TextWatermarkControls::textWatermarkPage()
{
    return joined({textRows(), fontRows(), placeRows(), shadowRows(), lookRows()});
}

} // namespace brenvaldo::panels
