// SPDX-License-Identifier: GPL-3.0-or-later
#include "framing_panel.h"

#include "common_rows.h"
#include "common_titles.h"
#include "field_roles.h"

namespace brenvaldo::panels {

FramingPanel::FramingPanel()
    : PanelView(u"vwFraming"_qs)
    , pubFramingType(u"pubFramingType"_qs, {u"Inside the photo"_qs, u"Around the photo"_qs})
    , tfFramingThickness(u"tfFramingThickness"_qs, u"20"_qs)
    , tfFramingInset(u"tfFramingInset"_qs, u"0"_qs)
    , myNSColorWellObjFraming(u"myNSColorWellObjFraming"_qs)
    , tfFramingHEXvalue(u"tfFramingHEXvalue"_qs, u"000000"_qs)
    , tfFramingOpacity(u"tfFramingOpacity"_qs, u"100"_qs)
    , pubFramingRenderMethod(u"pubFramingRenderMethod"_qs, frameBlendTitles())
    , cbFramingGradient(u"cbFramingGradient"_qs, u"Fade out"_qs)
    , pubFramingGradientAngle(u"pubFramingGradientAngle"_qs, gradientAngleTitles())
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
