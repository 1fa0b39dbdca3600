// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subsystem_links.h"

#include <imaging/dv_image_handling.h>

namespace brenvaldo::workspace {

/// Ties the functions that are built to their operations, one line a function.
[[nodiscard]] SubsystemLinks subsystemLinks(imaging::DVImageHandling& imageHandling);

} // namespace brenvaldo::workspace
