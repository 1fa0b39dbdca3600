// SPDX-License-Identifier: GPL-3.0-or-later
#include "claimed_size.h"
#include "photo_decoder.h"

#include <platform/containers/bytes.h>
#include <platform/containers/mapped_file.h>
#include <platform/foundation/inches.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/regular_file.h>
#include <platform/graphics/color_profile.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/qt_pixels.h>

#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace brenvaldo::platform::codecs {

namespace {

/// The fields of a bitmap file header that the reader behind it doesn't tell.
struct BitmapFacts
{
    double dotsPerInch = 72;
    bool isGray = false;
    qint64 profileOffset = 0;
    qint64 profileSize = 0; ///< 0 without an embedded profile
    qint64 expectedSize = 0; ///< of the file; 0 when the pixels are compressed
    quint32 runsOffset = 0;
    int runsBits = 0; ///< of a pixel; 0 when the pixels are no run lengths
};

/// True when every colour of the palette is a grey.
bool isGrayPalette(QByteArrayView palette, qsizetype entrySize)
{
    for (qsizetype at = 0; at + entrySize <= palette.size(); at += entrySize) {
        if (palette[at] != palette[at + 1] || palette[at] != palette[at + 2])
            return false;
    }
    return palette.size() >= entrySize;
}

/// Where the profile stands; the newest form of the header alone has one.
void readProfilePlace(const QByteArray& head, qsizetype infoAt, BitmapFacts& facts)
{
    constexpr quint32 newestHeaderSize = 124;
    constexpr quint32 embedded = 0x4D424544; // "MBED"
    constexpr qint64 longestProfile = qint64{64} << 20;
    const char* info = head.constData() + infoAt;
    if (head.size() < infoAt + qsizetype{newestHeaderSize}
        || qFromLittleEndian<quint32>(info) < newestHeaderSize
        || qFromLittleEndian<quint32>(info + 56) != embedded)
        return;
    const qint64 size = qFromLittleEndian<quint32>(info + 116);
    facts.profileOffset = infoAt + qint64{qFromLittleEndian<quint32>(info + 112)};
    facts.profileSize = size <= longestProfile ? size : 0;
}

BitmapFacts readFacts(const QByteArray& head, graphics::PixelSize size)
{
    constexpr qsizetype fileHeaderSize = 14;
    constexpr quint32 oldHeaderSize = 12;
    constexpr qsizetype headerSize = 54;
    BitmapFacts facts;
    if (head.size() < headerSize)
        return facts;
    const char* bytes = head.constData();
    const auto pixelsAt = qFromLittleEndian<quint32>(bytes + 10);
    const auto infoSize = qFromLittleEndian<quint32>(bytes + 14);
    const bool isOld = infoSize == oldHeaderSize;
    const int bits = qFromLittleEndian<quint16>(bytes + (isOld ? 24 : 28));
    const quint32 compression = isOld ? 0 : qFromLittleEndian<quint32>(bytes + 30);
    const auto perMetre = isOld ? 0 : qFromLittleEndian<qint32>(bytes + 38);
    if (perMetre > 0)
        facts.dotsPerInch = std::round(perMetre * metresPerInch);
    readProfilePlace(head, fileHeaderSize, facts);
    const qsizetype paletteAt = fileHeaderSize + static_cast<qsizetype>(infoSize);
    if (bits <= 8 && paletteAt < static_cast<qsizetype>(pixelsAt)) {
        const qsizetype colors = qsizetype{1} << bits;
        const qsizetype entrySize = isOld ? 3 : 4;
        const qsizetype length
            = std::min(colors * entrySize, static_cast<qsizetype>(pixelsAt) - paletteAt);
        facts.isGray = isGrayPalette(head.mid(paletteAt, length), entrySize);
    }
    constexpr quint32 runsOfEightBits = 1;
    constexpr quint32 runsOfFourBits = 2;
    if (compression == runsOfEightBits || compression == runsOfFourBits) {
        facts.runsOffset = pixelsAt;
        facts.runsBits = compression == runsOfEightBits ? 8 : 4;
    }
    constexpr quint32 bitFields = 3;
    if (compression == 0 || compression == bitFields) {
        const qint64 rowBytes = (qint64{size.width} * bits + 31) / 32 * 4;
        facts.expectedSize = pixelsAt + rowBytes * size.height;
    }
    return facts;
}

QByteArray embeddedProfile(QFile& file, const BitmapFacts& facts)
{
    if (facts.profileSize == 0 || !file.seek(facts.profileOffset))
        return {};
    const QByteArray profile = file.read(facts.profileSize);
    return profile.size() == facts.profileSize ? profile : QByteArray();
}

bool holdsWholeRuns(const QString& path, const BitmapFacts& facts, graphics::PixelSize size)
{
    if (facts.runsBits == 0)
        return true;
    const containers::MappedFile file(path);
    return codecs::holdsWholeRuns(
        containers::tailOf(file.bytes(), facts.runsOffset), facts.runsBits, size
    );
}

/// A bitmap file; decoded whole.
class BitmapPhoto : public PhotoDecoder
{
public:
    explicit BitmapPhoto(QString path)
        : m_path(std::move(path))
    {
        QFile file(m_path);
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
        const BitmapFacts facts = readFacts(file.read(headLength), m_header.storedSize);
        if (file.size() < facts.expectedSize || !holdsWholeRuns(m_path, facts, m_header.storedSize))
            throw vips::VError("the bitmap is truncated");
        m_header.uprightSize = m_header.storedSize;
        m_header.typeIdentifier = u"com.microsoft.bmp"_s;
        m_header.colorModel = facts.isGray ? graphics::ColorModel::Gray : graphics::ColorModel::Rgb;
        m_header.hasAlpha = hasAlpha && !facts.isGray;
        m_header.dotsPerInch = facts.dotsPerInch;
        m_iccProfile = graphics::usableProfile(embeddedProfile(file, facts), m_header.colorModel);
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
        node.pixels = graphics::deferredPixels(layout, [path = m_path, layout] {
            QImageReader reader(path, "bmp");
            const QImage image = reader.read();
            if (image.isNull())
                throw vips::VError("the bitmap is damaged");
            return graphics::pixelsOf(image, layout);
        });
        return node;
    }

private:
    QString m_path;
    ImageHeader m_header;
    QByteArray m_iccProfile;
};

} // namespace

std::unique_ptr<PhotoDecoder> openBitmapPhoto(const QString& path)
{
    return std::make_unique<BitmapPhoto>(path);
}

} // namespace brenvaldo::platform::codecs
