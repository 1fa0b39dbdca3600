// SPDX-License-Identifier: GPL-3.0-or-later
#include "watermark_panel.h"

namespace brenvaldo::panels {

WatermarkPanel::WatermarkPanel()
    : PanelView(QStringLiteral("vwWatermark"))
    , tbvWatermarkType(
          QStringLiteral("tbvWatermarkType"),
          {{.identifier = QStringLiteral("1"), .label = QStringLiteral("Text")},
           {.identifier = QStringLiteral("2"), .label = QStringLiteral("Image")}}
      )
{
    tbvWatermarkType.addAction(
        QStringLiteral("cCollectionViewController.tabViewdidSelectTabViewItem")
    );
    setLayout(
        {{Pages{.tabs = &tbvWatermarkType, .pages = {textWatermarkPage(), imageWatermarkPage()}}}}
    );
}

} // namespace brenvaldo::panels
