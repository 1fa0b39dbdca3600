// SPDX-License-Identifier: GPL-3.0-or-later
#include "roundings_panel.h"

#include "common_rows.h"
#include "field_roles.h"

namespace brenvaldo::panels {

RoundingsPanel::RoundingsPanel()
    : PanelView(u"vwRoundings"_qs)
{
    giveRoles();
    setLayout(joined({shapeRows(), borderRows()}));
}

void RoundingsPanel::giveRoles()
{
    pubRCType.addAction(u"cGUIcontrols.hAddRoundedCornersTypeCallsForPreview"_qs);
    cbRCBackgroundColor.addAction(u"cGUIcontrols.hAddRoundedCornersBackGroundCallsForPreview"_qs);
    cwRCBackgroundColor.addAlias(u"ascNSColorWellObjRCbackground"_qs);
    cwRCBackgroundColor.addAction(u"cGUIcontrols.hAddRCBackgroundColorWellSelected"_qs);
    makeHexField(tfRCBackgroundHexColor, 9);
    cbRCBorderColor.addAction(u"cGUIcontrols.hAddRoundedCornersBorderCallsForPreview"_qs);
    cwRCBorderColor.addAlias(u"ascNSColorWellObjRCborder"_qs);
    cwRCBorderColor.addAction(u"cGUIcontrols.hAddRCBorderColorWellSelected"_qs);
    makeHexField(tfRCBorderHexColor, 10);
    pubRCBorderPos.addAction(u"cGUIcontrols.hAddRoundedCornersPositionCallsForPreview"_qs);
    pubRCRenderMethod.addAction(u"cGUIcontrols.hAddRoundedCornersPositionCallsForPreview"_qs);
    cbRCGradient.addAction(u"cGUIcontrols.hAddRoundedCornersBorderCallsForPreview"_qs);
    pubRCGradientAngle.addAction(u"cGUIcontrols.hAddRoundedCornersPositionCallsForPreview"_qs);
    makeFunctionField(tfRCDiameter, 101);
    makeFunctionField(tfRCEnlargeCanvas, 102);
    makeFunctionField(tfRCBorderWidth, 103);
    makeFunctionField(tfRCOpacity, 104);
    const QList<controls::Control*> offAtFirst{
        &cwRCBackgroundColor,
        &tfRCBackgroundHexColor,
        &tfRCEnlargeCanvas,
        &cwRCBorderColor,
        &tfRCBorderHexColor,
        &tfRCBorderWidth,
        &pubRCBorderPos,
        &pubRCGradientAngle};
    for (controls::Control* control : offAtFirst)
        control->setEnabled(false);
}

Layout RoundingsPanel::shapeRows()
{
    return {
        {Row{.label = u"Shape"_qs, .fields = {{.control = &pubRCType}}}},
        {Row{
            .label = u"Corner radius"_qs,
            .fields = {{.control = &tfRCDiameter, .unit = u"px"_qs}}}},
        {Heading{u"Background"_qs}},
        {Row{.fields = {{.control = &cbRCBackgroundColor}}}},
        {colourRow(u"Colour"_qs, cwRCBackgroundColor, tfRCBackgroundHexColor)},
        {Row{.label = u"Margin"_qs, .fields = {{.control = &tfRCEnlargeCanvas, .unit = u"px"_qs}}}},
    };
}

Layout RoundingsPanel::borderRows()
{
    return {
        {Heading{u"Border"_qs}},
        {Row{.fields = {{.control = &cbRCBorderColor}}}},
        {colourRow(u"Colour"_qs, cwRCBorderColor, tfRCBorderHexColor)},
        {Row{
            .label = u"Width"_qs,
            .fields
            = {{.control = &tfRCBorderWidth, .unit = u"px"_qs},
               {.control = &pubRCBorderPos, .accessibleName = u"Place of the border"_qs}}}},
        {Row{.label = u"Opacity"_qs, .fields = {{.control = &tfRCOpacity, .unit = u"%"_qs}}}},
        {Row{.label = u"Blend"_qs, .fields = {{.control = &pubRCRenderMethod}}}},
        {Row{
            .fields
            = {{.control = &cbRCGradient},
               {.control = &pubRCGradientAngle, .accessibleName = u"Direction of the fade"_qs}}}},
    };
}

} // namespace brenvaldo::panels
