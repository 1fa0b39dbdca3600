// SPDX-License-Identifier: GPL-3.0-or-later
#include "resize_panel.h"

namespace brenvaldo::panels {

ScaleMaxView::ScaleMaxView()
    : PanelView(u"dvVCUiScaleMaxView"_qs)
    , pubScaleMaxType(
          u"pubScaleMaxType"_qs,
          {u"Width"_qs, u"Height"_qs, u"Longest side"_qs, u"Percentage"_qs},
          2
      )
    , tfScaleMaxVal(u"tfScaleMaxVal"_qs)
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
    , tfScaleFixWidth(u"tfScaleFixWidth"_qs)
    , tfScaleFixHeight(u"tfScaleFixHeight"_qs)
    , btnFlipScaleFixWH(
          u"btnFlipScaleFixWH"_qs,
          u"Swap width and height"_qs,
          u"cCollectionViewController.hFlipScaleFixWH"_qs
      )
    , cbScaleAspectRatio(u"cbScaleAspectRatio"_qs, u"Keep proportions, cut the excess"_qs, 1)
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
    , pubScaleType(u"pubScaleType"_qs, {u"One side or percentage"_qs, u"Fixed width and height"_qs})
    , pubResizeType(u"pubResizeType"_qs, {u"Resize"_qs})
    , dvVCUiResizeMainView(u"dvVCUiResizeMainView"_qs)
{
    pubScaleType.addAction(u"cGUIcontrols.hChooseScaleTypeFunction"_qs);
    dvVCUiResizeMainView.addView(dvVCUiScaleMaxView.name());
    setLayout({
        {Row{.label = u"Resize to"_qs, .fields = {{.control = &pubScaleType}}}},
        {HolderPlace{.holder = &dvVCUiResizeMainView}},
    });
}

} // namespace brenvaldo::panels
