// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vips/vips8>

namespace brenvaldo::platform::graphics {

/// 8 or 16-bit samples weighted with the alpha behind them, as floats, so that transparent pixels
/// lend no colour to their neighbours.
[[nodiscard]] vips::VImage premultipliedPixels(const vips::VImage& pixels);

/// The way back to 8 or 16 bits: rounded, and clamped to what the format holds.
[[nodiscard]] vips::VImage straightPixels(const vips::VImage& pixels, VipsBandFormat format);

} // namespace brenvaldo::platform::graphics
