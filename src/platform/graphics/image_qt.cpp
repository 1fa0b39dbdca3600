// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_profile.h"
#include "evaluation.h"
#include "image.h"
#include "image_node.h"
#include "qt_pixels.h"
#include "region_kernel.h"
#include "sample_conversion.h"

#include <platform/foundation/inches.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <array>
#include <cstring>

namespace brenvaldo::platform::graphics {

namespace {

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

QImage::Format qtFormat(const ImageNode& node)
{
    if (node.hasAlpha)
        return QImage::Format_ARGB32_Premultiplied;
    return node.colorModel == ColorModel::Gray ? QImage::Format_Grayscale8 : QImage::Format_RGB32;
}

} // namespace

QImage evaluatedQImage(const ImageNode& node)
{
    const ImageNode srgb = withBytes(convertedToSrgb(node));
    const QImage::Format format = qtFormat(srgb);
    const vips::VImage rows = format == QImage::Format_Grayscale8
        ? srgb.pixels
        : asScreenWords(srgb.pixels, srgb.hasAlpha);
    QImage image(rows.width(), rows.height(), format);
    if (image.isNull())
        throw vips::VError("no memory for the picture");
    const auto rowBytes
        = static_cast<std::size_t>(rows.width()) * static_cast<std::size_t>(rows.bands());
    forEachRow(rows, [&image, rowBytes](const uchar* row, int y) {
        std::memcpy(image.scanLine(y), row, rowBytes);
    });
    const int dotsPerMetre = qRound(node.dotsPerInch / metresPerInch);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

vips::VImage pixelsOf(const QImage& image, const PixelLayout& layout)
{
    if (image.size() != QSize(layout.width, layout.height))
        throw vips::VError("the file has changed");
    constexpr std::array formats = {
        QImage::Format_Grayscale8,
        QImage::Format_Invalid,
        QImage::Format_RGB888,
        QImage::Format_RGBA8888,
    };
    const QImage packed
        = image.convertToFormat(formats[static_cast<std::size_t>(layout.bands - 1)]);
    if (packed.isNull())
        throw vips::VError("no memory for the picture");
    const vips::VImage pixels = newMemoryPixels(layout);
    const auto rowBytes
        = static_cast<std::size_t>(layout.width) * static_cast<std::size_t>(layout.bands);
    for (int y = 0; y < layout.height; ++y)
        std::memcpy(VIPS_IMAGE_ADDR(pixels.get_image(), 0, y), packed.constScanLine(y), rowBytes);
    return pixels;
}

Image Image::fromQImage(const QImage& image)
{
    Q_ASSERT(!image.isNull());
    ImageNode node;
    const bool isGray = image.format() == QImage::Format_Grayscale8
        || image.format() == QImage::Format_Grayscale16;
    node.colorModel = isGray ? ColorModel::Gray : ColorModel::Rgb;
    node.hasAlpha = !isGray && image.hasAlphaChannel();
    const int bands = colorBands(node.colorModel) + (node.hasAlpha ? 1 : 0);
    const PixelLayout layout = {
        .width = image.width(),
        .height = image.height(),
        .bands = bands,
        .format = VIPS_FORMAT_UCHAR,
        .interpretation = interpretationOf(node.colorModel, VIPS_FORMAT_UCHAR),
    };
    node.pixels = vips::VImage::black(1, 1, vips::VImage::option()->set("bands", bands));
    return builtImage(node, {image.width(), image.height()}, [&] {
        return node.withPixels(pixelsOf(image, layout));
    });
}

QImage Image::toQImage() const
{
    try {
        const QImage image = evaluatedQImage(*m_node);
        return hasAlpha() ? image : image.convertToFormat(QImage::Format_RGB32);
    } catch (const std::exception& error) {
        log(u"Failed to draw an image: "_s + faultText(error));
        return {};
    }
}

} // namespace brenvaldo::platform::graphics
