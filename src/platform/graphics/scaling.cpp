// SPDX-License-Identifier: GPL-3.0-or-later
#include "alpha_weighting.h"
#include "image.h"
#include "image_node.h"

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

/// How far a box shrinks before the kernel does; 0 leaves all to the kernel.
///
/// The box makes a large picture in memory up to 20 times as slow; the kernel alone is exact only
/// while it is short.
double boxGap(double scale)
{
    constexpr double smallestScaleOfKernelAlone = 1.0 / 8;
    constexpr double usualGap = 2;
    return scale >= smallestScaleOfKernelAlone ? 0 : usualGap;
}

vips::VImage resampled(const vips::VImage& pixels, PixelSize size)
{
    const double horizontal = static_cast<double>(size.width) / pixels.width();
    const double vertical = static_cast<double>(size.height) / pixels.height();
    const vips::VImage scaled = pixels.resize(
        horizontal,
        vips::VImage::option()
            ->set("vscale", vertical)
            ->set("kernel", VIPS_KERNEL_LANCZOS3)
            ->set("gap", boxGap(std::min(horizontal, vertical)))
    );
    return trimmedTo(scaled, size);
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
