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
        QStringLiteral("Date taken"),
        QStringLiteral("User comment"),
        QStringLiteral("Width in pixels"),
        QStringLiteral("Height in pixels"),
        QStringLiteral("Resolution (dpi)"),
        QStringLiteral("File name"),
        QStringLiteral("Colour model"),
        QStringLiteral("Colour profile"),
        QStringLiteral("Bits per channel"),
        QStringLiteral("Creator"),
        QStringLiteral("Creator's job title"),
        QStringLiteral("Caption"),
        QStringLiteral("Copyright notice"),
        QStringLiteral("Headline"),
        QStringLiteral("Keywords"),
        QStringLiteral("Title"),
        QStringLiteral("Source"),
        QStringLiteral("Rights and usage terms"),
    };
}

QStringList textEffectTitles()
{
    return {
        QStringLiteral("Plain colour"),
        QStringLiteral("Relief 1"),
        QStringLiteral("Relief 2"),
        QStringLiteral("Relief 3"),
        QStringLiteral("Relief 4"),
        QStringLiteral("Relief 5"),
        QStringLiteral("Relief in a colour"),
        QStringLiteral("Filled with the photo"),
        QStringLiteral("Filled with the photo in black and white"),
        QStringLiteral("Relief 6"),
    };
}

QStringList underlineTitles()
{
    return {
        QStringLiteral("No underline"),
        QStringLiteral("Thin underline"),
        QStringLiteral("Thick underline"),
    };
}

} // namespace

