// SPDX-License-Identifier: GPL-3.0-or-later
#include "alpha_weighting.h"
#include "image.h"
#include "image_node.h"
#include "reduced_pixels.h"

#include <algorithm>

namespace brenvaldo::platform::graphics {

namespace {

/// `pixels` cut or continued at the right and bottom edge to exactly `size`.
vips::VImage trimmedTo(const vips::VImage& pixels, PixelSize size)
{
    if (pixels.width() == size.width && pixels.height() == size.height)
        return pixels;
    return pixels.embed(
        0, 0, size.width, size.height, vips::VImage::option()->set("extend", VIPS_EXTEND_COPY)
    );
}

vips::VImage enlarged(const vips::VImage& pixels, PixelSize size)
{
    const vips::VImage scaled = pixels.resize(
        static_cast<double>(size.width) / pixels.width(),
        vips::VImage::option()
            ->set("vscale", static_cast<double>(size.height) / pixels.height())
            ->set("kernel", VIPS_KERNEL_LANCZOS3)
    );
    return trimmedTo(scaled, size);
}

vips::VImage resampled(const vips::VImage& pixels, PixelSize size)
{
    const PixelSize full = {pixels.width(), pixels.height()};
    const PixelSize smaller
        = {std::min(size.width, full.width), std::min(size.height, full.height)};
    const vips::VImage reduced = smaller == full ? pixels : reducedPixels(pixels, smaller);
    return smaller == size ? reduced : enlarged(reduced, size);
}

ImageNode scaledNode(const ImageNode& node, PixelSize size)
{
    if (!node.hasAlpha)
        return node.withPixels(resampled(node.pixels, size));
    const vips::VImage scaled = resampled(premultipliedPixels(node.pixels), size);
    return node.withPixels(straightPixels(scaled, node.pixels.format()));
}

} // namespace

Image Image::scaledTo(PixelSize size) const
{
    Q_ASSERT(size.isValid());
    if (size == pixelSize())
        return *this;
    return builtImage(*m_node, size, [&] { return scaledNode(*m_node, size); });
}

} // namespace brenvaldo::platform::graphics
