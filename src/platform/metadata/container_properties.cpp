// SPDX-License-Identifier: GPL-3.0-or-later
#include "container_properties.h"

#include "exif_properties.h"

#include <platform/containers/bitmap_header.h>
#include <platform/containers/bytes.h>
#include <platform/containers/gif_blocks.h>
#include <platform/containers/jpeg_segments.h>
#include <platform/containers/png_chunks.h>
#include <platform/containers/signatures.h>
#include <platform/containers/tiff_directory.h>
#include <platform/foundation/inches.h>
#include <platform/foundation/literals.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace brenvaldo::platform::metadata {

using containers::ByteOrder;
using containers::Container;
using containers::PngChunk;
using containers::unsignedAt;

namespace {

QString keyOf(const char* key) { return QString::fromLatin1(key); }

double bigNumber(QByteArrayView bytes, std::uint64_t offset, int width)
{
    return static_cast<double>(unsignedAt(bytes, offset, width, ByteOrder::Big).value_or(0));
}

int bigInteger(QByteArrayView bytes, std::uint64_t offset, int width)
{
    return static_cast<int>(unsignedAt(bytes, offset, width, ByteOrder::Big).value_or(0));
}

int littleInteger(QByteArrayView bytes, std::uint64_t offset, int width)
{
    return static_cast<int>(unsignedAt(bytes, offset, width, ByteOrder::Little).value_or(0));
}

void takeJfif(QByteArrayView payload, ContainerProperties& properties)
{
    enum Unit { None, Inch, Centimetre };
    constexpr qsizetype length = 14;
    if (!payload.startsWith(QByteArrayView("JFIF\0", 5)) || payload.size() < length)
        return;
    const int minor = bigInteger(payload, 6, 1);
    const int unit = bigInteger(payload, 7, 1);
    const int x = bigInteger(payload, 8, 2);
    const int y = bigInteger(payload, 10, 2);
    properties.jfif.insert(
        keyOf("JFIFVersion"),
        PropertyValue::Array{
            PropertyValue(bigInteger(payload, 5, 1)),
            PropertyValue(minor / 10),
            PropertyValue(minor % 10)}
    );
    properties.jfif.insert(keyOf("DensityUnit"), unit);
    properties.jfif.insert(keyOf("XDensity"), x);
    properties.jfif.insert(keyOf("YDensity"), y);
    if (unit != Inch && unit != Centimetre)
        return;
    const double factor = unit == Inch ? 1 : centimetresPerInch;
    properties.dpiWidth = x * factor;
    properties.dpiHeight = y * factor;
}

void takeJpeg(QByteArrayView file, ContainerProperties& properties)
{
    constexpr std::uint8_t progressiveFrame = 0xC2;
    const auto header = containers::readJpegHeader(file);
    if (!header)
        return;
    for (const containers::JpegSegment& segment : header->segments) {
        if (segment.marker == containers::jpeg::app0 && properties.jfif.isEmpty())
            takeJfif(segment.payload, properties);
        if (segment.marker == progressiveFrame)
            properties.jfif.insert(keyOf("IsProgressive"), true);
    }
}

void takeResolution(QByteArrayView data, ContainerProperties& properties)
{
    constexpr int perMetre = 1;
    if (properties.dpiWidth)
        return;
    const double x = bigNumber(data, 0, 4);
    const double y = bigNumber(data, 4, 4);
    if (bigInteger(data, 8, 1) == perMetre) {
        properties.png.insert(keyOf("XPixelsPerMeter"), static_cast<qint64>(x));
        properties.png.insert(keyOf("YPixelsPerMeter"), static_cast<qint64>(y));
        properties.dpiWidth = std::round(x * metresPerInch);
        properties.dpiHeight = std::round(y * metresPerInch);
    } else if (y > 0) {
        properties.png.insert(keyOf("PixelAspectRatio"), x / y);
    }
}

void takeChromaticities(QByteArrayView data, PropertyDictionary& png)
{
    constexpr std::uint64_t count = 8;
    constexpr double unit = 100000;
    PropertyValue::Array values;
    for (std::uint64_t i = 0; i < count; ++i)
        values.append(PropertyValue(bigNumber(data, 4 * i, 4) / unit));
    png.insert(keyOf("Chromaticities"), values);
}

void takePngText(const PngChunk& chunk, PropertyDictionary& png)
{
    static const QStringList known{
        keyOf("Title"),
        keyOf("Author"),
        keyOf("Description"),
        keyOf("Copyright"),
        keyOf("Creation Time"),
        keyOf("Software"),
        keyOf("Disclaimer"),
        keyOf("Warning"),
        keyOf("Source"),
        keyOf("Comment")};
    const auto text = containers::pngText(chunk);
    if (!text)
        return;
    const QString keyword = QString::fromLatin1(text->keyword);
    if (known.contains(keyword) && !png.contains(keyword))
        png.insert(
            keyword, text->isUtf8 ? QString::fromUtf8(text->text) : QString::fromLatin1(text->text)
        );
}

void takeModificationTime(QByteArrayView data, PropertyDictionary& png)
{
    constexpr qsizetype length = 7;
    if (data.size() < length)
        return;
    const auto twoDigits = [&data](std::uint64_t offset) {
        return u"%1"_s.arg(bigInteger(data, offset, 1), 2, 10, QLatin1Char('0'));
    };
    png.insert(
        keyOf("ModificationTime"),
        u"%1:%2:%3 %4:%5:%6"_s.arg(bigInteger(data, 0, 2), 4, 10, QLatin1Char('0'))
            .arg(twoDigits(2), twoDigits(3), twoDigits(4), twoDigits(5), twoDigits(6))
    );
}

void takePngHeader(QByteArrayView data, ContainerProperties& properties)
{
    constexpr int palette = 3;
    properties.isIndexed = bigInteger(data, 9, 1) == palette;
    properties.png.insert(keyOf("InterlaceType"), bigInteger(data, 12, 1));
}

void takePng(QByteArrayView file, ContainerProperties& properties)
{
    constexpr double gammaUnit = 100000;
    const QList<PngChunk> chunks = containers::readPngChunks(file).value_or(QList<PngChunk>());
    for (const PngChunk& chunk : chunks) {
        if (chunk.type == QByteArrayView("IHDR")) {
            takePngHeader(chunk.data, properties);
        } else if (chunk.type == QByteArrayView("gAMA")) {
            properties.png.insert(keyOf("Gamma"), bigNumber(chunk.data, 0, 4) / gammaUnit);
        } else if (chunk.type == QByteArrayView("cHRM")) {
            takeChromaticities(chunk.data, properties.png);
        } else if (chunk.type == QByteArrayView("pHYs")) {
            takeResolution(chunk.data, properties);
        } else if (chunk.type == QByteArrayView("sRGB")) {
            properties.isSrgb = true;
            properties.png.insert(keyOf("sRGBIntent"), bigInteger(chunk.data, 0, 1));
        } else if (chunk.type == QByteArrayView("tIME")) {
            takeModificationTime(chunk.data, properties.png);
        } else {
            takePngText(chunk, properties.png);
        }
    }
}

void takeTiff(QByteArrayView file, ContainerProperties& properties)
{
    constexpr std::uint16_t photometric = 262;
    constexpr std::uint16_t sampleFormat = 339;
    constexpr std::uint64_t palette = 3;
    constexpr std::uint64_t floatingPoint = 3;
    const auto tiff = containers::TiffFile::open(file);
    if (!tiff)
        return;
    const containers::TiffDirectory image = tiff->firstDirectory();
    const auto firstValue = [&](std::uint16_t tag) -> std::uint64_t {
        const containers::TiffField* field = containers::fieldOf(image, tag);
        const QList<std::uint64_t> values
            = field ? containers::unsignedValues(*field, tiff->order()) : QList<std::uint64_t>();
        return values.isEmpty() ? 0 : values.first();
    };
    properties.isIndexed = firstValue(photometric) == palette;
    properties.isFloat = firstValue(sampleFormat) == floatingPoint;
}

/// The delay of a frame, from its graphic control extension; that of the first one counts.
void takeDelay(QByteArrayView control, PropertyDictionary& gif)
{
    constexpr double hundredth = 0.01;
    constexpr double raisedDelay = 0.1;
    if (gif.contains(keyOf("DelayTime")) || !control.startsWith('\x04'))
        return;
    const double delay = littleInteger(control, 2, 2) * hundredth;
    gif.insert(keyOf("DelayTime"), delay <= hundredth ? raisedDelay : delay);
    gif.insert(keyOf("UnclampedDelayTime"), delay);
}

void takeLoopCount(QByteArrayView application, PropertyDictionary& gif)
{
    constexpr QByteArrayView looping("\x0BNETSCAPE2.0\x03\x01", 14);
    if (!gif.contains(keyOf("LoopCount")) && application.startsWith(looping))
        gif.insert(keyOf("LoopCount"), littleInteger(application, looping.size(), 2));
}

void takeGif(QByteArrayView file, ContainerProperties& properties)
{
    properties.isIndexed = true;
    properties.gif.insert(keyOf("CanvasPixelWidth"), littleInteger(file, 6, 2));
    properties.gif.insert(keyOf("CanvasPixelHeight"), littleInteger(file, 8, 2));
    if (containers::hasGlobalPalette(file))
        properties.gif.insert(keyOf("HasGlobalColorMap"), true);
    for (const containers::GifExtension& extension : containers::readGifExtensions(file)) {
        if (extension.label == containers::gif::application)
            takeLoopCount(extension.dataBlocks, properties.gif);
        else if (extension.label == containers::gif::graphicControl)
            takeDelay(extension.dataBlocks, properties.gif);
    }
}

void takeBmp(QByteArrayView file, ContainerProperties& properties)
{
    const containers::BitmapHeader header = containers::readBitmapHeader(file);
    properties.isIndexed = header.isIndexed();
    if (header.resolution) {
        properties.dpiWidth = header.resolution->horizontal;
        properties.dpiHeight = header.resolution->vertical;
    }
}

} // namespace

ContainerProperties containerProperties(QByteArrayView file)
{
    ContainerProperties properties;
    const auto kind = containers::fileKindOf(file);
    if (!kind)
        return properties;
    switch (kind->container) {
    case Container::Jpeg:
        takeJpeg(file, properties);
        break;
    case Container::Png:
        takePng(file, properties);
        break;
    case Container::Gif:
        takeGif(file, properties);
        break;
    case Container::Bitmap:
        takeBmp(file, properties);
        break;
    case Container::Tiff:
        takeTiff(file, properties);
        break;
    default:
        break;
    }
    return properties;
}

} // namespace brenvaldo::platform::metadata
