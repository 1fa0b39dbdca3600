// SPDX-License-Identifier: GPL-3.0-or-later
#include "rotate_panel.h"

#include "common_rows.h"
#include "field_roles.h"

namespace brenvaldo::panels {

RotatePanel::RotatePanel()
    : PanelView(u"vwRotatePhotos"_qs)
{
    makeFunctionField(tfRotationAngle, 81);
    cbRotationBackgroundColor.addAction(u"cGUIcontrols.hAddRotationBackGroundCallsForPreview"_qs);
    cwRotationBackgroundColor.addAction(u"cGUIcontrols.hAddRotationBackgroundColorWellSelected"_qs);
    makeHexField(tfRotationBackgroundHexColor, 23);
    makeFunctionField(tfRotationEnlargeCanvas, 82);
    cwRotationBackgroundColor.setEnabled(false);
    tfRotationBackgroundHexColor.setEnabled(false);
    tfRotationEnlargeCanvas.setEnabled(false);
    setLayout({
        {Row{
            .label = u"Angle"_qs,
            .fields = {{.control = &tfRotationAngle, .unit = u"\u00b0"_qs}},
            .hint = u"Positive angles turn to the left."_qs}},
        {Row{.fields = {{.control = &cbRotationBackgroundColor}}}},
        {colourRow(u"Colour"_qs, cwRotationBackgroundColor, tfRotationBackgroundHexColor)},
        {Row{
            .label = u"Margin"_qs,
            .fields = {{.control = &tfRotationEnlargeCanvas, .unit = u"px"_qs}}}},
    });
}

} // namespace brenvaldo::panels
