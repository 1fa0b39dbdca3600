// SPDX-License-Identifier: GPL-3.0-or-later
#include "resize_settings.h"

#include <panels/resize_panel.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::imaging {

MaximumSettings readSettings(const panels::ScaleMaxView& view)
{
    return {
        .value = platform::wrapped32(view.tfScaleMaxVal.integerValue()),
        .type = view.pubScaleMaxType.indexOfSelectedItem()};
}

BoxSettings readSettings(const panels::ScaleFixView& view)
{
    return {
        .box
        = {.width = platform::wrapped32(view.tfScaleFixWidth.integerValue()),
           .height = platform::wrapped32(view.tfScaleFixHeight.integerValue())},
        .aspectState = view.cbScaleAspectRatio.state()};
}

} // namespace brenvaldo::imaging
