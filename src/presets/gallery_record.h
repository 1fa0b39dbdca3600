// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

namespace brenvaldo::presets {

/// What a preset keeps of the gallery panel.
///
/// Coming back, the size of the heading takes the stored index of its weight, and the box of the
/// captions stays as it is.
[[nodiscard]] PresetRecord galleryRecord(panels::Panels& panels);

} // namespace brenvaldo::presets
