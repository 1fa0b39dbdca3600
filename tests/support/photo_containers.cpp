// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_containers.h"

#include "integer_bytes.h"

#include <libheif/heif.h>

#include <cmath>
#include <cstring>
#include <memory>

namespace brenvaldo::test {

namespace {

quint32 checksum(const QByteArray& bytes)
{
    quint32 crc = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& contents)
{
    return bigEndian(static_cast<quint32>(contents.size())) + type + contents
        + bigEndian(checksum(type + contents));
}

quint32 dotsPerMetre(double dotsPerInch)
{
    return static_cast<quint32>(std::lround(dotsPerInch / 0.0254));
}

QByteArray deflated(const QByteArray& bytes)
{
    constexpr qsizetype lengthField = 4; // Qt puts the length in front
    return qCompress(bytes).sliced(lengthField);
}

void check(const heif_error& error)
{
    if (error.code != heif_error_Ok)
        qFatal("a HEIC of a test can't be made: %s", error.message);
}

heif_error collect(heif_context* /*context*/, const void* bytes, std::size_t size, void* file)
{
    static_cast<QByteArray*>(file)->append(
        static_cast<const char*>(bytes), static_cast<qsizetype>(size)
    );
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

template <auto Release>
struct Releaser
{
    template <typename Object>
    void operator()(Object* object) const
    {
        Release(object);
    }
};

using HeifContext = std::unique_ptr<heif_context, Releaser<heif_context_free>>;
using HeifImage = std::unique_ptr<heif_image, Releaser<heif_image_release>>;
using HeifHandle = std::unique_ptr<heif_image_handle, Releaser<heif_image_handle_release>>;
using HeifEncoder = std::unique_ptr<heif_encoder, Releaser<heif_encoder_release>>;
using HeifOptions = std::unique_ptr<heif_encoding_options, Releaser<heif_encoding_options_free>>;

HeifImage heicPixels(const HeicContents& contents)
{
    heif_image* made = nullptr;
    check(heif_image_create(
        contents.size.width(),
        contents.size.height(),
        heif_colorspace_RGB,
        contents.hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB,
        &made
    ));
    HeifImage image(made);
    check(heif_image_add_plane(
        made, heif_channel_interleaved, contents.size.width(), contents.size.height(), 8
    ));
    int stride = 0;
    uint8_t* plane = heif_image_get_plane(made, heif_channel_interleaved, &stride);
    const qsizetype rowBytes = contents.samples.size() / contents.size.height();
    for (int y = 0; y < contents.size.height(); ++y)
        std::memcpy(
            plane + static_cast<std::ptrdiff_t>(y) * stride,
            contents.samples.constData() + y * rowBytes,
            static_cast<std::size_t>(rowBytes)
        );
    if (!contents.iccProfile.isEmpty())
        check(heif_image_set_raw_color_profile(
            made,
            "prof",
            contents.iccProfile.constData(),
            static_cast<std::size_t>(contents.iccProfile.size())
        ));
    return image;
}

/// The library states the turned size, while cameras state the coded one and put the size in front
/// of the rotation.
QByteArray withCodedSize(QByteArray file, QSize size)
{
    const qsizetype fields = file.indexOf("ispe") + 8; // behind type, version and flags
    file.replace(
        fields,
        8,
        bigEndian(static_cast<quint32>(size.width()))
            + bigEndian(static_cast<quint32>(size.height()))
    );
    const qsizetype properties = file.indexOf("ipma") + 15; // the list of the first item
    const char rotation = file.at(properties + 1);
    return file.remove(properties + 1, 1).insert(properties + 2, rotation);
}

} // namespace

QByteArray bytesOf(VipsBlob* blob)
{
    std::size_t size = 0;
    const void* bytes = vips_blob_get(blob, &size);
    QByteArray copy(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
    vips_area_unref(VIPS_AREA(blob));
    return copy;
}

QByteArray jpegSegment(char marker, const QByteArray& contents)
{
    return QByteArray("\xFF", 1) + marker + bigEndian(static_cast<quint16>(contents.size() + 2))
        + contents;
}

QByteArray jfifSegment(double dotsPerInch)
{
    const QByteArray density = bigEndian(static_cast<quint16>(std::lround(dotsPerInch)));
    return jpegSegment(
        '\xE0', QByteArray("JFIF\0\1\1\1", 8) + density + density + QByteArray(2, '\0')
    );
}

QByteArray profileSegments(const QByteArray& profile)
{
    constexpr qsizetype mostBytes = 60000;
    const qsizetype count = (profile.size() + mostBytes - 1) / mostBytes;
    QByteArray segments;
    for (qsizetype i = 0; i < count; ++i) {
        const QByteArray numbers
            = QByteArray() + static_cast<char>(i + 1) + static_cast<char>(count);
        segments += jpegSegment(
            '\xE2',
            QByteArray("ICC_PROFILE\0", 12) + numbers + profile.mid(i * mostBytes, mostBytes)
        );
    }
    return segments;
}

QByteArray pngMetadata(const PngMetadata& metadata)
{
    QByteArray chunks;
    if (!metadata.iccProfile.isEmpty())
        chunks += pngChunk("iCCP", QByteArray("profile\0\0", 9) + deflated(metadata.iccProfile));
    if (metadata.dotsPerInch > 0) {
        const QByteArray perMetre = bigEndian(dotsPerMetre(metadata.dotsPerInch));
        chunks += pngChunk("pHYs", perMetre + perMetre + '\1');
    }
    if (!metadata.exif.isEmpty())
        chunks += pngChunk("eXIf", metadata.exif);
    if (!metadata.xmp.isEmpty())
        chunks += pngChunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + metadata.xmp);
    return chunks;
}

QByteArray tiffFile(
    const vips::VImage& pixels, int orientation, double dotsPerInch, const QByteArray& iccProfile
)
{
    vips::VImage image = pixels.copy();
    if (orientation != 0)
        image.set(VIPS_META_ORIENTATION, orientation);
    if (!iccProfile.isEmpty())
        vips_image_set_blob_copy(
            image.get_image(),
            VIPS_META_ICC_NAME,
            iccProfile.constData(),
            static_cast<std::size_t>(iccProfile.size())
        );
    vips::VOption* options = vips::VImage::option()->set("resunit", VIPS_FOREIGN_TIFF_RESUNIT_INCH);
    if (dotsPerInch > 0)
        options->set("xres", dotsPerInch / 25.4)->set("yres", dotsPerInch / 25.4);
    return bytesOf(image.tiffsave_buffer(options));
}

QByteArray bmpFile(
    QSize size,
    int samples,
    double dotsPerInch,
    const QByteArray& iccProfile,
    const std::function<Samples(int, int)>& rule
)
{
    QByteArray palette;
    for (int gray = 0; samples == 1 && gray < 256; ++gray)
        palette += QByteArray(3, static_cast<char>(gray)) + '\0';
    QByteArray rows;
    for (int y = size.height() - 1; y >= 0; --y) {
        for (int x = 0; x < size.width(); ++x) {
            const Samples pixel = rule(x, y);
            for (int sample = samples - 1; sample >= 0; --sample)
                rows += static_cast<char>(pixel[static_cast<std::size_t>(sample)]);
        }
        rows += QByteArray((4 - rows.size() % 4) % 4, '\0');
    }
    constexpr quint32 plainHeaderSize = 40;
    constexpr quint32 newestHeaderSize = 124;
    const quint32 headerSize = iccProfile.isEmpty() ? plainHeaderSize : newestHeaderSize;
    const auto pixelsAt = static_cast<quint32>(14 + headerSize + palette.size());
    const QByteArray perMetre = littleEndian(dotsPerMetre(dotsPerInch));
    QByteArray file = "BM";
    file += littleEndian(pixelsAt + static_cast<quint32>(rows.size())) + littleEndian<quint32>(0)
        + littleEndian(pixelsAt);
    file += littleEndian(headerSize) + littleEndian(size.width()) + littleEndian(size.height());
    file += littleEndian<quint16>(1) + littleEndian(static_cast<quint16>(samples * 8));
    file += littleEndian<quint32>(0) + littleEndian(static_cast<quint32>(rows.size()));
    file += perMetre + perMetre + littleEndian<quint32>(0) + littleEndian<quint32>(0);
    if (iccProfile.isEmpty())
        return file + palette + rows;
    const auto profileAt = static_cast<quint32>(newestHeaderSize + palette.size() + rows.size());
    file += QByteArray(16, '\0') + "DEBM" + QByteArray(52, '\0') + littleEndian(profileAt)
        + littleEndian(static_cast<quint32>(iccProfile.size())) + littleEndian<quint32>(0);
    return file + palette + rows + iccProfile;
}

QByteArray heicFile(const HeicContents& contents)
{
    const HeifContext context(heif_context_alloc());
    const HeifImage image = heicPixels(contents);
    heif_encoder* found = nullptr;
    check(heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &found));
    const HeifEncoder encoder(found);
    heif_encoder_set_lossy_quality(found, contents.quality);
    heif_encoder_set_parameter_string(found, "preset", "ultrafast");
    heif_encoder_set_parameter_string(found, "chroma", "444");
    const HeifOptions options(heif_encoding_options_alloc());
    options->image_orientation = static_cast<heif_orientation>(contents.transformation);
    heif_image_handle* encoded = nullptr;
    check(heif_context_encode_image(context.get(), image.get(), found, options.get(), &encoded));
    const HeifHandle handle(encoded);
    if (!contents.exif.isEmpty())
        check(heif_context_add_exif_metadata(
            context.get(),
            encoded,
            contents.exif.constData(),
            static_cast<int>(contents.exif.size())
        ));
    if (!contents.xmp.isEmpty())
        check(heif_context_add_XMP_metadata(
            context.get(), encoded, contents.xmp.constData(), static_cast<int>(contents.xmp.size())
        ));
    QByteArray file;
    heif_writer writer = {1, collect};
    check(heif_context_write(context.get(), &writer, &file));
    const bool isTurned = contents.transformation != 1;
    return isTurned && !contents.statesTurnedSize ? withCodedSize(file, contents.size) : file;
}

} // namespace brenvaldo::test
