// SPDX-License-Identifier: GPL-3.0-or-later
#include "watermark_panel.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

WatermarkPanel::WatermarkPanel()
    : PanelView(u"vwWatermark"_s)
{
    tbvWatermarkType.addAction(u"cCollectionViewController.tabViewdidSelectTabViewItem"_s);
    setLayout(
        {{Pages{.tabs = &tbvWatermarkType, .pages = {textWatermarkPage(), imageWatermarkPage()}}}}
    );
}

} // namespace brenvaldo::panels
