// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg_pass.h"

#include "encoders.h"

#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/evaluation.h>

#include <memory>

namespace brenvaldo::platform::codecs {

namespace {

struct FreeBlob
{
    void operator()(VipsBlob* blob) const { vips_area_unref(VIPS_AREA(blob)); }
};

using Blob = std::unique_ptr<VipsBlob, FreeBlob>;

Blob bestJpeg(const vips::VImage& pixels)
{
    Blob jpeg;
    graphics::evaluate(pixels, [&](const vips::VImage& watched) {
        jpeg.reset(watched.jpegsave_buffer(vips::VImage::option()
                                               ->set("Q", 100)
                                               ->set("strip", true)
                                               ->set("subsample_mode", VIPS_FOREIGN_SUBSAMPLE_OFF))
        );
    });
    return jpeg;
}

vips::VImage decoded(const Blob& jpeg)
{
    return graphics::copiedToMemory(vips::VImage::jpegload_buffer(
        jpeg.get(), vips::VImage::option()->set("access", VIPS_ACCESS_SEQUENTIAL)
    ));
}

} // namespace

graphics::Image throughJpeg(const graphics::Image& image)
{
    return graphics::builtImage(*image.node(), image.pixelSize(), [&] {
        const graphics::ImageNode flat = fittedTo(
            *image.node(), {.alpha = AlphaSupport::Flattens, .depth = DepthSupport::EightBits}
        );
        return flat.withPixels(graphics::deferredPixels(
            graphics::layoutOf(flat.pixels),
            [pixels = flat.pixels] { return decoded(bestJpeg(pixels)); }
        ));
    });
}

} // namespace brenvaldo::platform::codecs
