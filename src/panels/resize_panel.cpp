// SPDX-License-Identifier: GPL-3.0-or-later
#include "resize_panel.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

ScaleMaxView::ScaleMaxView()
    : PanelView(u"dvVCUiScaleMaxView"_s)
{
    setLayout({
        {Row{.label = u"Set the"_s, .fields = {{.control = &pubScaleMaxType}}}},
        {Row{
            .label = u"To"_s,
            .fields
            = {{.control = &tfScaleMaxVal,
                .unit = u"px or %"_s,
                .accessibleName = u"Size in pixels or percent"_s}},
            .hint = u"The other side follows, so nothing is distorted."_s}},
    });
}

ScaleFixView::ScaleFixView()
    : PanelView(u"dvVCUiScaleFixView"_s)
{
    setLayout({
        {Row{.label = u"Width"_s, .fields = {{.control = &tfScaleFixWidth, .unit = u"px"_s}}}},
        {Row{.label = u"Height"_s, .fields = {{.control = &tfScaleFixHeight, .unit = u"px"_s}}}},
        {Row{.fields = {{.control = &btnFlipScaleFixWH}}}},
        {Row{
            .fields = {{.control = &cbScaleAspectRatio}},
            .hint = u"Without it the photo is stretched to the box."_s}},
    });
}

ResizePanel::ResizePanel()
    : PanelView(u"vwResizePhotos"_s)
{
    pubScaleType.addAction(u"cGUIcontrols.hChooseScaleTypeFunction"_s);
    dvVCUiResizeMainView.addView(dvVCUiScaleMaxView.name());
    setLayout({
        {Row{.label = u"Resize to"_s, .fields = {{.control = &pubScaleType}}}},
        {HolderPlace{.holder = &dvVCUiResizeMainView}},
    });
}

} // namespace brenvaldo::panels