TextWatermarkControls::TextWatermarkControls()
    : tvWaterMarkText(QStringLiteral("tvWaterMarkText"))
    , pubPhotoProperties(QStringLiteral("pubPhotoProperties"), photoPropertyTitles())
    , scTxtAlign(
          QStringLiteral("scTxtAlign"),
          {QStringLiteral("Left"), QStringLiteral("Centre"), QStringLiteral("Right")}
      )
    , cbFontList(QStringLiteral("cbFontList"), {}, -1)
    , tfFontSize(QStringLiteral("tfFontSize"), QStringLiteral("72"))
    , cwFontColor(QStringLiteral("cwFontColor"), {.red = 1, .green = 1, .blue = 1})
    , cbFontBold(QStringLiteral("cbFontBold"), QStringLiteral("Bold"))
    , cbFontItalic(QStringLiteral("cbFontItalic"), QStringLiteral("Italic"))
    , pubTxtUnderline(QStringLiteral("pubTxtUnderline"), underlineTitles())
    , tfKerning(QStringLiteral("tfKerning"), QStringLiteral("0"))
    , tfLeading(QStringLiteral("tfLeading"), QStringLiteral("0"))
    , tfFontTransparancy(QStringLiteral("tfFontTransparancy"), QStringLiteral("100"))
    , scWaterMarkPos(
          QStringLiteral("scWaterMarkPos"),
          positionGridTitles(),
          8,
          controls::SegmentedControl::Look::PositionGrid
      )
    , tfXOffset(QStringLiteral("tfXOffset"), QStringLiteral("0"))
    , tfYOffset(QStringLiteral("tfYOffset"), QStringLiteral("0"))
    , tfWMAngle(QStringLiteral("tfWMAngle"), QStringLiteral("0"))
    , cbTextPatternCheck(
          QStringLiteral("cbTextPatternCheck"), QStringLiteral("Repeat over the whole photo")
      )
    , cbShadowCheck(QStringLiteral("cbShadowCheck"), QStringLiteral("Cast a shadow"))
    , tfTextShadowXOffset(QStringLiteral("tfTextShadowXOffset"), QStringLiteral("2"))
    , tfTextShadowYOffset(QStringLiteral("tfTextShadowYOffset"), QStringLiteral("-2"))
    , tfTextShadowRadius(QStringLiteral("tfTextShadowRadius"), QStringLiteral("4"))
    , cwShadowColor(QStringLiteral("cwShadowColor"))
    , cbOutlineCheck(QStringLiteral("cbOutlineCheck"), QStringLiteral("Outline only"))
    , pubOutlineThickness(
          QStringLiteral("pubOutlineThickness"),
          {QStringLiteral("Hairline"),
           QStringLiteral("Thin"),
           QStringLiteral("Medium"),
           QStringLiteral("Thick"),
           QStringLiteral("Heavy")}
      )
    , pubWatermarkTextEffect(QStringLiteral("pubWatermarkTextEffect"), textEffectTitles())
    , pubWatermarkTextEffectIntensity(
          QStringLiteral("pubWatermarkTextEffectIntensity"),
          {QStringLiteral("Light"), QStringLiteral("Medium"), QStringLiteral("Strong")},
          1
      )
    , cwEmbossColor(QStringLiteral("cwEmbossColor"), {.red = 0.8, .green = 0.8, .blue = 0.8})
    , tvFileName(QStringLiteral("tvFileName"))
    , pubFileNamePhotoProperties(
          QStringLiteral("pubFileNamePhotoProperties"),
          {QStringLiteral("Width in pixels"), QStringLiteral("Height in pixels")}
      )
    , cActionsTWMArrayController(
          QStringLiteral("cActionsTWMArrayController"), {QStringLiteral("cActions")}
      )
    , tvwTWMActions(QStringLiteral("tvwTWMActions"), cActionsTWMArrayController)
{
    pubPhotoProperties.addAlias(QStringLiteral("pubTWMPhotoProperties"));
    cbFontList.addAlias(QStringLiteral("cbWatermarkFont"));
    cActionsTWMArrayController.addAlias(QStringLiteral("cActionsIWMArrayController"));
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
    tvWaterMarkText.addTypingAction(QStringLiteral("DVWatermark.textDidChange"));
    pubPhotoProperties.addAction(QStringLiteral("DVWatermark.hInsertPhotoProperty"));
    pubFileNamePhotoProperties.addAction(QStringLiteral("cGUIcontrols.hInsertPhotoProperty"));
    scTxtAlign.addAction(QStringLiteral("DVWatermark.hTextAlignment"));
    cbFontList.addAction(QStringLiteral("DVWatermark.hTextFontFamilyComboBox"));
    cwFontColor.addAction(QStringLiteral("DVWatermark.hTextColorEntred"));
    cbFontBold.addAction(QStringLiteral("DVWatermark.hTextBoldCheckBox"));
    cbFontItalic.addAction(QStringLiteral("DVWatermark.hTextItalicCheckBox"));
    pubTxtUnderline.addAction(QStringLiteral("DVWatermark.hUnderlineComboBox"));
    scWaterMarkPos.addAction(QStringLiteral("DVWatermark.hTextWatermarkPositionSelector"));
    cbTextPatternCheck.addAction(QStringLiteral("DVWatermark.hTxtPatternCheckBox"));
    cbShadowCheck.addAction(QStringLiteral("DVWatermark.hTextShadowCheckBox"));
    cwShadowColor.addAction(QStringLiteral("DVWatermark.hTextShadowColorEntred"));
    cbOutlineCheck.addAction(QStringLiteral("DVWatermark.hTextOutlineCheckBox"));
    pubOutlineThickness.addAction(QStringLiteral("DVWatermark.hTextOutlineThicknessComboBox"));
    pubWatermarkTextEffect.addAction(QStringLiteral("DVWatermark.hAddTextWatermarkEffect"));
    pubWatermarkTextEffectIntensity.addAction(
        QStringLiteral("DVWatermark.hAddTextWatermarkEffectIntensity")
    );
    cwEmbossColor.addAction(QStringLiteral("DVWatermark.hEmbossColorEntred"));
}

Layout TextWatermarkControls::textRows()
{
    return {
        {Heading{QStringLiteral("Text")}},
        {Row{.label = QStringLiteral("Text"), .fields = {{.control = &tvWaterMarkText}}}},
        {Row{
            .label = QStringLiteral("Insert"),
            .fields
            = {{.control = &pubPhotoProperties,
                .accessibleName = QStringLiteral("Insert a photo property")}},
            .hint = QStringLiteral("Each photo shows its own value in place of <[\u2026]>.")}},
        {Row{.label = QStringLiteral("Align"), .fields = {{.control = &scTxtAlign}}}},
    };
}

