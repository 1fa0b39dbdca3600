// SPDX-License-Identifier: GPL-3.0-or-later
#include "framing_panel.h"

#include "common_rows.h"
#include "field_roles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

FramingPanel::FramingPanel()
    : PanelView(u"vwFraming"_s)
{
    giveRoles();
    setLayout({
        {Row{.label = u"Frame"_s, .fields = {{.control = &pubFramingType}}}},
        {Row{
            .label = u"Thickness"_s,
            .fields = {{.control = &tfFramingThickness, .unit = u"px"_s}}}},
        {Row{
            .label = u"Inset"_s,
            .fields = {{.control = &tfFramingInset, .unit = u"px"_s}},
            .hint = u"Distance of an inside frame from the edge."_s}},
        {colorRow(u"Colour"_s, myNSColorWellObjFraming, tfFramingHEXvalue)},
        {Row{.label = u"Opacity"_s, .fields = {{.control = &tfFramingOpacity, .unit = u"%"_s}}}},
        {Row{.label = u"Blend"_s, .fields = {{.control = &pubFramingRenderMethod}}}},
        {Row{
            .fields
            = {{.control = &cbFramingGradient},
               {.control = &pubFramingGradientAngle,
                .accessibleName = u"Direction of the fade"_s}}}},
    });
}

void FramingPanel::giveRoles()
{
    pubFramingType.addAction(u"cGUIcontrols.hAddFramingPosition"_s);
    myNSColorWellObjFraming.addAction(u"cGUIcontrols.hAddFrameColorWellSelected"_s);
    makeHexField(tfFramingHEXvalue, 8);
    pubFramingRenderMethod.addAction(u"cGUIcontrols.hAddFrameRenderMethodCallsForPreview"_s);
    cbFramingGradient.addAction(u"cGUIcontrols.hAddFramePositionCallsForPreview"_s);
    pubFramingGradientAngle.addAction(u"cGUIcontrols.hAddFramePositionCallsForPreview"_s);
    makeFunctionField(tfFramingThickness, 151);
    makeFunctionField(tfFramingInset, 152);
    makeFunctionField(tfFramingOpacity, 153);
}

} // namespace brenvaldo::panels
