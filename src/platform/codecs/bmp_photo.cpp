// SPDX-License-Identifier: GPL-3.0-or-later
#include "claimed_size.h"
#include "opened_photo.h"
#include "photo_decoder.h"

#include <platform/containers/bitmap_header.h>
#include <platform/containers/bytes.h>
#include <platform/containers/mapped_file.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/regular_file.h>
#include <platform/graphics/color_profile.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/qt_pixels.h>

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <cstdlib>

namespace brenvaldo::platform::codecs {

namespace {

using containers::BitmapCompression;
using containers::BitmapHeader;

/// True when every colour of the palette is a grey.
bool isGrayPalette(QByteArrayView palette, qsizetype entrySize)
{
    for (qsizetype at = 0; at + entrySize <= palette.size(); at += entrySize) {
        if (palette[at] != palette[at + 1] || palette[at] != palette[at + 2])
            return false;
    }
    return palette.size() >= entrySize;
}

/// True when the file is indexed and its colours, up to the pixels at most, are greys.
bool hasGrayPalette(QByteArrayView head, const BitmapHeader& header)
{
    if (header.bitsPerPixel > 8 || header.paletteAt >= header.pixelsAt)
        return false;
    const QByteArrayView palette = containers::tailOf(head, header.paletteAt);
    const auto entrySize = static_cast<std::uint64_t>(header.paletteEntrySize);
    const std::uint64_t length = std::min(
        entrySize << static_cast<unsigned>(header.bitsPerPixel), header.pixelsAt - header.paletteAt
    );
    return isGrayPalette(
        palette.first(std::min(palette.size(), static_cast<qsizetype>(length))),
        header.paletteEntrySize
    );
}

/// Bytes up to the last pixel; 0 when the pixels are compressed.
qint64 expectedFileSize(const BitmapHeader& header, graphics::PixelSize size)
{
    if (header.compression != BitmapCompression::None
        && header.compression != BitmapCompression::BitFields)
        return 0;
    const qint64 rowBytes = (qint64{size.width} * header.bitsPerPixel + 31) / 32 * 4;
    return static_cast<qint64>(header.pixelsAt) + rowBytes * size.height;
}

QByteArray embeddedProfile(QFile& file, const BitmapHeader& header)
{
    constexpr std::uint64_t longestProfile = std::uint64_t{64} << 20;
    if (header.profileSize == 0 || header.profileSize > longestProfile
        || !file.seek(static_cast<qint64>(header.profileAt)))
        return {};
    const auto size = static_cast<qint64>(header.profileSize);
    const QByteArray profile = file.read(size);
    return profile.size() == size ? profile : QByteArray();
}

/// Bits of a pixel in run lengths; 0 when the pixels are stored otherwise.
int bitsOfRuns(const BitmapHeader& header)
{
    switch (header.compression) {
    case BitmapCompression::RunsOfBytes:
        return 8;
    case BitmapCompression::RunsOfNibbles:
        return 4;
    default:
        return 0;
    }
}

bool holdsWholeRuns(const QString& path, const BitmapHeader& header, graphics::PixelSize size)
{
    const int bits = bitsOfRuns(header);
    if (bits == 0)
        return true;
    const containers::MappedFile file(path);
    return codecs::holdsWholeRuns(containers::tailOf(file.bytes(), header.pixelsAt), bits, size);
}

/// A bitmap file; decoded whole.
class BitmapPhoto : public PhotoDecoder
{
public:
    explicit BitmapPhoto(const QString& path)
        : m_file(std::make_shared<OpenedPhoto>(path))
    {
        QFile file(m_file->path());
        QImageReader reader(&file, "bmp");
        if (!openRegularFile(file) || !reader.canRead())
            throw vips::VError("no bitmap header");
        const QSize size = reader.size();
        const bool hasAlpha = reader.imageFormat() == QImage::Format_ARGB32;
        file.seek(0);
        constexpr qint64 headLength = 2048; // the headers and the largest palette
        m_header.storedSize
            = {size.width(), std::abs(size.height())}; // negative: from the top down
        checkDecodedWhole(m_header.storedSize);
        const QByteArray head = file.read(headLength);
        const BitmapHeader bitmap = containers::readBitmapHeader(head);
        if (file.size() < expectedFileSize(bitmap, m_header.storedSize)
            || !holdsWholeRuns(m_file->path(), bitmap, m_header.storedSize))
            throw vips::VError("the bitmap is truncated");
        m_header.uprightSize = m_header.storedSize;
        m_header.typeIdentifier = u"com.microsoft.bmp"_s;
        const bool isGray = hasGrayPalette(head, bitmap);
        m_header.colorModel = isGray ? graphics::ColorModel::Gray : graphics::ColorModel::Rgb;
        m_header.hasAlpha = hasAlpha && !isGray;
        if (bitmap.resolution)
            m_header.dotsPerInch = bitmap.resolution->horizontal;
        m_iccProfile = graphics::usableProfile(embeddedProfile(file, bitmap), m_header.colorModel);
    }

    [[nodiscard]] const ImageHeader& header() const override { return m_header; }

    [[nodiscard]] graphics::ImageNode storedPixels(int /*shrink*/) const override
    {
        graphics::ImageNode node;
        node.colorModel = m_header.colorModel;
        node.hasAlpha = m_header.hasAlpha;
        node.dotsPerInch = m_header.dotsPerInch;
        node.iccProfile = m_iccProfile;
        const graphics::PixelLayout layout = {
            .width = m_header.storedSize.width,
            .height = m_header.storedSize.height,
            .bands = graphics::colorBands(node.colorModel) + (node.hasAlpha ? 1 : 0),
            .format = VIPS_FORMAT_UCHAR,
            .interpretation = graphics::interpretationOf(node.colorModel, VIPS_FORMAT_UCHAR),
        };
        node.decodingBytes = graphics::sizeOf(layout);
        node.pixels = graphics::deferredPixels(layout, [file = m_file, layout] {
            QImageReader reader(file->path(), "bmp");
            const QImage image = reader.read();
            if (image.isNull())
                throw vips::VError("the bitmap is damaged");
            return graphics::pixelsOf(image, layout);
        });
        return node;
    }

private:
    SharedPhoto m_file;
    ImageHeader m_header;
    QByteArray m_iccProfile;
};

} // namespace

std::unique_ptr<PhotoDecoder> openBitmapPhoto(const QString& path)
{
    return std::make_unique<BitmapPhoto>(path);
}

} // namespace brenvaldo::platform::codecs
