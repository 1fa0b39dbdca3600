// SPDX-License-Identifier: GPL-3.0-or-later
#include "framing_panel.h"

#include "common_rows.h"
#include "field_roles.h"

namespace brenvaldo::panels {

FramingPanel::FramingPanel()
    : PanelView(u"vwFraming"_qs)
{
    giveRoles();
    setLayout({
        {Row{.label = u"Frame"_qs, .fields = {{.control = &pubFramingType}}}},
        {Row{
            .label = u"Thickness"_qs,
            .fields = {{.control = &tfFramingThickness, .unit = u"px"_qs}}}},
        {Row{
            .label = u"Inset"_qs,
            .fields = {{.control = &tfFramingInset, .unit = u"px"_qs}},
            .hint = u"Distance of an inside frame from the edge."_qs}},
        {colourRow(u"Colour"_qs, myNSColorWellObjFraming, tfFramingHEXvalue)},
        {Row{.label = u"Opacity"_qs, .fields = {{.control = &tfFramingOpacity, .unit = u"%"_qs}}}},
        {Row{.label = u"Blend"_qs, .fields = {{.control = &pubFramingRenderMethod}}}},
        {Row{
            .fields
            = {{.control = &cbFramingGradient},
               {.control = &pubFramingGradientAngle,
                .accessibleName = u"Direction of the fade"_qs}}}},
    });
}

void FramingPanel::giveRoles()
{
    pubFramingType.addAction(u"cGUIcontrols.hAddFramingPosition"_qs);
    myNSColorWellObjFraming.addAction(u"cGUIcontrols.hAddFrameColorWellSelected"_qs);
    makeHexField(tfFramingHEXvalue, 8);
    pubFramingRenderMethod.addAction(u"cGUIcontrols.hAddFrameRenderMethodCallsForPreview"_qs);
    cbFramingGradient.addAction(u"cGUIcontrols.hAddFramePositionCallsForPreview"_qs);
    pubFramingGradientAngle.addAction(u"cGUIcontrols.hAddFramePositionCallsForPreview"_qs);
    makeFunctionField(tfFramingThickness, 151);
    makeFunctionField(tfFramingInset, 152);
    makeFunctionField(tfFramingOpacity, 153);
}

} // namespace brenvaldo::panels
