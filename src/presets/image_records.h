// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

namespace brenvaldo::presets {

[[nodiscard]] PresetRecord tintRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord framingRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord roundingsRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord profileRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord rotationRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord resizeRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord cropRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord filterRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
