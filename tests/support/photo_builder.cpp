// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_builder.h"

#include "exif_block.h"
#include "photo_containers.h"

#include <vips/vips8>

#include <QFile>

#include <cmath>

namespace brenvaldo::test {

namespace {

int colorSamples(PhotoModel model)
{
    switch (model) {
    case PhotoModel::Gray:
    case PhotoModel::GrayAlpha:
        return 1;
    case PhotoModel::Rgb:
    case PhotoModel::RgbAlpha:
        return 3;
    case PhotoModel::Cmyk:
        return 4;
    }
    return 0;
}

bool hasAlpha(PhotoModel model)
{
    return model == PhotoModel::GrayAlpha || model == PhotoModel::RgbAlpha;
}

VipsInterpretation interpretation(PhotoModel model, int depth)
{
    if (model == PhotoModel::Cmyk)
        return VIPS_INTERPRETATION_CMYK;
    if (colorSamples(model) == 1)
        return depth == 16 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    return depth == 16 ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
}

/// The blocks at the corners of a marker photo; the middle is dark.
Samples cornerSamples(QSize size, PhotoModel model, int x, int y)
{
    const bool left = x < size.width() / 4;
    const bool right = x >= size.width() - size.width() / 4;
    const bool top = y < size.height() / 4;
    const bool bottom = y >= size.height() - size.height() / 4;
    const int corner = top && left ? 0
        : top && right             ? 1
        : bottom && left           ? 2
        : bottom && right          ? 3
                                   : 4;
    if (colorSamples(model) == 1) {
        constexpr std::array grays = {85, 150, 200, 255, 40};
        return {grays[static_cast<std::size_t>(corner)], 255};
    }
    constexpr std::array<Samples, 5> colors
        = {{{255, 0, 0, 255},
            {0, 255, 0, 255},
            {0, 0, 255, 255},
            {255, 255, 255, 255},
            {40, 40, 40, 255}}};
    return colors[static_cast<std::size_t>(corner)];
}

/// The engine states a resolution where there is none.
QByteArray withoutResolutionChunk(QByteArray png)
{
    constexpr qsizetype chunkLength = 21;
    const qsizetype type = png.indexOf("pHYs");
    return type < 0 ? png : png.remove(type - 4, chunkLength);
}

} // namespace

/// The pixels of a builder for the encoders.
struct PhotoPixels
{
    static QByteArray packed(const PhotoBuilder& photo)
    {
        const int bands = bandCount(photo);
        QByteArray samples;
        samples.reserve(
            qsizetype{photo.m_size.width()} * photo.m_size.height() * bands * photo.m_depth / 8
        );
        for (int y = 0; y < photo.m_size.height(); ++y) {
            for (int x = 0; x < photo.m_size.width(); ++x) {
                const Samples pixel = photo.samplesAt(x, y);
                for (int band = 0; band < bands; ++band) // v * 257 is the byte v twice
                    samples.append(
                        photo.m_depth / 8, static_cast<char>(pixel[static_cast<std::size_t>(band)])
                    );
            }
        }
        return samples;
    }

    static int bandCount(const PhotoBuilder& photo)
    {
        return colorSamples(photo.m_model) + (hasAlpha(photo.m_model) ? 1 : 0);
    }

