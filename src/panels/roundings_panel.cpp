// SPDX-License-Identifier: GPL-3.0-or-later
#include "roundings_panel.h"

#include "common_rows.h"
#include "field_roles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

RoundingsPanel::RoundingsPanel()
    : PanelView(u"vwRoundings"_s)
{
    giveRoles();
    setLayout(joined({shapeRows(), borderRows()}));
}

void RoundingsPanel::giveRoles()
{
    pubRCType.addAction(u"cGUIcontrols.hAddRoundedCornersTypeCallsForPreview"_s);
    cbRCBackgroundColor.addAction(u"cGUIcontrols.hAddRoundedCornersBackGroundCallsForPreview"_s);
    cwRCBackgroundColor.addAlias(u"ascNSColorWellObjRCbackground"_s);
    cwRCBackgroundColor.addAction(u"cGUIcontrols.hAddRCBackgroundColorWellSelected"_s);
    makeHexField(tfRCBackgroundHexColor, 9);
    cbRCBorderColor.addAction(u"cGUIcontrols.hAddRoundedCornersBorderCallsForPreview"_s);
    cwRCBorderColor.addAlias(u"ascNSColorWellObjRCborder"_s);
    cwRCBorderColor.addAction(u"cGUIcontrols.hAddRCBorderColorWellSelected"_s);
    makeHexField(tfRCBorderHexColor, 10);
    pubRCBorderPos.addAction(u"cGUIcontrols.hAddRoundedCornersPositionCallsForPreview"_s);
    pubRCRenderMethod.addAction(u"cGUIcontrols.hAddRoundedCornersPositionCallsForPreview"_s);
    cbRCGradient.addAction(u"cGUIcontrols.hAddRoundedCornersBorderCallsForPreview"_s);
    pubRCGradientAngle.addAction(u"cGUIcontrols.hAddRoundedCornersPositionCallsForPreview"_s);
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
        {Row{.label = u"Shape"_s, .fields = {{.control = &pubRCType}}}},
        {Row{.label = u"Corner radius"_s, .fields = {{.control = &tfRCDiameter, .unit = u"px"_s}}}},
        {Heading{u"Background"_s}},
        {Row{.fields = {{.control = &cbRCBackgroundColor}}}},
        {colorRow(u"Colour"_s, cwRCBackgroundColor, tfRCBackgroundHexColor)},
        {Row{.label = u"Margin"_s, .fields = {{.control = &tfRCEnlargeCanvas, .unit = u"px"_s}}}},
    };
}

Layout RoundingsPanel::borderRows()
{
    return {
        {Heading{u"Border"_s}},
        {Row{.fields = {{.control = &cbRCBorderColor}}}},
        {colorRow(u"Colour"_s, cwRCBorderColor, tfRCBorderHexColor)},
        {Row{
            .label = u"Width"_s,
            .fields
            = {{.control = &tfRCBorderWidth, .unit = u"px"_s},
               {.control = &pubRCBorderPos, .accessibleName = u"Place of the border"_s}}}},
        {Row{.label = u"Opacity"_s, .fields = {{.control = &tfRCOpacity, .unit = u"%"_s}}}},
        {Row{.label = u"Blend"_s, .fields = {{.control = &pubRCRenderMethod}}}},
        {Row{
            .fields
            = {{.control = &cbRCGradient},
               {.control = &pubRCGradientAngle, .accessibleName = u"Direction of the fade"_s}}}},
    };
}

} // namespace brenvaldo::panels
