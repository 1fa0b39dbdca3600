// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_profile.h"
#include "image.h"
#include "image_node.h"
#include "region_kernel.h"
#include "sample_conversion.h"

#include <platform/foundation/log.h>

#include <cstring>

namespace brenvaldo::platform {

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr double millimetresPerMetre = 1000;

/// The pixels as 32-bit words in Qt's order, alpha premultiplied.
vips::VImage asScreenWords(const vips::VImage& pixels, bool hasAlpha)
{
    const int bands = pixels.bands();
    const bool isGray = bands <= 2;
    const KernelOutput output = {4, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB};
    return mapRows(std::array{pixels}, output, [bands, isGray, hasAlpha](const KernelRow<1>& row) {
        const auto* in = row.input<quint8>(0);
        auto* out = row.out<QRgb>();
        for (int i = 0; i < row.count; ++i, in += bands) {
            const int green = in[isGray ? 0 : 1];
            const int blue = in[isGray ? 0 : 2];
            out[i] = hasAlpha ? qPremultiply(qRgba(in[0], green, blue, in[bands - 1]))
                              : qRgb(in[0], green, blue);
        }
    });
}

/// Evaluates 8-bit `pixels` straight into the rows of `image`.
void writeInto(QImage& image, const vips::VImage& pixels)
{
    const auto rowBytes
        = static_cast<std::size_t>(pixels.width()) * static_cast<std::size_t>(pixels.bands());
    const vips::VImage memory = pixels.copy_memory();
    const auto* source = static_cast<const uchar*>(memory.data());
    for (int y = 0; y < image.height(); ++y, source += rowBytes)
        std::memcpy(image.scanLine(y), source, rowBytes);
}

QImage evaluated(const ImageNode& node)
{
    const ImageNode srgb = withBytes(convertedToSrgb(node));
    const vips::VImage words = asScreenWords(srgb.pixels, srgb.hasAlpha);
    QImage image(
        words.width(),
        words.height(),
        node.hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32
    );
    if (image.isNull())
        return {};
    writeInto(image, words);
    const int dotsPerMetre = qRound(node.dotsPerInch / millimetresPerInch * millimetresPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

/// The rows of a QImage as pixels in memory, without the padding between them.
vips::VImage packedRows(const QImage& image, int bands, VipsInterpretation interpretation)
{
    const vips::VImage pixels(vips_image_new_memory());
    vips_image_init_fields(
        pixels.get_image(),
        image.width(),
        image.height(),
        bands,
        VIPS_FORMAT_UCHAR,
        VIPS_CODING_NONE,
        interpretation,
        1.0,
        1.0
    );
    if (vips_image_write_prepare(pixels.get_image()) != 0)
        throw vips::VError();
    const auto rowBytes = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(bands);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(VIPS_IMAGE_ADDR(pixels.get_image(), 0, y), image.constScanLine(y), rowBytes);
    return pixels;
}

} // namespace

Image Image::fromQImage(const QImage& image)
{
    Q_ASSERT(!image.isNull());
    ImageNode node;
    const bool isGray = image.format() == QImage::Format_Grayscale8
        || image.format() == QImage::Format_Grayscale16;
    node.colorModel = isGray ? ColorModel::Gray : ColorModel::Rgb;
    node.hasAlpha = image.hasAlphaChannel();
    const QImage::Format format = isGray ? QImage::Format_Grayscale8
        : node.hasAlpha                  ? QImage::Format_RGBA8888
                                         : QImage::Format_RGB888;
    const int bands = colorBands(node.colorModel) + (node.hasAlpha ? 1 : 0);
    node.pixels = packedRows(
        image.convertToFormat(format), bands, interpretationOf(node.colorModel, VIPS_FORMAT_UCHAR)
    );
    return makeImage(std::move(node));
}

QImage Image::toQImage() const
{
    try {
        return evaluated(*m_node);
    } catch (const vips::VError&) {
        log(QStringLiteral("Failed to draw an image: ") + takeEngineError());
        return {};
    }
}

} // namespace brenvaldo::platform
