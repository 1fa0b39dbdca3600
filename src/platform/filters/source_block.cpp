// SPDX-License-Identifier: GPL-3.0-or-later
#include "source_block.h"

#include "transfer_curve.h"

#include <QtGlobal>

#include <algorithm>

namespace brenvaldo::platform::filters {

namespace {

/// Puts the samples into their planes, colours through `color` and the alpha through `share`.
template <class Sample, class Color, class Share>
void spread(
    const Sample* in, int bands, int count, const Color& color, const Share& share, PixelBlock& out
)
{
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i, in += bands) {
        out.red[i] = color(in[0]);
        out.green[i] = color(in[1]);
        out.blue[i] = color(in[2]);
        out.alpha[i] = bands > 3 ? share(in[3]) : 1.0F;
    }
}

void readBytes(const PixelNode& node, const quint8* in, int count, PixelBlock& out)
{
    const auto share = [](quint8 sample) { return static_cast<float>(sample) / 255; };
    const int bands = node.pixels.bands();
    if (node.space == Space::Linear)
        spread(
            in, bands, count, [&table = linearOfBytes()](quint8 s) { return table[s]; }, share, out
        );
    else
        spread(in, bands, count, share, share, out);
}

void readDeepSamples(const PixelNode& node, const quint16* in, int count, PixelBlock& out)
{
    const auto share = [](quint16 sample) { return static_cast<float>(sample) / 65535; };
    spread(in, node.pixels.bands(), count, share, share, out);
    if (node.space == Space::Linear)
        makeLinear(out, out);
}

void readFloats(const PixelNode& node, const float* in, int count, PixelBlock& out)
{
    const auto same = [](float sample) { return sample; };
    spread(in, node.pixels.bands(), count, same, same, out);
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        const float weight = out.alpha[i] > 0 ? 1 / out.alpha[i] : 0.0F;
        out.red[i] *= weight;
        out.green[i] *= weight;
        out.blue[i] *= weight;
    }
}

void clearFrom(std::size_t first, PixelBlock& out)
{
    for (PixelBlock::Plane* plane : {&out.red, &out.green, &out.blue, &out.alpha})
        std::fill(plane->begin() + static_cast<std::ptrdiff_t>(first), plane->end(), 0.0F);
}

} // namespace

void readBlock(const PixelNode& node, const void* samples, int count, PixelBlock& out)
{
    clearFrom(static_cast<std::size_t>(count), out);
    switch (node.pixels.format()) {
    case VIPS_FORMAT_UCHAR:
        readBytes(node, static_cast<const quint8*>(samples), count, out);
        break;
    case VIPS_FORMAT_USHORT:
        readDeepSamples(node, static_cast<const quint16*>(samples), count, out);
        break;
    default:
        readFloats(node, static_cast<const float*>(samples), count, out);
    }
}

} // namespace brenvaldo::platform::filters
