// SPDX-License-Identifier: GPL-3.0-or-later
#include "png_labels.h"

#include "image_node.h"

#include <platform/containers/inflate.h>

#include <QtEndian>

namespace brenvaldo::platform {

namespace {

constexpr qint64 signatureLength = 8;
constexpr qint64 checksumLength = 4;
constexpr qint64 resolutionLength = 9;
constexpr qsizetype longestChunk = qsizetype{16} << 20;
constexpr qsizetype longestProfile = qsizetype{64} << 20;

QByteArray bigEndian32(quint32 value)
{
    QByteArray bytes(sizeof(value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// The profile in the data of its chunk: a name, a zero, the method zero, a zlib stream.
QByteArray profileOf(const QByteArray& chunkData)
{
    const qsizetype nameEnd = chunkData.indexOf('\0');
    constexpr qsizetype endAndMethod = 2;
    if (nameEnd < 0 || nameEnd + endAndMethod > chunkData.size())
        return {};
    const auto stream = QByteArrayView(chunkData).sliced(nameEnd + endAndMethod);
    return inflated(stream, longestProfile).value_or(QByteArray());
}

/// The resolution in the data of its chunk: pixels a unit in each direction, the unit.
std::optional<double> resolutionOf(const QByteArray& chunkData)
{
    constexpr char metre = 1;
    if (chunkData.size() < resolutionLength || chunkData.back() != metre)
        return std::nullopt;
    const auto pixelsPerMetre = qFromBigEndian<quint32>(chunkData.constData());
    return pixelsPerMetre == 0 ? std::nullopt : std::optional(dotsPerInchOf(pixelsPerMetre));
}

} // namespace

QByteArray pngProfileChunk(const QByteArray& profile)
{
    if (profile.isEmpty())
        return {};
    const QByteArray data = QByteArray("ICC Profile\0\0", 13) + deflated(profile);
    const QByteArray typeAndData = "iCCP" + data;
    return bigEndian32(static_cast<quint32>(data.size())) + typeAndData
        + bigEndian32(crc32Of(typeAndData));
}

FileLabels readPngLabels(QIODevice& file)
{
    constexpr qint64 headLength = 8;
    FileLabels labels;
    for (qint64 offset = signatureLength; file.seek(offset);) {
        const QByteArray head = file.read(headLength);
        if (head.size() < headLength || head.endsWith("IDAT"))
            break;
        const qint64 length = qFromBigEndian<quint32>(head.constData());
        if (head.endsWith("iCCP") && labels.iccProfile.isEmpty() && length <= longestChunk)
            labels.iccProfile = profileOf(file.read(length));
        else if (head.endsWith("pHYs") && !labels.dotsPerInch)
            labels.dotsPerInch = resolutionOf(file.read(resolutionLength));
        offset += headLength + length + checksumLength;
    }
    labels.dotsPerInch = labels.dotsPerInch.value_or(ImageNode().dotsPerInch);
    return labels;
}

} // namespace brenvaldo::platform
