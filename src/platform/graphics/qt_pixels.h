// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "deferred_pixels.h"
#include "image_node.h"

#include <QImage>

namespace brenvaldo::platform::graphics {

/// The samples of `image` as 8-bit pixels of `layout`: grey, RGB or RGB with alpha.
[[nodiscard]] vips::VImage pixelsOf(const QImage& image, const PixelLayout& layout);

/// The evaluated picture for Qt: 8-bit sRGB, grey as Grayscale8 without alpha, otherwise 32 bits,
/// premultiplied where it has alpha; its resolution is set. Throws `vips::VError`.
[[nodiscard]] QImage evaluatedQImage(const ImageNode& node);

} // namespace brenvaldo::platform::graphics
