// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiff_samples.h"

#include "image_node.h"

#include <QFile>
#include <QFileInfo>

#include <tiffio.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace brenvaldo::platform {

namespace {

constexpr int bitsOfByte = 8;

struct TiffCloser
{
    void operator()(TIFF* file) const { TIFFClose(file); }
};

using TiffHandle = std::unique_ptr<TIFF, TiffCloser>;

TiffHandle openTiff(const QString& path)
{
    return TiffHandle(TIFFOpen(QFile::encodeName(path).constData(), "r"));
}

uint16_t numberOf(TIFF* file, uint32_t tag, uint16_t missing)
{
    uint16_t value = 0;
    return TIFFGetFieldDefaulted(file, tag, &value) != 0 ? value : missing;
}

/// True for plain grey, RGB, and RGB with alpha.
bool holdsPlainColors(TIFF* file, int bands)
{
    const int colors = numberOf(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_SEPARATED);
    const bool isPlain = (colors == PHOTOMETRIC_MINISBLACK && bands == 1)
        || (colors == PHOTOMETRIC_RGB && (bands == 3 || bands == 4));
    return isPlain && numberOf(file, TIFFTAG_SAMPLEFORMAT, 0) == SAMPLEFORMAT_UINT;
}

std::optional<TiffStorage> storageOf(TIFF* file, int bands)
{
    constexpr int twelve = 12;
    constexpr int sixteen = 16;
    const int bits = numberOf(file, TIFFTAG_BITSPERSAMPLE, 1);
    const bool isSeparate = numberOf(file, TIFFTAG_PLANARCONFIG, 0) == PLANARCONFIG_SEPARATE;
    const bool isTiled = TIFFIsTiled(file) != 0;
    if (numberOf(file, TIFFTAG_COMPRESSION, 0) == COMPRESSION_OJPEG)
        return TiffStorage::OldJpeg;
    if (!holdsPlainColors(file, bands))
        return std::nullopt;
    if (bits == twelve && !isSeparate && !isTiled)
        return TiffStorage::TwelveBits;
    if ((bits == bitsOfByte || bits == sixteen) && isSeparate && isTiled)
        return TiffStorage::SeparateTiles;
    return std::nullopt;
}

FileLabels labelsOf(TIFF* file)
{
    constexpr double centimetresPerInch = 2.54;
    FileLabels labels;
    uint32_t length = 0;
    const void* profile = nullptr;
    if (TIFFGetField(file, TIFFTAG_ICCPROFILE, &length, &profile) != 0)
        labels.iccProfile = QByteArray(static_cast<const char*>(profile), length);
    float resolution = 0;
    if (TIFFGetField(file, TIFFTAG_XRESOLUTION, &resolution) == 0 || !(resolution > 0))
        return labels;
    const int unit = numberOf(file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    const double inchesPerUnit = unit == RESUNIT_CENTIMETER ? 1 / centimetresPerInch : 1;
    constexpr double metresPerInch = 0.0254;
    labels.dotsPerInch = dotsPerInchOf(double{resolution} / inchesPerUnit / metresPerInch);
    return labels;
}

[[noreturn]] void throwDamaged() { throw vips::VError("the TIFF is damaged"); }

/// Bytes for one piece of the file; absurd lengths are refused.
std::vector<uchar> bufferOf(tmsize_t length)
{
    constexpr tmsize_t longest = tmsize_t{1} << 28;
    if (length <= 0 || length > longest)
        throwDamaged();
    return std::vector<uchar>(static_cast<std::size_t>(length));
}

void readOldJpeg(TIFF* file, const TiffSamples& samples, const vips::VImage& pixels)
{
    const auto width = static_cast<uint32_t>(samples.size.width);
    const auto height = static_cast<uint32_t>(samples.size.height);
    std::vector<uint32_t> raster(std::size_t{width} * height);
    if (TIFFReadRGBAImageOriented(
            file,
            width,
            height,
            raster.data(),
            numberOf(file, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT),
            1
        )
        == 0)
        throwDamaged();
    auto* out = static_cast<uchar*>(const_cast<void*>(pixels.data()));
    for (const uint32_t pixel : raster) {
        *out++ = static_cast<uchar>(TIFFGetR(pixel));
        *out++ = static_cast<uchar>(TIFFGetG(pixel));
        *out++ = static_cast<uchar>(TIFFGetB(pixel));
    }
}

/// Spreads samples of twelve bits, two in three bytes, over the range of sixteen.
void widen(const uchar* packed, std::size_t count, uint16_t* out)
{
    for (std::size_t i = 0; i < count; ++i) {
        const uchar* bytes = packed + i * 3 / 2;
        const unsigned sample = i % 2 == 0
            ? (unsigned{bytes[0]} << 4U) | (unsigned{bytes[1]} >> 4U)
            : ((unsigned{bytes[0]} & 0xFU) << 8U) | unsigned{bytes[1]};
        out[i] = static_cast<uint16_t>((sample << 4U) | (sample >> 8U));
    }
}

void readTwelveBits(TIFF* file, const TiffSamples& samples, const vips::VImage& pixels)
{
    const auto perRow
        = static_cast<std::size_t>(samples.size.width) * static_cast<std::size_t>(samples.bands);
    std::vector<uchar> row = bufferOf(TIFFScanlineSize(file));
    if (row.size() < (perRow * 3 + 1) / 2)
        throwDamaged();
    auto* out = static_cast<uint16_t*>(const_cast<void*>(pixels.data()));
    for (int y = 0; y < samples.size.height; ++y) {
        if (TIFFReadScanline(file, row.data(), static_cast<uint32_t>(y), 0) < 0)
            throwDamaged();
        widen(row.data(), perRow, out);
        out += perRow;
    }
}

/// The part of one band that a tile covers.
struct TilePart
{
    int x = 0;
    int y = 0;
    int tileWidth = 0;
    int tileHeight = 0;
    int band = 0;
};

void placeTile(const uchar* tile, const TilePart& part, const TiffSamples& samples, uchar* pixels)
{
    const auto sampleBytes = static_cast<std::size_t>(samples.bits / bitsOfByte);
    const auto bands = static_cast<std::size_t>(samples.bands);
    const int columns = std::min(part.tileWidth, samples.size.width - part.x);
    const int rows = std::min(part.tileHeight, samples.size.height - part.y);
    for (int row = 0; row < rows; ++row) {
        const uchar* in = tile
            + static_cast<std::size_t>(row) * static_cast<std::size_t>(part.tileWidth)
                * sampleBytes;
        const auto first
            = static_cast<std::size_t>(part.y + row) * static_cast<std::size_t>(samples.size.width)
            + static_cast<std::size_t>(part.x);
        uchar* out = pixels + (first * bands + static_cast<std::size_t>(part.band)) * sampleBytes;
        for (int column = 0; column < columns; ++column) {
            std::memcpy(out, in, sampleBytes);
            in += sampleBytes;
            out += bands * sampleBytes;
        }
    }
}

void readSeparateTiles(TIFF* file, const TiffSamples& samples, const vips::VImage& pixels)
{
    uint32_t width = 0;
    uint32_t height = 0;
    TIFFGetField(file, TIFFTAG_TILEWIDTH, &width);
    TIFFGetField(file, TIFFTAG_TILELENGTH, &height);
    std::vector<uchar> tile = bufferOf(TIFFTileSize(file));
    const auto needed = uint64_t{width} * height * static_cast<uint64_t>(samples.bits / bitsOfByte);
    if (needed == 0 || tile.size() < needed)
        throwDamaged();
    TilePart part{.tileWidth = static_cast<int>(width), .tileHeight = static_cast<int>(height)};
    auto* out = static_cast<uchar*>(const_cast<void*>(pixels.data()));
    for (part.band = 0; part.band < samples.bands; ++part.band) {
        for (part.y = 0; part.y < samples.size.height; part.y += part.tileHeight) {
            for (part.x = 0; part.x < samples.size.width; part.x += part.tileWidth) {
                const tmsize_t read = TIFFReadTile(
                    file,
                    tile.data(),
                    static_cast<uint32_t>(part.x),
                    static_cast<uint32_t>(part.y),
                    0,
                    static_cast<uint16_t>(part.band)
                );
                if (read < 0)
                    throwDamaged();
                placeTile(tile.data(), part, samples, out);
            }
        }
    }
}

/// What a byte of a compression can stand for, rather too much than too little.
double mostBytesOfAByte(int compression, uint32_t width)
{
    switch (compression) {
    case COMPRESSION_NONE:
        return 2; // strips may share their bytes
    case COMPRESSION_PACKBITS:
        return 64; // a run of two bytes makes 128
    case COMPRESSION_LZW:
        return 2 * 4096; // a code of at least nine bits, the longest string
    case COMPRESSION_DEFLATE:
    case COMPRESSION_ADOBE_DEFLATE:
        return 1032; // 258 bytes by two bits
    case COMPRESSION_JPEG:
    case COMPRESSION_OJPEG:
        return 8 * 8 * 8 * 4; // four samples of each pixel of a block by a bit
    case COMPRESSION_CCITTRLE:
    case COMPRESSION_CCITTRLEW:
    case COMPRESSION_CCITTFAX3:
    case COMPRESSION_CCITTFAX4:
        return static_cast<double>(width)
            + bitsOfByte; // a row of the colour of the one above takes a bit
    default:
        return 1 << 16; // ZSTD repeats a byte 2^17 times by four
    }
}

} // namespace

PixelLayout layoutOf(const TiffSamples& samples)
{
    const VipsBandFormat format
        = samples.bits > bitsOfByte ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR;
    const ColorModel model = samples.bands == 1 ? ColorModel::Gray : ColorModel::Rgb;
    return {
        .width = samples.size.width,
        .height = samples.size.height,
        .bands = samples.bands,
        .format = format,
        .interpretation = interpretationOf(model, format)};
}

std::optional<TiffSamples> samplesBeyondTheEngine(const QString& path)
{
    const TiffHandle file = openTiff(path);
    uint32_t width = 0;
    uint32_t height = 0;
    constexpr uint32_t longestSide = 0x7FFFFF;
    if (!file || TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &width) == 0
        || TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &height) == 0 || width > longestSide
        || height > longestSide)
        return std::nullopt;
    const int bands = numberOf(file.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
    const auto storage = storageOf(file.get(), bands);
    if (!storage)
        return std::nullopt;
    const bool isDeep = *storage != TiffStorage::OldJpeg
        && numberOf(file.get(), TIFFTAG_BITSPERSAMPLE, 1) > bitsOfByte;
    const int orientation = numberOf(file.get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    return TiffSamples{
        .storage = *storage,
        .size = {static_cast<int>(width), static_cast<int>(height)},
        .bands = *storage == TiffStorage::OldJpeg ? 3 : bands,
        .bits = isDeep ? 2 * bitsOfByte : bitsOfByte,
        .orientation = orientation >= 1 && orientation <= 8 ? orientation : 1,
        .labels = labelsOf(file.get())};
}

void checkTiffSize(const QString& path)
{
    const TiffHandle file = openTiff(path);
    uint32_t width = 0;
    uint32_t height = 0;
    if (!file || TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &width) == 0
        || TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &height) == 0)
        throwDamaged();
    const double samples
        = static_cast<double>(width) * height * numberOf(file.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
    const double bytes = samples * numberOf(file.get(), TIFFTAG_BITSPERSAMPLE, 1) / bitsOfByte;
    const int compression = numberOf(file.get(), TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    if (bytes > static_cast<double>(QFileInfo(path).size()) * mostBytesOfAByte(compression, width))
        throw vips::VError("the file is too short for the size it claims");
}

vips::VImage readTiffSamples(const QString& path, const TiffSamples& samples)
{
    const TiffHandle file = openTiff(path);
    if (!file)
        throwDamaged();
    const vips::VImage pixels = newMemoryPixels(layoutOf(samples));
    switch (samples.storage) {
    case TiffStorage::OldJpeg:
        readOldJpeg(file.get(), samples, pixels);
        break;
    case TiffStorage::TwelveBits:
        readTwelveBits(file.get(), samples, pixels);
        break;
    case TiffStorage::SeparateTiles:
        readSeparateTiles(file.get(), samples, pixels);
        break;
    }
    return pixels;
}

} // namespace brenvaldo::platform
