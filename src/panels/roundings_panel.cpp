// SPDX-License-Identifier: GPL-3.0-or-later
#include "roundings_panel.h"

#include "common_rows.h"
#include "common_titles.h"
#include "field_roles.h"

namespace brenvaldo::panels {

RoundingsPanel::RoundingsPanel()
    : PanelView(u"vwRoundings"_qs)
    , pubRCType(u"pubRCType"_qs, {u"Rounded rectangle"_qs, u"Circle"_qs, u"Ellipse"_qs})
    , tfRCDiameter(u"tfRCDiameter"_qs, u"50"_qs)
    , cbRCBackgroundColor(u"cbRCBackgroundColor"_qs, u"Coloured background"_qs)
    , cwRCBackgroundColor(u"cwRCBackgroundColor"_qs)
    , tfRCBackgroundHexColor(u"tfRCBackgroundHexColor"_qs, u"000000"_qs)
    , tfRCEnlargeCanvas(u"tfRCEnlargeCanvas"_qs, u"0"_qs)
    , cbRCBorderColor(u"cbRCBorderColor"_qs, u"Border"_qs)
    , cwRCBorderColor(u"cwRCBorderColor"_qs)
    , tfRCBorderHexColor(u"tfRCBorderHexColor"_qs, u"000000"_qs)
    , tfRCBorderWidth(u"tfRCBorderWidth"_qs, u"10"_qs)
    , pubRCBorderPos(u"pubRCBorderPos"_qs, {u"On the photo"_qs, u"Around the photo"_qs})
    , tfRCOpacity(u"tfRCOpacity"_qs, u"100"_qs)
    , pubRCRenderMethod(u"pubRCRenderMethod"_qs, frameBlendTitles())
    , cbRCGradient(u"cbRCGradient"_qs, u"Fade out"_qs)
    , pubRCGradientAngle(u"pubRCGradientAngle"_qs, gradientAngleTitles())
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
