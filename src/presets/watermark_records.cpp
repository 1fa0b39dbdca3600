// SPDX-License-Identifier: GPL-3.0-or-later
#include "watermark_records.h"

#include "action_chain.h"
#include "load_effects.h"

namespace brenvaldo::presets {

namespace {

/// An empty chain is kept as the empty text, and a load of that leaves the list as it is.
OtherForm actionChainForm(controls::ArrayController& actions)
{
    return {
        .stored =
            [&actions] {
                const QString chain = chainText(actions);
                return chain == noActions() ? QStringLiteral("") : chain;
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
    constexpr int coloredRelief = 6;

    auto& text = panels.vwWatermark;
    auto& files = panels.vwFileType;
    return {
        .process = QStringLiteral("TextWM"),
        .action = QStringLiteral("Watermark"),
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

} // namespace brenvaldo::presets
