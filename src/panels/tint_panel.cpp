// SPDX-License-Identifier: GPL-3.0-or-later
#include "tint_panel.h"

#include "common_rows.h"
#include "field_roles.h"

namespace brenvaldo::panels {

TintPanel::TintPanel()
    : PanelView(u"vwAddTint"_qs)
{
    giveRoles();
    setLayout(joined({
        colourRows(),
        {{Heading{u"Size"_qs}}, {sizePages()}},
        {{Heading{u"Place"_qs}},
         {Row{.label = u"Position"_qs, .fields = {{.control = &scAddTintPosition}}}},
         {offsetRow(tfAddTintPosX, tfAddTintPosY, u"To the right, and up."_qs)}},
    }));
}

void TintPanel::giveRoles()
{
    cwAddTint.addAlias(u"ascNSColorWellAddTint"_qs);
    cwAddTint.addAction(u"cGUIcontrols.hAddTintColorWell"_qs);
    makeHexField(tfAddTintHexValue, 7);
    pubAddTintRenderMethod.addAction(u"cGUIcontrols.hAddTintRenderMethod"_qs);
    cbAddTintDuoTone.addAction(u"cGUIcontrols.hAddTintDuoTone"_qs);
    cbAddTintGradient.addAction(u"cGUIcontrols.hAddTintGradient"_qs);
    pubAddTintAngle.addAction(u"cGUIcontrols.hAddTintAngle"_qs);
    pubAddTintAngle.setEnabled(false);
    cbAddTintOrigSize.addAction(u"cGUIcontrols.hAddTintActivePhotoSize"_qs);
    tfAddTintWidth.setEnabled(false);
    tfAddTintHeight.setEnabled(false);
    pubAddTintPercentageOrient.addAction(u"cGUIcontrols.hAddTintPercWidth"_qs);
    scAddTintPosition.addAction(u"cGUIcontrols.hAddTintPosition"_qs);
    makeFunctionField(tfAddTintOpacity, 400);
    makeFunctionField(tfAddTintWidth, 401);
    makeFunctionField(tfAddTintHeight, 402);
    makeFunctionField(tfAddTintPercentage, 403);
    makeFunctionField(tfAddTintPixels, 404);
    makeFunctionField(tfAddTintPosX, 405);
    makeFunctionField(tfAddTintPosY, 406);
}

Layout TintPanel::colourRows()
{
    return {
        {colourRow(u"Colour"_qs, cwAddTint, tfAddTintHexValue)},
        {Row{.label = u"Opacity"_qs, .fields = {{.control = &tfAddTintOpacity, .unit = u"%"_qs}}}},
        {Row{.label = u"Blend"_qs, .fields = {{.control = &pubAddTintRenderMethod}}}},
        {Row{.fields = {{.control = &cbAddTintDuoTone}}}},
        {Row{
            .fields
            = {{.control = &cbAddTintGradient},
               {.control = &pubAddTintAngle, .accessibleName = u"Direction of the fade"_qs}}}},
    };
}

Pages TintPanel::sizePages()
{
    return {
        .tabs = &tbvFrameType,
        .pages = {
            {{Row{.fields = {{.control = &cbAddTintOrigSize}}}},
             {Row{
                 .label = u"Width"_qs, .fields = {{.control = &tfAddTintWidth, .unit = u"px"_qs}}}},
             {Row{
                 .label = u"Height"_qs,
                 .fields = {{.control = &tfAddTintHeight, .unit = u"px"_qs}}}}},
            {{Row{
                 .label = u"Part"_qs,
                 .fields = {{.control = &tfAddTintPercentage, .unit = u"%"_qs}}}},
             {Row{
                 .fields
                 = {{.control = &pubAddTintPercentageOrient,
                     .accessibleName = u"What the percentage counts"_qs}}}}},
            {{Row{
                .label = u"Left free"_qs,
                .fields = {{.control = &tfAddTintPixels, .unit = u"px"_qs}}}}},
        }};
}

} // namespace brenvaldo::panels
