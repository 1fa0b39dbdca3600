// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

namespace brenvaldo::platform::filters {

/// The picture as on black-and-white film with exaggerated contrast; its depth, profile and alpha
/// stay. A picture of inks becomes one of 8-bit sRGB.
///
/// A red-leaning grey mix, a gamma, a smoothstep S-curve and crushed ends, on encoded straight
/// colour.
[[nodiscard]] graphics::Image photoEffectNoir(const graphics::Image& image);

} // namespace brenvaldo::platform::filters
