// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"

#include "engine_target.h"
#include "memory_check.h"
#include "png_header.h"

#include <platform/foundation/inches.h>
#include <platform/graphics/color_profile.h>
#include <platform/graphics/sample_conversion.h>

namespace brenvaldo::platform::codecs {

using graphics::ImageNode;

namespace {

/// The pixels with the resolution where the engine's encoders look for it.
vips::VImage withResolution(const ImageNode& node)
{
    const double pixelsPerMillimetre = node.dotsPerInch / millimetresPerInch;
    return node.pixels.copy(
        vips::VImage::option()->set("xres", pixelsPerMillimetre)->set("yres", pixelsPerMillimetre)
    );
}

/// The pixels with the profile, too.
vips::VImage labelled(const ImageNode& node)
{
    const vips::VImage pixels = withResolution(node);
    if (!node.iccProfile.isEmpty())
        vips_image_set_blob_copy(
            pixels.get_image(),
            VIPS_META_ICC_NAME,
            node.iccProfile.constData(),
            static_cast<std::size_t>(node.iccProfile.size())
        );
    return pixels;
}

} // namespace

ImageNode fittedTo(const ImageNode& node, const FormatLimits& limits)
{
    ImageNode fitted = node;
    if (limits.alpha == AlphaSupport::Flattens)
        fitted = graphics::flattenedOnWhite(fitted);
    const bool isInk = fitted.colorModel == graphics::ColorModel::Cmyk;
    if (limits.colors == ColorSupport::Srgb
        || (limits.colors == ColorSupport::SrgbInsteadOfCmyk && isInk))
        fitted = graphics::convertedToSrgb(fitted);
    if (limits.depth == DepthSupport::EightBits)
        fitted = graphics::withBytes(fitted);
    return fitted;
}

void encodePng(const ImageNode& node, OutputFile& file)
{
    const ImageNode fitted = fittedTo(node, {.colors = ColorSupport::SrgbInsteadOfCmyk});
    EngineTarget way(file, {.at = pngHeaderLength, .bytes = pngProfileChunk(fitted.iccProfile)});
    withResolution(fitted).pngsave_target(
        way.target(),
        vips::VImage::option()
            ->set("compression", 1)
            ->set("filter", VIPS_FOREIGN_PNG_FILTER_SUB)
            ->set("bitdepth", fitted.pixels.format() == VIPS_FORMAT_USHORT ? 16 : 8)
    );
}

void encodeTiff(const ImageNode& node, OutputFile& file)
{
    // Deflate takes four times as long for files of the same size.
    EngineTarget way(file);
    labelled(node).tiffsave_target(
        way.target(),
        vips::VImage::option()
            ->set("compression", VIPS_FOREIGN_TIFF_COMPRESSION_LZW)
            ->set("predictor", VIPS_FOREIGN_TIFF_PREDICTOR_HORIZONTAL)
            ->set("resunit", VIPS_FOREIGN_TIFF_RESUNIT_INCH)
    );
}

void encodeGif(const ImageNode& node, OutputFile& file)
{
    const ImageNode fitted
        = fittedTo(node, {.depth = DepthSupport::EightBits, .colors = ColorSupport::Srgb});
    constexpr int bytesPerPixel = 10; // measured: the pixels with alpha, twice, and the indexes
    checkMemoryForWholePicture(fitted, bytesPerPixel);
    // The higher efforts take five times as long for a palette that is hardly told apart.
    constexpr int effort = 3;
    EngineTarget way(file);
    fitted.pixels.gifsave_target(way.target(), vips::VImage::option()->set("effort", effort));
}

} // namespace brenvaldo::platform::codecs
