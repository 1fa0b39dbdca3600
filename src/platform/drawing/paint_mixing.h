// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shape_paint.h"

#include <array>

namespace brenvaldo::platform::drawing {

/// Straight samples of one pixel from 0 to 1, as much light as they stand for, without the alpha.
using LightSamples = std::array<float, 4>;

/// Mixes `above` into `below` as a blend mode does where both are opaque. Of four samples the last
/// is black.
using Mixing = LightSamples (*)(const LightSamples& below, const LightSamples& above, int count);

[[nodiscard]] Mixing mixingOf(ShapePaint::Blend blend);

} // namespace brenvaldo::platform::drawing
