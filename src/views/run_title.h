// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panels/panels.h>
#include <workspace/photo_list.h>

namespace brenvaldo::views {

/// Number of photos that the process button would take with the panels as they stand.
[[nodiscard]] int photosOfRun(const panels::Panels& panels, const workspace::PhotoList& photos);

/// "Process 16 photos"; "Process" when a run takes none.
[[nodiscard]] QString runTitle(int photos);

} // namespace brenvaldo::views
