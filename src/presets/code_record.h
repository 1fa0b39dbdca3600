// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

namespace brenvaldo::presets {

/// What a preset keeps of the code panel.
[[nodiscard]] PresetRecord codeRecord(panels::Panels& panels);

/// The same of the function "batchArchive", which no control selects.
[[nodiscard]] PresetRecord archiveRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
