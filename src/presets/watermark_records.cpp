// SPDX-License-Identifier: GPL-3.0-or-later
#include "watermark_records.h"

#include "action_chain.h"
#include "load_effects.h"

#include <panels/text_effect.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

namespace {

/// An empty chain is kept as the empty text, and a load of that leaves the list as it is.
OtherForm actionChainForm(controls::ArrayController& actions)
{
    return {
        .stored =
            [&actions] {
                const QString chain = chainText(actions);
                return chain == noActions() ? u""_s : chain;
            },
        .restore =
            [&actions](const QString& chain) {
                if (!chain.isEmpty() && chain != noActions())
                    loadChain(chain, actions);
            },
    };
}

} // namespace

PresetRecord textWatermarkRecord(panels::Panels& panels)
{
    constexpr int coloredRelief = static_cast<int>(panels::TextEffect::ColoredRelief);

    auto& text = panels.vwWatermark;
    auto& files = panels.vwFileType;
    return {
        .process = u"TextWM"_s,
        .action = u"Watermark"_s,
        .before = PresetRecord::Before::ClearSecondViewAndSimulation,
        .fields = {
            {3, FolderForm{&panels.vwMainDestination.tfImageDestinationFolder}},
            {5, IndexForm{&text.scWaterMarkPos}},
            {6, TextForm{&text.tfFontSize}},
            {7, TextForm{&text.tfKerning}},
            {8, StateForm{&text.cbFontItalic}},
            {9, StateForm{&text.cbFontBold}},
            {10, TextForm{&text.tfWMAngle}},
            {11, TextForm{&text.tfXOffset}},
            {12, TextForm{&text.tfYOffset}},
            {13, TextForm{&text.tfTextShadowXOffset}},
            {14, TextForm{&text.tfTextShadowYOffset}},
            {15, TextForm{&text.tfTextShadowRadius}},
            {16, ColorForm{&text.cwFontColor}},
            {17, ColorForm{&text.cwShadowColor}},
            {18,
             StateForm{&text.cbShadowCheck},
             enablesUnlessZero(
                 {&text.tfTextShadowXOffset,
                  &text.tfTextShadowYOffset,
                  &text.tfTextShadowRadius,
                  &text.cwShadowColor}
             )},
            {19, StateForm{&text.cbOutlineCheck}},
            {20, IndexForm{&text.pubOutlineThickness}},
            {21, IndexForm{&text.pubTxtUnderline}},
            {22, TextForm{&text.tfLeading}},
            {23, TextForm{&text.tfFontTransparancy}},
            {24, actionChainForm(text.cActionsTWMArrayController)},
            {25, TextForm{&text.tvWaterMarkText}},
            {26, IndexForm{&text.pubPhotoProperties}},
            {27, ItemForm{&text.cbFontList}},
            {28,
             IndexForm{&text.pubWatermarkTextEffect},
             showsWhen(coloredRelief, text.cwEmbossColor)},
            {29, IndexForm{&text.scTxtAlign}},
            {30, TextForm{&text.tfWatermarkFilterSize}},
            {31, ColorForm{&text.cwEmbossColor}},
            {32, IndexForm{&panels.vwApplyOn.pubPhotoOrientation}},
            {33, StateForm{&text.cbTextPatternCheck}},
            {34, IndexForm{&files.pubFileType}},
            {35, IndexForm{&files.pubJPEGCompressionLevel}},
        }};
}

PresetRecord imageWatermarkRecord(panels::Panels& panels)
{
    auto& image = panels.vwWatermark;
    auto& files = panels.vwFileType;
    return {
        .process = u"ImageWM"_s,
        .action = u"Watermark"_s,
        .before = PresetRecord::Before::ClearSecondViewAndSimulation,
        .fields = {
            {3, FolderForm{&panels.vwMainDestination.tfImageDestinationFolder}},
            {4, IndexForm{&image.scImageWaterMarkPos}},
            {5, TextForm{&image.tfImageXOffset}},
            {6, TextForm{&image.tfImageYOffset}},
            {7, TextForm{&image.tfImageShadowXOffset}},
            {8, TextForm{&image.tfImageShadowYOffset}},
            {9, TextForm{&image.tfImageShadowRadius}},
            {10, TextForm{&image.tfImageTransparancy}},
            {11, StateForm{&image.cbImageFadeOut}},
            {12, TextForm{&image.tfImageFadeOutAngle}},
            {13, ImageFileForm{&image.tfWaterMarkImageFilePath, &image.iwWaterMarkImage}},
            {14, IndexForm{&image.pubRenderMethod}},
            {15, TextForm{&image.tfImageWMAngle}},
            {16, TextForm{&image.tfImageScalePC}},
            {18, TextForm{&image.tfCenterCircularWidth}},
            {19, TextForm{&image.tfCenterCircularHeight}},
            {20, TextForm{&image.tfLineScreenAngle}},
            {21, StateForm{&image.cbPatternCheck}},
            {23, StateForm{&image.cbImageFromLib}},
            {24, IndexForm{&image.pubWatermarkFilterType}},
            {.position = 25,
             .form = StateForm{&image.cbWMSimulationMode},
             .use = RecordField::Use::OnlyWritten},
            {26, IndexForm{&image.pubWatermarkFilterSharpness}},
            {27, StateForm{&image.cbImageShadowCheck}},
            {28, IndexForm{&image.pubImageLookUp}},
            {29, IndexForm{&image.pubWatermarkTextEffectIntensity}},
            {30, StateForm{&image.cbCircularFadeOut}},
            {31, StateForm{&image.cbCircularInvertFadeOut}},
            {32, ColorForm{&image.cwImageShadowColor}},
            {33, IndexForm{&panels.vwApplyOn.pubPhotoOrientation}},
            {35, IndexForm{&files.pubFileType}},
            {36, IndexForm{&files.pubJPEGCompressionLevel}},
        }};
}

} // namespace brenvaldo::presets
