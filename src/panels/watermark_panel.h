// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_watermark_controls.h"
#include "text_watermark_controls.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Watermarks: a tab for text and a tab for an image.
struct WatermarkPanel : PanelView, TextWatermarkControls, ImageWatermarkControls
{
    WatermarkPanel();

    controls::TabView tbvWatermarkType{
        u"tbvWatermarkType"_s,
        {{.identifier = u"1"_s, .label = u"Text"_s}, {.identifier = u"2"_s, .label = u"Image"_s}}};
};

} // namespace brenvaldo::panels
