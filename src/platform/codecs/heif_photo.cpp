// SPDX-License-Identifier: GPL-3.0-or-later
#include "claimed_size.h"
#include "heif_handles.h"
#include "opened_photo.h"
#include "photo_decoder.h"

#include <platform/containers/bytes.h>
#include <platform/containers/exif_facts.h>
#include <platform/containers/iso_boxes.h>
#include <platform/containers/mapped_file.h>
#include <platform/graphics/color_profile.h>
#include <platform/graphics/deferred_pixels.h>

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace brenvaldo::platform::codecs {

using containers::isoBox;
using containers::isoBoxes;
using graphics::ImageNode;
using graphics::PixelSize;

namespace {

enum class Geometry { Stored, Upright };

struct OpenedHeif
{
    HeifContext context;
    HeifHandle primary;
};

OpenedHeif openHeif(const QString& path)
{
    OpenedHeif file = {HeifContext(heif_context_alloc()), nullptr};
    checkHeif(heif_context_read_from_file(
        file.context.get(), QFile::encodeName(path).constData(), nullptr
    ));
    heif_image_handle* primary = nullptr;
    checkHeif(heif_context_get_primary_image_handle(file.context.get(), &primary));
    file.primary.reset(primary);
    return file;
}

QByteArray colorProfile(const heif_image_handle* handle)
{
    const heif_color_profile_type type = heif_image_handle_get_color_profile_type(handle);
    if (type != heif_color_profile_type_prof && type != heif_color_profile_type_rICC)
        return {};
    QByteArray profile(
        static_cast<qsizetype>(heif_image_handle_get_raw_color_profile_size(handle)), '\0'
    );
    const heif_error error = heif_image_handle_get_raw_color_profile(handle, profile.data());
    return error.code == heif_error_Ok ? graphics::usableProfile(profile, graphics::ColorModel::Rgb)
                                       : QByteArray();
}

/// The TIFF structure of the EXIF item; empty without one.
QByteArray exifBlock(const heif_image_handle* handle)
{
    heif_item_id id = 0;
    if (heif_image_handle_get_list_of_metadata_block_IDs(handle, "Exif", &id, 1) != 1)
        return {};
    QByteArray item(static_cast<qsizetype>(heif_image_handle_get_metadata_size(handle, id)), '\0');
    if (item.isEmpty()
        || heif_image_handle_get_metadata(handle, id, item.data()).code != heif_error_Ok)
        return {};
    return containers::exifBehindOffset(item);
}

heif_chroma chromaOf(bool isDeep, bool hasAlpha)
{
    if (isDeep)
        return hasAlpha ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RRGGBB_LE;
    return hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
}

HeifImage decodedImage(const heif_image_handle* handle, heif_chroma chroma, Geometry geometry)
{
    const HeifDecodingOptions options(heif_decoding_options_alloc());
    options->ignore_transformations = geometry == Geometry::Stored ? 1 : 0;
    options->convert_hdr_to_8bit = 0;
    heif_image* decoded = nullptr;
    checkHeif(heif_decode_image(handle, &decoded, heif_colorspace_RGB, chroma, options.get()));
    return HeifImage(decoded);
}

PixelSize sizeOf(const heif_image* decoded)
{
    return {
        heif_image_get_width(decoded, heif_channel_interleaved),
        heif_image_get_height(decoded, heif_channel_interleaved)};
}

/// True when a property of the file turns a picture on the side.
bool holdsQuarterTurn(const QString& path)
{
    constexpr qsizetype versionAndFlags = 4;
    const containers::MappedFile file(path);
    const QByteArrayView meta
        = containers::tailOf(isoBox(isoBoxes(file.bytes()), "meta"), versionAndFlags);
    const QByteArrayView properties = isoBox(isoBoxes(isoBox(isoBoxes(meta), "iprp")), "ipco");
    const QList<containers::IsoBox> boxes = isoBoxes(properties);
    return std::any_of(boxes.begin(), boxes.end(), [](const containers::IsoBox& box) {
        return box.type == QByteArrayView("irot")
            && (containers::unsignedAt(box.payload, 0, 1, containers::ByteOrder::Big).value_or(0)
                & 1U)
            != 0;
    });
}

/// Size of the coded picture.
///
/// Cameras state it; some programs state the size after the file's own rotation instead. A file
/// that turns its picture and states the size it shows at is decoded to know.
PixelSize codedSize(const QString& path, const heif_image_handle* handle, PixelSize upright)
{
    const PixelSize stated
        = {heif_image_handle_get_ispe_width(handle), heif_image_handle_get_ispe_height(handle)};
    checkDecodedWhole(stated);
    if (stated != upright || stated.width == stated.height || !holdsQuarterTurn(path))
        return stated;
    return sizeOf(decodedImage(handle, heif_chroma_interleaved_RGB, Geometry::Stored).get());
}

/// Samples of `bits` significant bits spread over the whole range of 16.
void spread(quint16* samples, std::size_t count, int bits)
{
    const quint32 most = (1U << static_cast<unsigned>(bits)) - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const quint32 sample = std::min<quint32>(qFromLittleEndian(samples[i]), most);
        samples[i] = static_cast<quint16>((sample * 0xFFFFU + most / 2) / most);
    }
}

vips::VImage pixelsOf(const heif_image* decoded, const graphics::PixelLayout& layout)
{
    int stride = 0;
    const uint8_t* plane
        = heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    if (plane == nullptr || sizeOf(decoded) != PixelSize{layout.width, layout.height})
        throw vips::VError(
            "the file has changed, or its picture has another size than its header says"
        );
    const vips::VImage pixels = graphics::newMemoryPixels(layout);
    const auto samples
        = static_cast<std::size_t>(layout.width) * static_cast<std::size_t>(layout.bands);
    const bool isDeep = layout.format == VIPS_FORMAT_USHORT;
    const int bits = heif_image_get_bits_per_pixel_range(decoded, heif_channel_interleaved);
    for (int y = 0; y < layout.height; ++y) {
        VipsPel* row = VIPS_IMAGE_ADDR(pixels.get_image(), 0, y);
        std::memcpy(
            row, plane + static_cast<std::ptrdiff_t>(y) * stride, samples * (isDeep ? 2 : 1)
        );
        if (isDeep)
            spread(reinterpret_cast<quint16*>(row), samples, bits);
    }
    return pixels;
}

/// A photo of the HEIF family; the container's own turns, flips and cuts are its orientation.
class HeifPhoto : public PhotoDecoder
{
public:
    HeifPhoto(const QString& path, const QString& typeIdentifier)
        : m_file(std::make_shared<OpenedPhoto>(path))
    {
        const OpenedHeif file = openHeif(m_file->path());
        const heif_image_handle* handle = file.primary.get();
        m_header.uprightSize
            = {heif_image_handle_get_width(handle), heif_image_handle_get_height(handle)};
        checkDecodedWhole(m_header.uprightSize);
        checkClaimedSize(m_file->path(), typeIdentifier, m_header.uprightSize);
        m_header.storedSize = codedSize(m_file->path(), handle, m_header.uprightSize);
        m_header.typeIdentifier = typeIdentifier;
        m_header.bitsPerComponent = heif_image_handle_get_luma_bits_per_pixel(handle) > 8 ? 16 : 8;
        m_header.hasAlpha = heif_image_handle_has_alpha_channel(handle) != 0;
        constexpr double defaultDotsPerInch = 72;
        m_header.dotsPerInch
            = containers::readExifFacts(exifBlock(handle)).dotsPerInch.value_or(defaultDotsPerInch);
        m_iccProfile = colorProfile(handle);
    }

    [[nodiscard]] const ImageHeader& header() const override { return m_header; }

    [[nodiscard]] ImageNode storedPixels(int /*shrink*/) const override
    {
        return node(Geometry::Stored, m_header.storedSize);
    }

    [[nodiscard]] ImageNode uprightPixels(int /*shrink*/) const override
    {
        return node(Geometry::Upright, m_header.uprightSize);
    }

private:
    [[nodiscard]] ImageNode node(Geometry geometry, PixelSize size) const
    {
        const bool isDeep = m_header.bitsPerComponent == 16;
        const VipsBandFormat format = isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR;
        const graphics::PixelLayout layout = {
            .width = size.width,
            .height = size.height,
            .bands = m_header.hasAlpha ? 4 : 3,
            .format = format,
            .interpretation = graphics::interpretationOf(graphics::ColorModel::Rgb, format),
        };
        const heif_chroma chroma = chromaOf(isDeep, m_header.hasAlpha);
        ImageNode node;
        node.hasAlpha = m_header.hasAlpha;
        node.iccProfile = m_iccProfile;
        node.dotsPerInch = m_header.dotsPerInch;
        node.decodingBytes = sizeOf(layout);
        node.pixels = graphics::deferredPixels(layout, [photo = m_file, layout, chroma, geometry] {
            const OpenedHeif file = openHeif(photo->path());
            const HeifImage decoded = decodedImage(file.primary.get(), chroma, geometry);
            return pixelsOf(decoded.get(), layout);
        });
        return node;
    }

    SharedPhoto m_file;
    ImageHeader m_header;
    QByteArray m_iccProfile;
};

QImage screenImage(const heif_image* decoded)
{
    int stride = 0;
    const uint8_t* plane
        = heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    if (plane == nullptr)
        return {};
    const QImage borrowed(
        plane,
        heif_image_get_width(decoded, heif_channel_interleaved),
        heif_image_get_height(decoded, heif_channel_interleaved),
        stride,
        QImage::Format_RGB888
    );
    return borrowed.convertToFormat(QImage::Format_RGB32);
}

} // namespace

bool isHeifType(const QString& type)
{
    return type.startsWith(QLatin1String("public.hei")) || type == QLatin1String("public.avif")
        || type == QLatin1String("public.avci");
}

std::unique_ptr<PhotoDecoder> openHeifPhoto(const QString& path, const QString& typeIdentifier)
{
    return std::make_unique<HeifPhoto>(path, typeIdentifier);
}

QImage heifThumbnail(const QString& path)
{
    const OpenedHeif file = openHeif(path);
    heif_item_id id = 0;
    if (heif_image_handle_get_list_of_thumbnail_IDs(file.primary.get(), &id, 1) != 1)
        return {};
    heif_image_handle* found = nullptr;
    checkHeif(heif_image_handle_get_thumbnail(file.primary.get(), id, &found));
    const HeifHandle thumbnail(found);
    constexpr int mostPixels = 1 << 20;
    if (qint64{heif_image_handle_get_width(found)} * heif_image_handle_get_height(found)
        > mostPixels)
        return {};
    const HeifImage decoded = decodedImage(found, heif_chroma_interleaved_RGB, Geometry::Upright);
    return screenImage(decoded.get());
}

} // namespace brenvaldo::platform::codecs
