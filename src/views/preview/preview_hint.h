// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panels/panels.h>
#include <workspace/list/photo_list.h>

namespace brenvaldo::views {

/// What the preview tells while it has no picture to show.
[[nodiscard]] QString previewHint(const panels::Panels& panels, const workspace::PhotoList& photos);

} // namespace brenvaldo::views
