// SPDX-License-Identifier: GPL-3.0-or-later
#include "opened_photo.h"
#include "photo_decoder.h"
#include "psd_samples.h"

#include <platform/containers/bytes.h>
#include <platform/containers/exif_facts.h>
#include <platform/containers/mapped_file.h>
#include <platform/containers/photoshop_resources.h>
#include <platform/graphics/color_profile.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/evaluation.h>

#include <QtEndian>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::codecs {

using containers::photoshopResourceData;
using containers::PhotoshopResourceId;
using graphics::ColorModel;

namespace {

ColorModel modelOf(PsdMode mode)
{
    switch (mode) {
    case PsdMode::Bitmap:
    case PsdMode::Gray:
    case PsdMode::Duotone:
        return ColorModel::Gray;
    case PsdMode::Cmyk:
        return ColorModel::Cmyk;
    default:
        return ColorModel::Rgb;
    }
}

/// Dots per inch, stored with 16 bits behind the point.
double dotsPerInch(QByteArrayView resources)
{
    constexpr double one = 65536;
    const QByteArray info = photoshopResourceData(resources, PhotoshopResourceId::Resolution);
    const auto stated = containers::unsignedAt(info, 0, 4, containers::ByteOrder::Big).value_or(0);
    return stated > 0 ? static_cast<double>(stated) / one : 72;
}

/// The stored channels side by side in one row of pixels, as samples of the machine.
template <typename Sample>
void interleave(
    const PsdRows& rows, int y, int bands, Sample* pixels, int width, QByteArray& scratch
)
{
    for (int band = 0; band < bands; ++band) {
        const char* stored = rows.row(band, y, scratch).data();
        for (int x = 0; x < width; ++x)
            pixels[x * bands + band]
                = qFromBigEndian<Sample>(stored + static_cast<std::size_t>(x) * sizeof(Sample));
    }
}

/// Transparent pixels are stored as they look on white.
template <typename Sample>
void takeOffWhite(Sample* pixels, int width, int bands)
{
    constexpr int full = std::numeric_limits<Sample>::max();
    for (Sample* pixel = pixels; pixel != pixels + width * bands; pixel += bands) {
        const int alpha = pixel[bands - 1];
        if (alpha == 0 || alpha == full)
            continue;
        for (int band = 0; band < bands - 1; ++band) {
            const qint64 color = (qint64{pixel[band]} - (full - alpha)) * full / alpha;
            pixel[band] = static_cast<Sample>(std::clamp<qint64>(color, 0, full));
        }
    }
}

template <typename Sample>
void readRows(const PsdFile& file, const vips::VImage& pixels)
{
    const PsdRows rows(file);
    QByteArray scratch;
    const int bands = pixels.bands();
    for (int y = 0; y < file.size.height; ++y) {
        auto* row = reinterpret_cast<Sample*>(VIPS_IMAGE_ADDR(pixels.get_image(), 0, y));
        interleave(rows, y, bands, row, file.size.width, scratch);
        if (file.firstMaskIsAlpha && file.mode != PsdMode::Cmyk && file.mode != PsdMode::Lab)
            takeOffWhite(row, file.size.width, bands);
    }
}

/// A set bit is black.
void readBits(const PsdFile& file, const vips::VImage& pixels)
{
    constexpr uchar white = 255;
    const PsdRows rows(file);
    QByteArray scratch;
    for (int y = 0; y < file.size.height; ++y) {
        const QByteArrayView bits = rows.row(0, y, scratch);
        VipsPel* row = VIPS_IMAGE_ADDR(pixels.get_image(), 0, y);
        for (int x = 0; x < file.size.width; ++x) {
            const bool isBlack = ((static_cast<uchar>(bits[x / 8]) >> (7 - x % 8)) & 1) != 0;
            row[x] = isBlack ? 0 : white;
        }
    }
}

/// The samples as they are stored.
vips::VImage storedSamples(const PsdFile& file)
{
    const bool isDeep = file.bitsPerSample == 16;
    const vips::VImage pixels = graphics::newMemoryPixels({
        .width = file.size.width,
        .height = file.size.height,
        .bands = psdColorChannels(file.mode) + (file.firstMaskIsAlpha ? 1 : 0),
        .format = isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR,
        .interpretation = VIPS_INTERPRETATION_MULTIBAND,
    });
    if (file.mode == PsdMode::Bitmap)
        readBits(file, pixels);
    else if (isDeep)
        readRows<quint16>(file, pixels);
    else
        readRows<uchar>(file, pixels);
    return pixels;
}

vips::VImage paletteImage(QByteArrayView palette)
{
    const vips::VImage table = graphics::newMemoryPixels({.width = 256, .height = 1, .bands = 3});
    VipsPel* entry = VIPS_IMAGE_ADDR(table.get_image(), 0, 0);
    for (int color = 0; color < 256; ++color) {
        for (int band = 0; band < 3; ++band)
            *entry++ = static_cast<uchar>(palette[band * 256 + color]);
    }
    return table;
}

/// Lightness from 0 to 100, the colour axes around a middle of their own.
vips::VImage srgbOfLab(const vips::VImage& stored, bool isDeep)
{
    const double full = isDeep ? 65535 : 255;
    const double step = isDeep ? 256 : 1;
    const vips::VImage lab
        = stored.extract_band(0, vips::VImage::option()->set("n", 3))
              .linear({100 / full, 1 / step, 1 / step}, {0, -128, -128})
              .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_LAB));
    const vips::VImage rgb
        = lab.colourspace(isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    return stored.bands() > 3 ? rgb.bandjoin(stored[3]) : rgb;
}

