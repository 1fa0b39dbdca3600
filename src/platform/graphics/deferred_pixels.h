// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vips/vips8>

#include <QtGlobal>

#include <functional>

namespace brenvaldo::platform::graphics {

/// What has to be known about pixels before they exist.
struct PixelLayout
{
    int width = 0;
    int height = 0;
    int bands = 0;
    VipsBandFormat format = VIPS_FORMAT_UCHAR;
    VipsInterpretation interpretation = VIPS_INTERPRETATION_sRGB;
};

/// Bytes of the pixels.
[[nodiscard]] std::size_t sizeOf(const PixelLayout& layout);

[[nodiscard]] PixelLayout layoutOf(const vips::VImage& pixels);

/// Pixels in memory, not set yet.
[[nodiscard]] vips::VImage newMemoryPixels(const PixelLayout& layout);

/// Pixels that `produce` makes, once, when the first of them is needed; they can be read in any
/// order.
///
/// `produce` is called on a worker thread and answers pixels of exactly `layout` that can be read
/// in any order. It may throw: evaluating then fails.
[[nodiscard]] vips::VImage
deferredPixels(const PixelLayout& layout, std::function<vips::VImage()> produce);

/// `pixels`, computed into memory when first needed, if they could be read only once from top to
/// bottom.
[[nodiscard]] vips::VImage randomAccess(const vips::VImage& pixels);

} // namespace brenvaldo::platform::graphics
