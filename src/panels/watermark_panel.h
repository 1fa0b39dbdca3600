// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_watermark_controls.h"
#include "text_watermark_controls.h"

namespace brenvaldo::panels {

/// Watermarks: a tab for text and a tab for an image.
struct WatermarkPanel : PanelView, TextWatermarkControls, ImageWatermarkControls
{
    WatermarkPanel();

    controls::TabView tbvWatermarkType{
        u"tbvWatermarkType"_qs,
        {{.identifier = u"1"_qs, .label = u"Text"_qs},
         {.identifier = u"2"_qs, .label = u"Image"_qs}}};
};

} // namespace brenvaldo::panels
