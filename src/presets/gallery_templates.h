// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panels/gallery_panel.h>

namespace brenvaldo::presets {

/// Gives the gallery panel the values of one of its four templates, by its index; any other index
/// changes nothing.
///
/// The colour wells beside the hexadecimal fields keep their colours.
void applyGalleryTemplate(int index, panels::GalleryPanel& gallery);

} // namespace brenvaldo::presets
