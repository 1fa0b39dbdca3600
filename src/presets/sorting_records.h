// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

/// \file
/// The records of sorting by hand and by criteria.

namespace brenvaldo::presets {

[[nodiscard]] PresetRecord manSortRecord(panels::Panels& panels);
[[nodiscard]] PresetRecord batchSortRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
