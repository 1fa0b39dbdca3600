// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The controls of the text watermark, and the chain of file-name actions of a watermark run.
struct TextWatermarkControls
{
    TextWatermarkControls();

    controls::TextView tvWaterMarkText;
    controls::PopUpButton pubPhotoProperties;
    controls::SegmentedControl scTxtAlign;

    controls::ComboBox cbFontList;
    controls::TextField tfFontSize;
    controls::ColorWell cwFontColor;
    controls::CheckBox cbFontBold;
    controls::CheckBox cbFontItalic;
    controls::PopUpButton pubTxtUnderline;
    controls::TextField tfKerning;
    controls::TextField tfLeading;
    controls::TextField tfFontTransparancy;

    controls::SegmentedControl scWaterMarkPos;
    controls::TextField tfXOffset;
    controls::TextField tfYOffset;
    controls::TextField tfWMAngle;
    controls::CheckBox cbTextPatternCheck;

    controls::CheckBox cbShadowCheck;
    controls::TextField tfTextShadowXOffset;
    controls::TextField tfTextShadowYOffset;
    controls::TextField tfTextShadowRadius;
    controls::ColorWell cwShadowColor;

    controls::CheckBox cbOutlineCheck;
    controls::PopUpButton pubOutlineThickness;
    controls::PopUpButton pubWatermarkTextEffect;
    controls::PopUpButton pubWatermarkTextEffectIntensity;
    controls::ColorWell cwEmbossColor;

    controls::TextView tvFileName;
    controls::PopUpButton pubFileNamePhotoProperties; ///< inserts tokens into `tvFileName`
    controls::ArrayController cActionsTWMArrayController;
    controls::TableView tvwTWMActions;

    [[nodiscard]] Layout textWatermarkPage();

private:
    void giveTags();
    void giveActions();

    Layout textRows();
    Layout fontRows();
    Layout placeRows();
    Layout shadowRows();
    Layout lookRows();
};

} // namespace brenvaldo::panels
