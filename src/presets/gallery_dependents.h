// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "load_effects.h"

#include <panels/gallery_panel.h>

/// \file
/// Controls of the gallery panel that a check box of it enables and disables.

namespace brenvaldo::presets {

/// What `btShowTitle` enables.
[[nodiscard]] ControlList headingDependents(panels::GalleryPanel& gallery);

/// What `btShowFileName` enables.
[[nodiscard]] ControlList fileNameDependents(panels::GalleryPanel& gallery);

/// What `btShowEXIFucd` enables; the colour of the file names is among it.
[[nodiscard]] ControlList captionDependents(panels::GalleryPanel& gallery);

} // namespace brenvaldo::presets
