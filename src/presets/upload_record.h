// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

namespace brenvaldo::presets {

/// What a preset keeps of the upload into the photo library; the album is not among it.
[[nodiscard]] PresetRecord uploadRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
