// SPDX-License-Identifier: GPL-3.0-or-later
#include "watermark_panel.h"

namespace brenvaldo::panels {

WatermarkPanel::WatermarkPanel()
    : PanelView(u"vwWatermark"_qs)
{
    tbvWatermarkType.addAction(u"cCollectionViewController.tabViewdidSelectTabViewItem"_qs);
    setLayout(
        {{Pages{.tabs = &tbvWatermarkType, .pages = {textWatermarkPage(), imageWatermarkPage()}}}}
    );
}

} // namespace brenvaldo::panels
