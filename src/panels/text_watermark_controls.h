// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The controls of the text watermark, and the chain of file-name actions of a watermark run.
struct TextWatermarkControls
{
    TextWatermarkControls();

    controls::TextView tvWaterMarkText{u"tvWaterMarkText"_s};
    /// In the order of the tokens that they insert.
    controls::PopUpButton pubPhotoProperties{
        u"pubPhotoProperties"_s,
        {
            u"Date taken"_s,
            u"User comment"_s,
            u"Width in pixels"_s,
            u"Height in pixels"_s,
            u"Resolution (dpi)"_s,
            u"File name"_s,
            u"Colour model"_s,
            u"Colour profile"_s,
            u"Bits per channel"_s,
            u"Creator"_s,
            u"Creator's job title"_s,
            u"Caption"_s,
            u"Copyright notice"_s,
            u"Headline"_s,
            u"Keywords"_s,
            u"Title"_s,
            u"Source"_s,
            u"Rights and usage terms"_s,
        }};
    controls::SegmentedControl scTxtAlign{u"scTxtAlign"_s, {u"Left"_s, u"Centre"_s, u"Right"_s}};

    controls::ComboBox cbFontList{u"cbFontList"_s, {}, -1};
    controls::TextField tfFontSize{u"tfFontSize"_s, u"72"_s};
    controls::ColorWell cwFontColor{u"cwFontColor"_s, {.red = 1, .green = 1, .blue = 1}};
    controls::CheckBox cbFontBold{u"cbFontBold"_s, u"Bold"_s};
    controls::CheckBox cbFontItalic{u"cbFontItalic"_s, u"Italic"_s};
    controls::PopUpButton pubTxtUnderline{
        u"pubTxtUnderline"_s,
        {
            u"No underline"_s,
            u"Thin underline"_s,
            u"Thick underline"_s,
        }};
    controls::TextField tfKerning{u"tfKerning"_s, u"0"_s};
    controls::TextField tfLeading{u"tfLeading"_s, u"0"_s};
    controls::TextField tfFontTransparancy{u"tfFontTransparancy"_s, u"100"_s};

    controls::SegmentedControl scWaterMarkPos{
        u"scWaterMarkPos"_s,
        positionGridTitles(),
        8,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfXOffset{u"tfXOffset"_s, u"0"_s};
    controls::TextField tfYOffset{u"tfYOffset"_s, u"0"_s};
    controls::TextField tfWMAngle{u"tfWMAngle"_s, u"0"_s};
    controls::CheckBox cbTextPatternCheck{
        u"cbTextPatternCheck"_s, u"Repeat over the whole photo"_s};

    controls::CheckBox cbShadowCheck{u"cbShadowCheck"_s, u"Cast a shadow"_s};
    controls::TextField tfTextShadowXOffset{u"tfTextShadowXOffset"_s, u"2"_s};
    controls::TextField tfTextShadowYOffset{u"tfTextShadowYOffset"_s, u"-2"_s};
    controls::TextField tfTextShadowRadius{u"tfTextShadowRadius"_s, u"4"_s};
    controls::ColorWell cwShadowColor{u"cwShadowColor"_s};

    controls::CheckBox cbOutlineCheck{u"cbOutlineCheck"_s, u"Outline only"_s};
    controls::PopUpButton pubOutlineThickness{
        u"pubOutlineThickness"_s, {u"Hairline"_s, u"Thin"_s, u"Medium"_s, u"Thick"_s, u"Heavy"_s}};
    controls::PopUpButton pubWatermarkTextEffect{
        u"pubWatermarkTextEffect"_s,
        {
            u"Plain colour"_s,
            u"Relief 1"_s,
            u"Relief 2"_s,
            u"Relief 3"_s,
            u"Relief 4"_s,
            u"Relief 5"_s,
            u"Relief in a colour"_s,
            u"Filled with the photo"_s,
            u"Filled with the photo in black and white"_s,
            u"Relief 6"_s,
        }};
    controls::PopUpButton pubWatermarkTextEffectIntensity{
        u"pubWatermarkTextEffectIntensity"_s, {u"Light"_s, u"Medium"_s, u"Strong"_s}, 1};
    controls::ColorWell cwEmbossColor{u"cwEmbossColor"_s, {.red = 0.8, .green = 0.8, .blue = 0.8}};

    controls::TextView tvFileName{u"tvFileName"_s};
    /// Inserts tokens into `tvFileName`.
    controls::PopUpButton pubFileNamePhotoProperties{
        u"pubFileNamePhotoProperties"_s, {u"Width in pixels"_s, u"Height in pixels"_s}};
    controls::ArrayController cActionsTWMArrayController{
        u"cActionsTWMArrayController"_s, {u"cActions"_s}};
    controls::TableView tvwTWMActions{u"tvwTWMActions"_s, cActionsTWMArrayController};
    controls::Button btnImportTWMCActions{
        u"btnImportTWMCActions"_s, u"Add C-Action\u2026"_s, u"cGUIcontrols.hImportTWMCActions"_s};
    controls::Button btnRemoveTWMCActions{
        u"btnRemoveTWMCActions"_s, u"Remove"_s, u"cGUIcontrols.hRemoveTWMCActions"_s};

    [[nodiscard]] Layout textWatermarkPage();

private:
    void giveTags();
    void giveActions();

    Layout textRows();
    Layout fontRows();
    Layout placeRows();
    Layout shadowRows();
    Layout lookRows();
    Layout actionRows();
};

} // namespace brenvaldo::panels
