// SPDX-License-Identifier: GPL-3.0-or-later
#include "tint_panel.h"

#include "common_rows.h"
#include "field_roles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

TintPanel::TintPanel()
    : PanelView(u"vwAddTint"_s)
{
    giveRoles();
    setLayout(joined({
        colorRows(),
        {{Heading{u"Size"_s}}, {sizePages()}},
        {{Heading{u"Place"_s}},
         {Row{.label = u"Position"_s, .fields = {{.control = &scAddTintPosition}}}},
         {offsetRow(tfAddTintPosX, tfAddTintPosY, u"To the right, and up."_s)}},
    }));
}

void TintPanel::giveRoles()
{
    cwAddTint.addAlias(u"ascNSColorWellAddTint"_s);
    cwAddTint.addAction(u"cGUIcontrols.hAddTintColorWell"_s);
    makeHexField(tfAddTintHexValue, 7);
    pubAddTintRenderMethod.addAction(u"cGUIcontrols.hAddTintRenderMethod"_s);
    cbAddTintDuoTone.addAction(u"cGUIcontrols.hAddTintDuoTone"_s);
    cbAddTintGradient.addAction(u"cGUIcontrols.hAddTintGradient"_s);
    pubAddTintAngle.addAction(u"cGUIcontrols.hAddTintAngle"_s);
    pubAddTintAngle.setEnabled(false);
    cbAddTintOrigSize.addAction(u"cGUIcontrols.hAddTintActivePhotoSize"_s);
    tfAddTintWidth.setEnabled(false);
    tfAddTintHeight.setEnabled(false);
    pubAddTintPercentageOrient.addAction(u"cGUIcontrols.hAddTintPercWidth"_s);
    scAddTintPosition.addAction(u"cGUIcontrols.hAddTintPosition"_s);
    makeFunctionField(tfAddTintOpacity, 400);
    makeFunctionField(tfAddTintWidth, 401);
    makeFunctionField(tfAddTintHeight, 402);
    makeFunctionField(tfAddTintPercentage, 403);
    makeFunctionField(tfAddTintPixels, 404);
    makeFunctionField(tfAddTintPosX, 405);
    makeFunctionField(tfAddTintPosY, 406);
}

Layout TintPanel::colorRows()
{
    return {
        {colorRow(u"Colour"_s, cwAddTint, tfAddTintHexValue)},
        {Row{.label = u"Opacity"_s, .fields = {{.control = &tfAddTintOpacity, .unit = u"%"_s}}}},
        {Row{.label = u"Blend"_s, .fields = {{.control = &pubAddTintRenderMethod}}}},
        {Row{.fields = {{.control = &cbAddTintDuoTone}}}},
        {Row{
            .fields
            = {{.control = &cbAddTintGradient},
               {.control = &pubAddTintAngle, .accessibleName = u"Direction of the fade"_s}}}},
    };
}

Pages TintPanel::sizePages()
{
    return {
        .tabs = &tbvFrameType,
        .pages = {
            {{Row{.fields = {{.control = &cbAddTintOrigSize}}}},
             {Row{.label = u"Width"_s, .fields = {{.control = &tfAddTintWidth, .unit = u"px"_s}}}},
             {Row{
                 .label = u"Height"_s,
                 .fields = {{.control = &tfAddTintHeight, .unit = u"px"_s}}}}},
            {{Row{
                 .label = u"Part"_s,
                 .fields = {{.control = &tfAddTintPercentage, .unit = u"%"_s}}}},
             {Row{
                 .fields
                 = {{.control = &pubAddTintPercentageOrient,
                     .accessibleName = u"What the percentage counts"_s}}}}},
            {{Row{
                .label = u"Left free"_s,
                .fields = {{.control = &tfAddTintPixels, .unit = u"px"_s}}}}},
        }};
}

} // namespace brenvaldo::panels
