// SPDX-License-Identifier: GPL-3.0-or-later
#include "png_labels.h"

#include "image_node.h"

#include <platform/containers/bytes.h>
#include <platform/containers/inflate.h>
#include <platform/containers/png_chunks.h>

namespace brenvaldo::platform {

namespace {

/// The resolution in the data of its chunk: pixels a unit in each direction, the unit.
std::optional<double> resolutionOf(const PngChunk& chunk)
{
    constexpr std::uint64_t metre = 1;
    const auto pixelsPerUnit = unsignedAt(chunk.data, 0, 4, ByteOrder::Big).value_or(0);
    const bool isMetric = unsignedAt(chunk.data, 8, 1, ByteOrder::Big) == metre;
    if (chunk.type != QByteArrayView("pHYs") || !isMetric || pixelsPerUnit == 0)
        return std::nullopt;
    return dotsPerInchOf(static_cast<double>(pixelsPerUnit));
}

} // namespace

QByteArray pngProfileChunk(const QByteArray& profile)
{
    if (profile.isEmpty())
        return {};
    return pngChunk("iCCP", QByteArray("ICC Profile\0\0", 13) + deflated(profile));
}

FileLabels readPngLabels(QByteArrayView file)
{
    FileLabels labels;
    for (const PngChunk& chunk : readPngHeadChunks(file).value_or(QList<PngChunk>())) {
        if (labels.iccProfile.isEmpty())
            labels.iccProfile = pngProfile(chunk);
        if (!labels.dotsPerInch)
            labels.dotsPerInch = resolutionOf(chunk);
    }
    labels.dotsPerInch = labels.dotsPerInch.value_or(ImageNode().dotsPerInch);
    return labels;
}

} // namespace brenvaldo::platform
