// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

namespace brenvaldo::presets {

[[nodiscard]] PresetRecord textWatermarkRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord imageWatermarkRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
