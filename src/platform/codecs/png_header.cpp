// SPDX-License-Identifier: GPL-3.0-or-later
#include "png_header.h"

#include <platform/containers/bytes.h>
#include <platform/containers/inflate.h>
#include <platform/containers/png_chunks.h>
#include <platform/graphics/image_node.h>

namespace brenvaldo::platform::codecs {

using containers::PngChunk;

namespace {

/// The resolution in the data of its chunk: pixels a unit in each direction, the unit.
std::optional<double> resolutionOf(const PngChunk& chunk)
{
    constexpr std::uint64_t metre = 1;
    const auto pixelsPerUnit
        = containers::unsignedAt(chunk.data, 0, 4, containers::ByteOrder::Big).value_or(0);
    const bool isMetric
        = containers::unsignedAt(chunk.data, 8, 1, containers::ByteOrder::Big) == metre;
    if (chunk.type != QByteArrayView("pHYs") || !isMetric || pixelsPerUnit == 0)
        return std::nullopt;
    return graphics::dotsPerInchOf(static_cast<double>(pixelsPerUnit));
}

} // namespace

QByteArray pngProfileChunk(const QByteArray& profile)
{
    if (profile.isEmpty())
        return {};
    return containers::pngChunk(
        "iCCP", QByteArray("ICC Profile\0\0", 13) + containers::deflated(profile)
    );
}

HeaderFacts readPngHeaderFacts(QByteArrayView file)
{
    HeaderFacts facts;
    for (const PngChunk& chunk : containers::readPngHeadChunks(file).value_or(QList<PngChunk>())) {
        if (facts.iccProfile.isEmpty())
            facts.iccProfile = containers::pngProfile(chunk);
        if (!facts.dotsPerInch)
            facts.dotsPerInch = resolutionOf(chunk);
    }
    facts.dotsPerInch = facts.dotsPerInch.value_or(graphics::ImageNode().dotsPerInch);
    return facts;
}

} // namespace brenvaldo::platform::codecs
