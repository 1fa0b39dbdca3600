// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

/// \file
/// The records of renaming: one a tab.

namespace brenvaldo::presets {

[[nodiscard]] PresetRecord stripRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord replaceRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord prefixRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord postfixRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord numberingRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
