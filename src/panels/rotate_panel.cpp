// SPDX-License-Identifier: GPL-3.0-or-later
#include "rotate_panel.h"

#include "common_rows.h"
#include "field_roles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

RotatePanel::RotatePanel()
    : PanelView(u"vwRotatePhotos"_s)
{
    makeFunctionField(tfRotationAngle, 81);
    cbRotationBackgroundColor.addAction(u"cGUIcontrols.hAddRotationBackGroundCallsForPreview"_s);
    cwRotationBackgroundColor.addAction(u"cGUIcontrols.hAddRotationBackgroundColorWellSelected"_s);
    makeHexField(tfRotationBackgroundHexColor, 23);
    makeFunctionField(tfRotationEnlargeCanvas, 82);
    cwRotationBackgroundColor.setEnabled(false);
    tfRotationBackgroundHexColor.setEnabled(false);
    tfRotationEnlargeCanvas.setEnabled(false);
    setLayout({
        {Row{
            .label = u"Angle"_s,
            .fields = {{.control = &tfRotationAngle, .unit = u"\u00b0"_s}},
            .hint = u"Positive angles turn to the left."_s}},
        {Row{.fields = {{.control = &cbRotationBackgroundColor}}}},
        {colorRow(u"Colour"_s, cwRotationBackgroundColor, tfRotationBackgroundHexColor)},
        {Row{
            .label = u"Margin"_s,
            .fields = {{.control = &tfRotationEnlargeCanvas, .unit = u"px"_s}}}},
    });
}

} // namespace brenvaldo::panels