/// The colours as the engine counts them.
vips::VImage colorsOf(const PsdFile& file, const vips::VImage& stored)
{
    if (file.mode == PsdMode::Indexed) {
        const vips::VImage colors = stored[0].maplut(paletteImage(file.palette));
        return file.firstMaskIsAlpha ? colors.bandjoin(stored[1]) : colors;
    }
    if (file.mode == PsdMode::Lab)
        return srgbOfLab(stored, file.bitsPerSample == 16);
    if (file.mode != PsdMode::Cmyk)
        return stored;
    // Full ink is stored as 0.
    const vips::VImage ink = stored.extract_band(0, vips::VImage::option()->set("n", 4)).invert();
    return file.firstMaskIsAlpha ? ink.bandjoin(stored[4]) : ink;
}

/// A file with layers: the picture they make together; decoded whole.
class PsdPhoto : public PhotoDecoder
{
public:
    PsdPhoto(const QString& path, const QString& typeIdentifier)
        : m_photo(std::make_shared<OpenedPhoto>(path))
    {
        const containers::MappedFile mapped(m_photo->path());
        const PsdFile file = readPsdFile(mapped.bytes());
        checkDecodedWhole(file.size);
        static_cast<void>(PsdRows(file)); // too short a file shows here
        const containers::ExifFacts exif = containers::readExifFacts(
            photoshopResourceData(file.resources, PhotoshopResourceId::Exif)
        );
        m_header.typeIdentifier = typeIdentifier;
        m_header.orientation = exif.orientation;
        m_header.storedSize = file.size;
        m_header.uprightSize = uprightSize(file.size, exif.orientation);
        m_header.bitsPerComponent = std::max(file.bitsPerSample, 8);
        m_header.colorModel = modelOf(file.mode);
        m_header.hasAlpha = file.firstMaskIsAlpha;
        m_header.dotsPerInch = dotsPerInch(file.resources);
        if (file.mode != PsdMode::Lab)
            m_profile = graphics::usableProfile(
                photoshopResourceData(file.resources, PhotoshopResourceId::IccProfile),
                m_header.colorModel
            );
    }

    [[nodiscard]] const ImageHeader& header() const override { return m_header; }

    [[nodiscard]] graphics::ImageNode storedPixels(int /*shrink*/) const override
    {
        const VipsBandFormat format
            = m_header.bitsPerComponent == 16 ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR;
        const graphics::PixelLayout layout = {
            .width = m_header.storedSize.width,
            .height = m_header.storedSize.height,
            .bands = graphics::colorBands(m_header.colorModel) + (m_header.hasAlpha ? 1 : 0),
            .format = format,
            .interpretation = graphics::interpretationOf(m_header.colorModel, format),
        };
        graphics::ImageNode node;
        node.colorModel = m_header.colorModel;
        node.hasAlpha = m_header.hasAlpha;
        node.iccProfile = m_profile;
        node.dotsPerInch = m_header.dotsPerInch;
        node.decodingBytes = graphics::sizeOf(layout);
        node.pixels = graphics::deferredPixels(layout, [photo = m_photo, format] {
            const containers::MappedFile mapped(photo->path());
            const PsdFile file = readPsdFile(mapped.bytes());
            return graphics::copiedToMemory(colorsOf(file, storedSamples(file)).cast(format));
        });
        return node;
    }

private:
    SharedPhoto m_photo;
    ImageHeader m_header;
    QByteArray m_profile;
};

} // namespace

bool isPsdType(const QString& typeIdentifier)
{
    return typeIdentifier == QLatin1String("com.adobe.photoshop-image")
        || typeIdentifier == QLatin1String("com.adobe.photoshop-large-image");
}

std::unique_ptr<PhotoDecoder> openPsdPhoto(const QString& path, const QString& typeIdentifier)
{
    return std::make_unique<PsdPhoto>(path, typeIdentifier);
}

} // namespace brenvaldo::platform::codecs
