// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

namespace brenvaldo::presets {

/// What a preset keeps of the comment and the IPTC fields; those of contacts are left out.
[[nodiscard]] PresetRecord exifRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
