// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"
#include "heif_handles.h"
#include "memory_check.h"

#include <platform/containers/exif_facts.h>
#include <platform/graphics/color_profile.h>
#include <platform/graphics/evaluation.h>
#include <platform/graphics/region_kernel.h>

#include <QFile>

#include <algorithm>
#include <cstring>

namespace brenvaldo::platform::codecs {

using graphics::ColorModel;
using graphics::ImageNode;

namespace {

constexpr int fixedQuality = 60; // about what cameras write

vips::VImage grayAsRgb(const vips::VImage& gray, bool hasAlpha)
{
    const graphics::KernelOutput output
        = {hasAlpha ? 4 : 3, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB};
    return graphics::mapRows(
        std::array{gray},
        output,
        [hasAlpha](const graphics::KernelRow<1>& row) {
            const auto* in = row.input<quint8>(0);
            auto* out = row.out<quint8>();
            for (int i = 0; i < row.count; ++i) {
                std::fill_n(out, 3, *in++);
                out += 3;
                if (hasAlpha)
                    *out++ = *in++;
            }
        }
    );
}

/// 8-bit RGB with or without alpha, in the photo's own profile where that is one of RGB.
ImageNode fittedToHeic(const ImageNode& node)
{
    const ColorSupport colors
        = node.colorModel == ColorModel::Rgb ? ColorSupport::Any : ColorSupport::Srgb;
    ImageNode fitted = fittedTo(node, {.depth = DepthSupport::EightBits, .colors = colors});
    if (fitted.colorModel == ColorModel::Gray) {
        fitted.pixels = grayAsRgb(fitted.pixels, fitted.hasAlpha);
        fitted.colorModel = ColorModel::Rgb;
    }
    return fitted;
}

HeifImage planeOf(const ImageNode& node)
{
    const int width = node.pixels.width();
    const int height = node.pixels.height();
    heif_image* made = nullptr;
    checkHeif(heif_image_create(
        width,
        height,
        heif_colorspace_RGB,
        node.hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB,
        &made
    ));
    HeifImage image(made);
    constexpr int bits = 8;
    checkHeif(heif_image_add_plane(made, heif_channel_interleaved, width, height, bits));
    int stride = 0;
    uint8_t* plane = heif_image_get_plane(made, heif_channel_interleaved, &stride);
    const auto rowBytes
        = static_cast<std::size_t>(width) * static_cast<std::size_t>(node.pixels.bands());
    graphics::forEachRow(node.pixels, [plane, stride, rowBytes](const uchar* row, int y) {
        std::memcpy(plane + static_cast<std::ptrdiff_t>(y) * stride, row, rowBytes);
    });
    if (!node.iccProfile.isEmpty())
        checkHeif(heif_image_set_raw_color_profile(
            made,
            "prof",
            node.iccProfile.constData(),
            static_cast<std::size_t>(node.iccProfile.size())
        ));
    return image;
}

HeifEncoder fastEncoder(heif_context* context)
{
    heif_encoder* found = nullptr;
    checkHeif(heif_context_get_encoder_for_format(context, heif_compression_HEVC, &found));
    HeifEncoder encoder(found);
    checkHeif(heif_encoder_set_lossy_quality(found, fixedQuality));
    // The slower presets take up to six times as long for files a tenth smaller.
    checkHeif(heif_encoder_set_parameter_string(found, "preset", "ultrafast"));
    return encoder;
}

void addMetadata(
    heif_context* context,
    const heif_image_handle* handle,
    const QByteArray& exif,
    const QByteArray& xmp
)
{
    if (!exif.isEmpty())
        checkHeif(heif_context_add_exif_metadata(
            context, handle, exif.constData(), static_cast<int>(exif.size())
        ));
    if (!xmp.isEmpty())
        checkHeif(heif_context_add_XMP_metadata(
            context, handle, xmp.constData(), static_cast<int>(xmp.size())
        ));
}

heif_error writeToFile(heif_context* /*context*/, const void* bytes, std::size_t size, void* file)
{
    const auto length = static_cast<qint64>(size);
    const bool isWritten
        = static_cast<OutputFile*>(file)->write(static_cast<const char*>(bytes), length) == length;
    if (isWritten)
        return {heif_error_Ok, heif_suberror_Unspecified, ""};
    return {
        heif_error_Encoding_error,
        heif_suberror_Cannot_write_output_data,
        "the file can't be written"};
}

} // namespace

void encodeHeic(const ImageNode& node, const containers::MetadataBlocks* blocks, OutputFile& file)
{
    const ImageNode fitted = fittedToHeic(node);
    constexpr int bytesPerPixel
        = 16; // measured: the plane, its colour differences and the coder's frames
    checkMemoryForWholePicture(fitted, bytesPerPixel);
    const HeifContext context(heif_context_alloc());
    const HeifEncoder encoder = fastEncoder(context.get());
    heif_image_handle* encoded = nullptr;
    {
        const HeifImage image = planeOf(fitted);
        const HeifEncodingOptions options(heif_encoding_options_alloc());
        checkHeif(heif_context_encode_image(
            context.get(), image.get(), encoder.get(), options.get(), &encoded
        ));
    }
    const HeifHandle handle(encoded);
    const QByteArray exif = blocks != nullptr && !blocks->exif.isEmpty()
        ? blocks->exif
        : containers::exifOfResolution(fitted.dotsPerInch);
    addMetadata(context.get(), encoded, exif, blocks != nullptr ? blocks->xmp : QByteArray());

    heif_writer writer = {1, writeToFile};
    checkHeif(heif_context_write(context.get(), &writer, &file));
}

} // namespace brenvaldo::platform::codecs
