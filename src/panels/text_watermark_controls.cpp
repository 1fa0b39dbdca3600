// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_watermark_controls.h"

#include "common_titles.h"

namespace brenvaldo::panels {

namespace {

constexpr int firstTextWatermarkTag = 200;

/// In the order of the tokens that they insert.
QStringList photoPropertyTitles()
{
    return {
        u"Date taken"_qs,
        u"User comment"_qs,
        u"Width in pixels"_qs,
        u"Height in pixels"_qs,
        u"Resolution (dpi)"_qs,
        u"File name"_qs,
        u"Colour model"_qs,
        u"Colour profile"_qs,
        u"Bits per channel"_qs,
        u"Creator"_qs,
        u"Creator's job title"_qs,
        u"Caption"_qs,
        u"Copyright notice"_qs,
        u"Headline"_qs,
        u"Keywords"_qs,
        u"Title"_qs,
        u"Source"_qs,
        u"Rights and usage terms"_qs,
    };
}

QStringList textEffectTitles()
{
    return {
        u"Plain colour"_qs,
        u"Relief 1"_qs,
        u"Relief 2"_qs,
        u"Relief 3"_qs,
        u"Relief 4"_qs,
        u"Relief 5"_qs,
        u"Relief in a colour"_qs,
        u"Filled with the photo"_qs,
        u"Filled with the photo in black and white"_qs,
        u"Relief 6"_qs,
    };
}

QStringList underlineTitles()
{
    return {
        u"No underline"_qs,
        u"Thin underline"_qs,
        u"Thick underline"_qs,
    };
}

} // namespace

TextWatermarkControls::TextWatermarkControls()
    : tvWaterMarkText(u"tvWaterMarkText"_qs)
    , pubPhotoProperties(u"pubPhotoProperties"_qs, photoPropertyTitles())
    , scTxtAlign(u"scTxtAlign"_qs, {u"Left"_qs, u"Centre"_qs, u"Right"_qs})
    , cbFontList(u"cbFontList"_qs, {}, -1)
    , tfFontSize(u"tfFontSize"_qs, u"72"_qs)
    , cwFontColor(u"cwFontColor"_qs, {.red = 1, .green = 1, .blue = 1})
    , cbFontBold(u"cbFontBold"_qs, u"Bold"_qs)
    , cbFontItalic(u"cbFontItalic"_qs, u"Italic"_qs)
    , pubTxtUnderline(u"pubTxtUnderline"_qs, underlineTitles())
    , tfKerning(u"tfKerning"_qs, u"0"_qs)
    , tfLeading(u"tfLeading"_qs, u"0"_qs)
    , tfFontTransparancy(u"tfFontTransparancy"_qs, u"100"_qs)
    , scWaterMarkPos(
          u"scWaterMarkPos"_qs,
          positionGridTitles(),
          8,
          controls::SegmentedControl::Look::PositionGrid
      )
    , tfXOffset(u"tfXOffset"_qs, u"0"_qs)
    , tfYOffset(u"tfYOffset"_qs, u"0"_qs)
    , tfWMAngle(u"tfWMAngle"_qs, u"0"_qs)
    , cbTextPatternCheck(u"cbTextPatternCheck"_qs, u"Repeat over the whole photo"_qs)
    , cbShadowCheck(u"cbShadowCheck"_qs, u"Cast a shadow"_qs)
    , tfTextShadowXOffset(u"tfTextShadowXOffset"_qs, u"2"_qs)
    , tfTextShadowYOffset(u"tfTextShadowYOffset"_qs, u"-2"_qs)
    , tfTextShadowRadius(u"tfTextShadowRadius"_qs, u"4"_qs)
    , cwShadowColor(u"cwShadowColor"_qs)
    , cbOutlineCheck(u"cbOutlineCheck"_qs, u"Outline only"_qs)
    , pubOutlineThickness(
          u"pubOutlineThickness"_qs,
          {u"Hairline"_qs, u"Thin"_qs, u"Medium"_qs, u"Thick"_qs, u"Heavy"_qs}
      )
    , pubWatermarkTextEffect(u"pubWatermarkTextEffect"_qs, textEffectTitles())
    , pubWatermarkTextEffectIntensity(
          u"pubWatermarkTextEffectIntensity"_qs, {u"Light"_qs, u"Medium"_qs, u"Strong"_qs}, 1
      )
    , cwEmbossColor(u"cwEmbossColor"_qs, {.red = 0.8, .green = 0.8, .blue = 0.8})
    , tvFileName(u"tvFileName"_qs)
    , pubFileNamePhotoProperties(
          u"pubFileNamePhotoProperties"_qs, {u"Width in pixels"_qs, u"Height in pixels"_qs}
      )
    , cActionsTWMArrayController(u"cActionsTWMArrayController"_qs, {u"cActions"_qs})
    , tvwTWMActions(u"tvwTWMActions"_qs, cActionsTWMArrayController)
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
