// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

namespace brenvaldo::platform::graphics {

/// The grey of a pixel; components and grey are encoded values from 0 to 1.
using GrayLevel = double (*)(double red, double green, double blue);

/// `image` with the grey that `level` finds in place of each pixel's colour; its size, depth,
/// model, profile and alpha stay. A picture of inks becomes one of 8-bit sRGB.
[[nodiscard]] Image withGrayLevels(const Image& image, GrayLevel level);

} // namespace brenvaldo::platform::graphics
