// SPDX-License-Identifier: GPL-3.0-or-later
#include "resize_panel.h"

namespace brenvaldo::panels {

ScaleMaxView::ScaleMaxView()
    : PanelView(QStringLiteral("dvVCUiScaleMaxView"))
    , pubScaleMaxType(
          QStringLiteral("pubScaleMaxType"),
          {QStringLiteral("Width"),
           QStringLiteral("Height"),
           QStringLiteral("Longest side"),
           QStringLiteral("Percentage")},
          2
      )
    , tfScaleMaxVal(QStringLiteral("tfScaleMaxVal"))
{
    setLayout({
        {Row{.label = QStringLiteral("Set the"), .fields = {{.control = &pubScaleMaxType}}}},
        {Row{
            .label = QStringLiteral("To"),
            .fields
            = {{.control = &tfScaleMaxVal,
                .unit = QStringLiteral("px or %"),
                .accessibleName = QStringLiteral("Size in pixels or percent")}},
            .hint = QStringLiteral("The other side follows, so nothing is distorted.")}},
    });
}

ScaleFixView::ScaleFixView()
    : PanelView(QStringLiteral("dvVCUiScaleFixView"))
    , tfScaleFixWidth(QStringLiteral("tfScaleFixWidth"))
    , tfScaleFixHeight(QStringLiteral("tfScaleFixHeight"))
    , btnFlipScaleFixWH(
          QStringLiteral("btnFlipScaleFixWH"),
          QStringLiteral("Swap width and height"),
          QStringLiteral("cCollectionViewController.hFlipScaleFixWH")
      )
    , cbScaleAspectRatio(
          QStringLiteral("cbScaleAspectRatio"),
          QStringLiteral("Keep proportions, cut the excess"),
          1
      )
{
    setLayout({
        {Row{
            .label = QStringLiteral("Width"),
            .fields = {{.control = &tfScaleFixWidth, .unit = QStringLiteral("px")}}}},
        {Row{
            .label = QStringLiteral("Height"),
            .fields = {{.control = &tfScaleFixHeight, .unit = QStringLiteral("px")}}}},
        {Row{.fields = {{.control = &btnFlipScaleFixWH}}}},
        {Row{
            .fields = {{.control = &cbScaleAspectRatio}},
            .hint = QStringLiteral("Without it the photo is stretched to the box.")}},
    });
}

ResizePanel::ResizePanel()
    : PanelView(QStringLiteral("vwResizePhotos"))
    , pubScaleType(
          QStringLiteral("pubScaleType"),
          {QStringLiteral("One side or percentage"), QStringLiteral("Fixed width and height")}
      )
    , pubResizeType(QStringLiteral("pubResizeType"), {QStringLiteral("Resize")})
    , dvVCUiResizeMainView(QStringLiteral("dvVCUiResizeMainView"))
{
    pubScaleType.addAction(QStringLiteral("cGUIcontrols.hChooseScaleTypeFunction"));
    dvVCUiResizeMainView.addView(dvVCUiScaleMaxView.name());
    setLayout({
        {Row{.label = QStringLiteral("Resize to"), .fields = {{.control = &pubScaleType}}}},
        {HolderPlace{.holder = &dvVCUiResizeMainView}},
    });
}

} // namespace brenvaldo::panels
