// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_facts.h"

#include <QtEndian>

#include <cmath>

namespace brenvaldo::platform {

namespace {

constexpr quint32 orientationTag = 0x0112;
constexpr quint32 horizontalResolutionTag = 0x011A;
constexpr quint32 resolutionUnitTag = 0x0128;
constexpr quint32 thumbnailOffsetTag = 0x0201;
constexpr quint32 thumbnailLengthTag = 0x0202;

/// Numbers of a block of either byte order; positions outside of it give nothing.
class TiffBlock
{
public:
    explicit TiffBlock(QByteArrayView bytes)
        : m_bytes(bytes)
        , m_isBigEndian(bytes.startsWith("MM"))
    {
    }

    [[nodiscard]] std::optional<quint32> number16(quint32 at) const { return number<quint16>(at); }

    [[nodiscard]] std::optional<quint32> number32(quint32 at) const { return number<quint32>(at); }

    [[nodiscard]] QByteArray slice(quint32 at, quint32 length) const
    {
        const auto size = static_cast<quint64>(m_bytes.size());
        if (length == 0 || quint64{at} + length > size)
            return {};
        return m_bytes.sliced(at, length).toByteArray();
    }

private:
    template <typename Integer>
    [[nodiscard]] std::optional<quint32> number(quint32 at) const
    {
        if (quint64{at} + sizeof(Integer) > static_cast<quint64>(m_bytes.size()))
            return std::nullopt;
        const char* place = m_bytes.data() + at;
        return m_isBigEndian ? qFromBigEndian<Integer>(place) : qFromLittleEndian<Integer>(place);
    }

    QByteArrayView m_bytes;
    bool m_isBigEndian;
};

constexpr quint32 entrySize = 12;

/// Place of the value field of a tag in the directory at `directory`.
std::optional<quint32> valueField(const TiffBlock& block, quint32 directory, quint32 tag)
{
    const quint32 count = block.number16(directory).value_or(0);
    for (quint32 i = 0; i < count; ++i) {
        const quint32 entry = directory + 2 + i * entrySize;
        const auto found = block.number16(entry);
        if (!found)
            return std::nullopt;
        if (*found == tag)
            return entry + 8;
    }
    return std::nullopt;
}

std::optional<quint32> unsignedValue(const TiffBlock& block, quint32 directory, quint32 tag)
{
    constexpr quint32 shortType = 3;
    constexpr quint32 longType = 4;
    const auto field = valueField(block, directory, tag);
    if (!field)
        return std::nullopt;
    const auto type = block.number16(*field - 6);
    if (type == shortType)
        return block.number16(*field);
    return type == longType ? block.number32(*field) : std::nullopt;
}

std::optional<double> rationalValue(const TiffBlock& block, quint32 directory, quint32 tag)
{
    const auto field = valueField(block, directory, tag);
    const auto place = field ? block.number32(*field) : std::nullopt;
    if (!place || *place > 0x7FFFFFFFU)
        return std::nullopt;
    const auto numerator = block.number32(*place);
    const auto denominator = block.number32(*place + 4);
    if (!numerator || denominator.value_or(0) == 0)
        return std::nullopt;
    return static_cast<double>(*numerator) / *denominator;
}

std::optional<double> dotsPerInch(const TiffBlock& block, quint32 directory)
{
    constexpr quint32 perCentimetre = 3;
    constexpr double centimetresPerInch = 2.54;
    const auto resolution = rationalValue(block, directory, horizontalResolutionTag);
    if (!resolution || *resolution <= 0)
        return std::nullopt;
    const bool isMetric = unsignedValue(block, directory, resolutionUnitTag) == perCentimetre;
    return isMetric ? *resolution * centimetresPerInch : *resolution;
}

QByteArray thumbnail(const TiffBlock& block, quint32 mainDirectory)
{
    const quint32 entries = block.number16(mainDirectory).value_or(0);
    const quint32 directory = block.number32(mainDirectory + 2 + entries * entrySize).value_or(0);
    if (directory == 0 || directory > 0x7FFFFFFFU)
        return {};
    const auto at = unsignedValue(block, directory, thumbnailOffsetTag);
    const auto length = unsignedValue(block, directory, thumbnailLengthTag);
    return at && length ? block.slice(*at, *length) : QByteArray();
}

} // namespace

ExifFacts readExifFacts(QByteArrayView bytes)
{
    ExifFacts facts;
    if (!bytes.startsWith("II") && !bytes.startsWith("MM"))
        return facts;
    const TiffBlock block(bytes);
    const quint32 directory = block.number32(4).value_or(0);
    if (directory == 0 || directory > 0x7FFFFFFFU)
        return facts;
    const quint32 orientation = unsignedValue(block, directory, orientationTag).value_or(1);
    facts.orientation = orientation >= 1 && orientation <= 8 ? static_cast<int>(orientation) : 1;
    facts.dotsPerInch = dotsPerInch(block, directory);
    facts.thumbnail = thumbnail(block, directory);
    return facts;
}

QByteArray exifOfResolution(double dotsPerInch)
{
    QByteArray block("MM\0*\0\0\0\x08\0\x03", 10);
    const auto append = [&block](auto value) {
        char bytes[sizeof(value)];
        qToBigEndian(value, bytes);
        block.append(bytes, sizeof(value));
    };
    constexpr quint32 denominator = 1000;
    constexpr quint32 firstRational = 50;
    const auto entry = [&append](quint16 tag, quint16 type, quint32 value) {
        append(tag);
        append(type);
        append(quint32{1});
        append(value);
    };
    entry(0x011A, 5, firstRational);
    entry(0x011B, 5, firstRational + 8);
    entry(0x0128, 3, quint32{2} << 16U); // inch
    append(quint32{0});
    for (int side = 0; side < 2; ++side) {
        append(static_cast<quint32>(std::lround(dotsPerInch * denominator)));
        append(denominator);
    }
    return block;
}

} // namespace brenvaldo::platform
