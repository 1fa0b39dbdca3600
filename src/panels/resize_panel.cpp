// SPDX-License-Identifier: GPL-3.0-or-later
#include "resize_panel.h"

namespace brenvaldo::panels {

ScaleMaxView::ScaleMaxView()
    : PanelView(u"dvVCUiScaleMaxView"_qs)
{
    setLayout({
        {Row{.label = u"Set the"_qs, .fields = {{.control = &pubScaleMaxType}}}},
        {Row{
            .label = u"To"_qs,
            .fields
            = {{.control = &tfScaleMaxVal,
                .unit = u"px or %"_qs,
                .accessibleName = u"Size in pixels or percent"_qs}},
            .hint = u"The other side follows, so nothing is distorted."_qs}},
    });
}

ScaleFixView::ScaleFixView()
    : PanelView(u"dvVCUiScaleFixView"_qs)
{
    setLayout({
        {Row{.label = u"Width"_qs, .fields = {{.control = &tfScaleFixWidth, .unit = u"px"_qs}}}},
        {Row{.label = u"Height"_qs, .fields = {{.control = &tfScaleFixHeight, .unit = u"px"_qs}}}},
        {Row{.fields = {{.control = &btnFlipScaleFixWH}}}},
        {Row{
            .fields = {{.control = &cbScaleAspectRatio}},
            .hint = u"Without it the photo is stretched to the box."_qs}},
    });
}

ResizePanel::ResizePanel()
    : PanelView(u"vwResizePhotos"_qs)
{
    pubScaleType.addAction(u"cGUIcontrols.hChooseScaleTypeFunction"_qs);
    dvVCUiResizeMainView.addView(dvVCUiScaleMaxView.name());
    setLayout({
        {Row{.label = u"Resize to"_qs, .fields = {{.control = &pubScaleType}}}},
        {HolderPlace{.holder = &dvVCUiResizeMainView}},
    });
}

} // namespace brenvaldo::panels
