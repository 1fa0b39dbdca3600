// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The controls of the text watermark, and the chain of file-name actions of a watermark run.
struct TextWatermarkControls
{
    TextWatermarkControls();

    controls::TextView tvWaterMarkText{u"tvWaterMarkText"_qs};
    /// In the order of the tokens that they insert.
    controls::PopUpButton pubPhotoProperties{
        u"pubPhotoProperties"_qs,
        {
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
        }};
    controls::SegmentedControl scTxtAlign{
        u"scTxtAlign"_qs, {u"Left"_qs, u"Centre"_qs, u"Right"_qs}};

    controls::ComboBox cbFontList{u"cbFontList"_qs, {}, -1};
    controls::TextField tfFontSize{u"tfFontSize"_qs, u"72"_qs};
    controls::ColorWell cwFontColor{u"cwFontColor"_qs, {.red = 1, .green = 1, .blue = 1}};
    controls::CheckBox cbFontBold{u"cbFontBold"_qs, u"Bold"_qs};
    controls::CheckBox cbFontItalic{u"cbFontItalic"_qs, u"Italic"_qs};
    controls::PopUpButton pubTxtUnderline{
        u"pubTxtUnderline"_qs,
        {
            u"No underline"_qs,
            u"Thin underline"_qs,
            u"Thick underline"_qs,
        }};
    controls::TextField tfKerning{u"tfKerning"_qs, u"0"_qs};
    controls::TextField tfLeading{u"tfLeading"_qs, u"0"_qs};
    controls::TextField tfFontTransparancy{u"tfFontTransparancy"_qs, u"100"_qs};

    controls::SegmentedControl scWaterMarkPos{
        u"scWaterMarkPos"_qs,
        positionGridTitles(),
        8,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfXOffset{u"tfXOffset"_qs, u"0"_qs};
    controls::TextField tfYOffset{u"tfYOffset"_qs, u"0"_qs};
    controls::TextField tfWMAngle{u"tfWMAngle"_qs, u"0"_qs};
    controls::CheckBox cbTextPatternCheck{
        u"cbTextPatternCheck"_qs, u"Repeat over the whole photo"_qs};

    controls::CheckBox cbShadowCheck{u"cbShadowCheck"_qs, u"Cast a shadow"_qs};
    controls::TextField tfTextShadowXOffset{u"tfTextShadowXOffset"_qs, u"2"_qs};
    controls::TextField tfTextShadowYOffset{u"tfTextShadowYOffset"_qs, u"-2"_qs};
    controls::TextField tfTextShadowRadius{u"tfTextShadowRadius"_qs, u"4"_qs};
    controls::ColorWell cwShadowColor{u"cwShadowColor"_qs};

    controls::CheckBox cbOutlineCheck{u"cbOutlineCheck"_qs, u"Outline only"_qs};
    controls::PopUpButton pubOutlineThickness{
        u"pubOutlineThickness"_qs,
        {u"Hairline"_qs, u"Thin"_qs, u"Medium"_qs, u"Thick"_qs, u"Heavy"_qs}};
    controls::PopUpButton pubWatermarkTextEffect{
        u"pubWatermarkTextEffect"_qs,
        {
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
        }};
    controls::PopUpButton pubWatermarkTextEffectIntensity{
        u"pubWatermarkTextEffectIntensity"_qs, {u"Light"_qs, u"Medium"_qs, u"Strong"_qs}, 1};
    controls::ColorWell cwEmbossColor{u"cwEmbossColor"_qs, {.red = 0.8, .green = 0.8, .blue = 0.8}};

    controls::TextView tvFileName{u"tvFileName"_qs};
    /// Inserts tokens into `tvFileName`.
    controls::PopUpButton pubFileNamePhotoProperties{
        u"pubFileNamePhotoProperties"_qs, {u"Width in pixels"_qs, u"Height in pixels"_qs}};
    controls::ArrayController cActionsTWMArrayController{
        u"cActionsTWMArrayController"_qs, {u"cActions"_qs}};
    controls::TableView tvwTWMActions{u"tvwTWMActions"_qs, cActionsTWMArrayController};

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