Layout TextWatermarkControls::fontRows()
{
    return {
        {Heading{QStringLiteral("Font")}},
        {Row{.label = QStringLiteral("Font"), .fields = {{.control = &cbFontList}}}},
        {Row{
            .label = QStringLiteral("Size"),
            .fields
            = {{.control = &tfFontSize, .unit = QStringLiteral("pt")},
               {.control = &cwFontColor, .accessibleName = QStringLiteral("Text colour")}}}},
        {Row{
            .label = QStringLiteral("Style"),
            .fields
            = {{.control = &cbFontBold},
               {.control = &cbFontItalic},
               {.control = &pubTxtUnderline, .accessibleName = QStringLiteral("Underline")}}}},
        {Row{
            .label = QStringLiteral("Spacing"),
            .fields
            = {{.control = &tfKerning,
                .unit = QStringLiteral("pt letters"),
                .accessibleName = QStringLiteral("Extra space between letters")},
               {.control = &tfLeading,
                .unit = QStringLiteral("pt lines"),
                .accessibleName = QStringLiteral("Extra space between lines")}}}},
        {Row{
            .label = QStringLiteral("Opacity"),
            .fields = {{.control = &tfFontTransparancy, .unit = QStringLiteral("%")}}}},
    };
}

Layout TextWatermarkControls::placeRows()
{
    return {
        {Heading{QStringLiteral("Place")}},
        {Row{.label = QStringLiteral("Position"), .fields = {{.control = &scWaterMarkPos}}}},
        {Row{
            .label = QStringLiteral("Shift"),
            .fields
            = {{.control = &tfXOffset,
                .unit = QStringLiteral("px right"),
                .accessibleName = QStringLiteral("Shift to the right")},
               {.control = &tfYOffset,
                .unit = QStringLiteral("px up"),
                .accessibleName = QStringLiteral("Shift upward")}},
            .hint = QStringLiteral("The gaps between the copies when the text is repeated.")}},
        {Row{
            .label = QStringLiteral("Angle"),
            .fields = {{.control = &tfWMAngle, .unit = QStringLiteral("\u00b0")}}}},
        {Row{.fields = {{.control = &cbTextPatternCheck}}}},
    };
}

Layout TextWatermarkControls::shadowRows()
{
    return {
        {Heading{QStringLiteral("Shadow")}},
        {Row{.fields = {{.control = &cbShadowCheck}}}},
        {Row{
            .label = QStringLiteral("Shift"),
            .fields
            = {{.control = &tfTextShadowXOffset,
                .unit = QStringLiteral("px right"),
                .accessibleName = QStringLiteral("Shift of the shadow to the right")},
               {.control = &tfTextShadowYOffset,
                .unit = QStringLiteral("px up"),
                .accessibleName = QStringLiteral("Shift of the shadow upward")}}}},
        {Row{
            .label = QStringLiteral("Softness"),
            .fields
            = {{.control = &tfTextShadowRadius,
                .unit = QStringLiteral("px"),
                .accessibleName = QStringLiteral("Softness of the shadow")},
               {.control = &cwShadowColor,
                .accessibleName = QStringLiteral("Colour of the shadow")}}}},
    };
}

Layout TextWatermarkControls::lookRows()
{
    return {
        {Heading{QStringLiteral("Look")}},
        {Row{
            .fields
            = {{.control = &cbOutlineCheck},
               {.control = &pubOutlineThickness,
                .accessibleName = QStringLiteral("Thickness of the outline")}}}},
        {Row{.label = QStringLiteral("Effect"), .fields = {{.control = &pubWatermarkTextEffect}}}},
        {Row{
            .label = QStringLiteral("Strength"),
            .fields = {{.control = &pubWatermarkTextEffectIntensity}}}},
        {Row{.label = QStringLiteral("Relief colour"), .fields = {{.control = &cwEmbossColor}}}},
    };
}

Layout TextWatermarkControls::textWatermarkPage()
{
    return joined({textRows(), fontRows(), placeRows(), shadowRows(), lookRows()});
}

} // namespace brenvaldo::panels
