// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_watermark_controls.h"

#include "common_titles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

namespace {

constexpr int firstTextWatermarkTag = 200;

} // namespace

TextWatermarkControls::TextWatermarkControls()
{
    pubPhotoProperties.addAlias(u"pubTWMPhotoProperties"_s);
    cbFontList.addAlias(u"cbWatermarkFont"_s);
    cActionsTWMArrayController.addAlias(u"cActionsIWMArrayController"_s);
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
    tvWaterMarkText.addTypingAction(u"DVWatermark.textDidChange"_s);
    pubPhotoProperties.addAction(u"DVWatermark.hInsertPhotoProperty"_s);
    pubFileNamePhotoProperties.addAction(u"cGUIcontrols.hInsertPhotoProperty"_s);
    scTxtAlign.addAction(u"DVWatermark.hTextAlignment"_s);
    cbFontList.addAction(u"DVWatermark.hTextFontFamilyComboBox"_s);
    cwFontColor.addAction(u"DVWatermark.hTextColorEntred"_s);
    cbFontBold.addAction(u"DVWatermark.hTextBoldCheckBox"_s);
    cbFontItalic.addAction(u"DVWatermark.hTextItalicCheckBox"_s);
    pubTxtUnderline.addAction(u"DVWatermark.hUnderlineComboBox"_s);
    scWaterMarkPos.addAction(u"DVWatermark.hTextWatermarkPositionSelector"_s);
    cbTextPatternCheck.addAction(u"DVWatermark.hTxtPatternCheckBox"_s);
    cbShadowCheck.addAction(u"DVWatermark.hTextShadowCheckBox"_s);
    cwShadowColor.addAction(u"DVWatermark.hTextShadowColorEntred"_s);
    cbOutlineCheck.addAction(u"DVWatermark.hTextOutlineCheckBox"_s);
    pubOutlineThickness.addAction(u"DVWatermark.hTextOutlineThicknessComboBox"_s);
    pubWatermarkTextEffect.addAction(u"DVWatermark.hAddTextWatermarkEffect"_s);
    pubWatermarkTextEffectIntensity.addAction(u"DVWatermark.hAddTextWatermarkEffectIntensity"_s);
    cwEmbossColor.addAction(u"DVWatermark.hEmbossColorEntred"_s);
}

Layout TextWatermarkControls::textRows()
{
    return {
        {Heading{u"Text"_s}},
        {Row{.label = u"Text"_s, .fields = {{.control = &tvWaterMarkText}}}},
        {Row{
            .label = u"Insert"_s,
            .fields
            = {{.control = &pubPhotoProperties, .accessibleName = u"Insert a photo property"_s}},
            .hint = u"Each photo shows its own value in place of <[\u2026]>."_s}},
        {Row{.label = u"Align"_s, .fields = {{.control = &scTxtAlign}}}},
    };
}

Layout TextWatermarkControls::fontRows()
{
    return {
        {Heading{u"Font"_s}},
        {Row{.label = u"Font"_s, .fields = {{.control = &cbFontList}}}},
        {Row{
            .label = u"Size"_s,
            .fields
            = {{.control = &tfFontSize, .unit = u"pt"_s},
               {.control = &cwFontColor, .accessibleName = u"Text colour"_s}}}},
        {Row{
            .label = u"Style"_s,
            .fields
            = {{.control = &cbFontBold},
               {.control = &cbFontItalic},
               {.control = &pubTxtUnderline, .accessibleName = u"Underline"_s}}}},
        {Row{
            .label = u"Spacing"_s,
            .fields
            = {{.control = &tfKerning,
                .unit = u"pt letters"_s,
                .accessibleName = u"Extra space between letters"_s},
               {.control = &tfLeading,
                .unit = u"pt lines"_s,
                .accessibleName = u"Extra space between lines"_s}}}},
        {Row{.label = u"Opacity"_s, .fields = {{.control = &tfFontTransparancy, .unit = u"%"_s}}}},
    };
}

Layout TextWatermarkControls::placeRows()
{
    return {
        {Heading{u"Place"_s}},
        {Row{.label = u"Position"_s, .fields = {{.control = &scWaterMarkPos}}}},
        {Row{
            .label = u"Shift"_s,
            .fields
            = {{.control = &tfXOffset,
                .unit = u"px right"_s,
                .accessibleName = u"Shift to the right"_s},
               {.control = &tfYOffset, .unit = u"px up"_s, .accessibleName = u"Shift upward"_s}},
            .hint = u"The gaps between the copies when the text is repeated."_s}},
        {Row{.label = u"Angle"_s, .fields = {{.control = &tfWMAngle, .unit = u"\u00b0"_s}}}},
        {Row{.fields = {{.control = &cbTextPatternCheck}}}},
    };
}

Layout TextWatermarkControls::shadowRows()
{
    return {
        {Heading{u"Shadow"_s}},
        {Row{.fields = {{.control = &cbShadowCheck}}}},
        {Row{
            .label = u"Shift"_s,
            .fields
            = {{.control = &tfTextShadowXOffset,
                .unit = u"px right"_s,
                .accessibleName = u"Shift of the shadow to the right"_s},
               {.control = &tfTextShadowYOffset,
                .unit = u"px up"_s,
                .accessibleName = u"Shift of the shadow upward"_s}}}},
        {Row{
            .label = u"Softness"_s,
            .fields
            = {{.control = &tfTextShadowRadius,
                .unit = u"px"_s,
                .accessibleName = u"Softness of the shadow"_s},
               {.control = &cwShadowColor, .accessibleName = u"Colour of the shadow"_s}}}},
    };
}

Layout TextWatermarkControls::lookRows()
{
    return {
        {Heading{u"Look"_s}},
        {Row{
            .fields
            = {{.control = &cbOutlineCheck},
               {.control = &pubOutlineThickness,
                .accessibleName = u"Thickness of the outline"_s}}}},
        {Row{.label = u"Effect"_s, .fields = {{.control = &pubWatermarkTextEffect}}}},
        {Row{.label = u"Strength"_s, .fields = {{.control = &pubWatermarkTextEffectIntensity}}}},
        {Row{.label = u"Relief colour"_s, .fields = {{.control = &cwEmbossColor}}}},
    };
}

Layout TextWatermarkControls::actionRows()
{
    return {
        {Heading{u"File names"_s}},
        {Table{
            .table = &tvwTWMActions,
            .columns = {{.key = u"cActions"_s, .title = u"C-Actions"_s}},
            .accessibleName = u"Actions that change the names of written files"_s,
            .emptyText = u"Photos keep their names."_s,
            .removeButton = &btnRemoveTWMCActions}},
        {Row{.fields = {{.control = &btnImportTWMCActions}, {.control = &btnRemoveTWMCActions}}}},
    };
}

Layout TextWatermarkControls::textWatermarkPage()
{
    return joined({textRows(), fontRows(), placeRows(), shadowRows(), lookRows(), actionRows()});
}

} // namespace brenvaldo::panels