    static vips::VImage image(const PhotoBuilder& photo)
    {
        const QByteArray samples = packed(photo);
        const vips::VImage pixels(vips_image_new_from_memory_copy(
            samples.constData(),
            static_cast<std::size_t>(samples.size()),
            photo.m_size.width(),
            photo.m_size.height(),
            bandCount(photo),
            photo.m_depth == 16 ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR
        ));
        return pixels.copy(vips::VImage::option()->set(
            "interpretation", interpretation(photo.m_model, photo.m_depth)
        ));
    }
};

PhotoBuilder& PhotoBuilder::size(int width, int height)
{
    m_size = {width, height};
    return *this;
}

PhotoBuilder& PhotoBuilder::model(PhotoModel model)
{
    m_model = model;
    return *this;
}

PhotoBuilder& PhotoBuilder::depth(int bits)
{
    m_depth = bits;
    return *this;
}

PhotoBuilder& PhotoBuilder::solid(const Samples& samples)
{
    m_pattern = Pattern::Solid;
    m_solid = samples;
    return *this;
}

PhotoBuilder& PhotoBuilder::gradient()
{
    m_pattern = Pattern::Gradient;
    return *this;
}

PhotoBuilder& PhotoBuilder::corners()
{
    m_pattern = Pattern::Corners;
    return *this;
}

PhotoBuilder& PhotoBuilder::pixels(std::function<Samples(int, int)> rule)
{
    m_pattern = Pattern::Rule;
    m_rule = std::move(rule);
    return *this;
}

PhotoBuilder& PhotoBuilder::orientation(int orientation)
{
    m_orientation = orientation;
    return *this;
}

PhotoBuilder& PhotoBuilder::dotsPerInch(double dotsPerInch)
{
    m_dotsPerInch = dotsPerInch;
    return *this;
}

PhotoBuilder& PhotoBuilder::iccProfile(const QByteArray& profile)
{
    m_iccProfile = profile;
    return *this;
}

PhotoBuilder& PhotoBuilder::exif(const QByteArray& block)
{
    m_exif = block;
    return *this;
}

PhotoBuilder& PhotoBuilder::xmp(const QByteArray& packet)
{
    m_xmp = packet;
    return *this;
}

PhotoBuilder& PhotoBuilder::jpegSegment(char marker, const QByteArray& contents)
{
    m_jpegSegments += ::brenvaldo::test::jpegSegment(marker, contents);
    return *this;
}

PhotoBuilder& PhotoBuilder::heicTransformation(int orientation)
{
    m_heicTransformation = orientation;
    return *this;
}

PhotoBuilder& PhotoBuilder::statesTurnedSize()
{
    m_statesTurnedSize = true;
    return *this;
}

PhotoBuilder& PhotoBuilder::format(PhotoFormat format)
{
    m_format = format;
    return *this;
}

PhotoBuilder& PhotoBuilder::quality(int quality)
{
    m_quality = quality;
    return *this;
}

Samples PhotoBuilder::samplesAt(int x, int y) const
{
    const int across = x * 255 / std::max(1, m_size.width() - 1);
    const int down = y * 255 / std::max(1, m_size.height() - 1);
    switch (m_pattern) {
    case Pattern::Solid:
        return m_solid;
    case Pattern::Corners:
        return cornerSamples(m_size, m_model, x, y);
    case Pattern::Rule:
        return m_rule(x, y);
    case Pattern::Gradient:
        break;
    }
    if (colorSamples(m_model) == 1)
        return {across, down};
    return {
        across, down, 255 - (across + down) / 2, m_model == PhotoModel::Cmyk ? down / 2 : across};
}

QByteArray PhotoBuilder::exifBytes() const
{
    if (!m_exif.isEmpty() || m_orientation == 0)
        return m_exif;
    return exifBlock({.orientation = m_orientation});
}

QByteArray PhotoBuilder::jpeg() const
{
    const bool isProgressive = m_format == PhotoFormat::ProgressiveJpeg;
    VipsBlob* blob = PhotoPixels::image(*this).jpegsave_buffer(
        vips::VImage::option()
            ->set("Q", m_quality)
            ->set("strip", true)
            ->set("interlace", isProgressive)
            ->set("subsample_mode", VIPS_FOREIGN_SUBSAMPLE_OFF)
    );
    QByteArray file = bytesOf(blob);
    QByteArray segments;
    if (m_dotsPerInch > 0)
        segments += jfifSegment(m_dotsPerInch);
    if (!exifBytes().isEmpty())
        segments += test::jpegSegment('\xE1', QByteArray("Exif\0\0", 6) + exifBytes());
    if (!m_xmp.isEmpty())
        segments
            += test::jpegSegment('\xE1', QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + m_xmp);
    if (!m_iccProfile.isEmpty())
        segments += profileSegments(m_iccProfile);
    for (const QByteArray& segment : m_jpegSegments)
        segments += segment;
    return file.insert(2, segments);
}

QByteArray PhotoBuilder::png() const
{
    VipsBlob* blob = PhotoPixels::image(*this).pngsave_buffer(
        vips::VImage::option()->set("strip", true)->set("bitdepth", m_depth)
    );
    return withoutResolutionChunk(bytesOf(blob))
        .insert(
            pngChunksAt,
            pngMetadata(
                {.dotsPerInch = m_dotsPerInch,
                 .iccProfile = m_iccProfile,
                 .exif = exifBytes(),
                 .xmp = m_xmp}
            )
        );
}

QByteArray PhotoBuilder::bmp() const
{
    return bmpFile(
        m_size,
        colorSamples(m_model),
        m_dotsPerInch,
        m_iccProfile,
        [this](int x, int y) { return samplesAt(x, y); }
    );
}

QByteArray PhotoBuilder::heic() const
{
    return heicFile({
        .size = m_size,
        .hasAlpha = hasAlpha(m_model),
        .samples = PhotoPixels::packed(*this),
        .iccProfile = m_iccProfile,
        .exif = exifBytes(),
        .xmp = m_xmp,
        .transformation = m_heicTransformation,
        .statesTurnedSize = m_statesTurnedSize,
        .quality = m_quality,
    });
}

QByteArray PhotoBuilder::bytes() const
{
    switch (m_format) {
    case PhotoFormat::Jpeg:
    case PhotoFormat::ProgressiveJpeg:
        return jpeg();
    case PhotoFormat::Png:
        return png();
    case PhotoFormat::Tiff:
        return tiffFile(PhotoPixels::image(*this), m_orientation, m_dotsPerInch, m_iccProfile);
    case PhotoFormat::Bmp:
        return bmp();
    case PhotoFormat::Gif:
        return bytesOf(PhotoPixels::image(*this).gifsave_buffer());
    case PhotoFormat::Jpeg2000:
        return bytesOf(PhotoPixels::image(*this).jp2ksave_buffer(
            vips::VImage::option()->set("lossless", m_quality == 100)->set("Q", m_quality)
        ));
    case PhotoFormat::Heic:
        return heic();
    }
    return {};
}

QString PhotoBuilder::write(const QString& path) const
{
    const QByteArray contents = bytes();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("a photo of a test can't be written");
    return path;
}

} // namespace brenvaldo::test
