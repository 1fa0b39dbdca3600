// SPDX-License-Identifier: GPL-3.0-or-later
#include "resize_rules.h"

#include <platform/foundation/numbers.h>

#include <cstdint>

namespace brenvaldo::imaging {

using platform::truncated;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

namespace {

constexpr int longestDrawnSide = 10'000'000;
constexpr std::int64_t mostDrawnPixels = std::int64_t{1} << 30;

/// Percentage that takes a side of `from` pixels to `to` pixels.
double percentOf(int to, int from)
{
    const double hundredfold = platform::wrapped32(std::int64_t{to} * 100);
    return hundredfold / static_cast<double>(from);
}

int follow(int side, double percent) { return truncated(side * percent / 100.0); }

/// A side of a covering picture. Of two equal proportions the division may lose the last pixel.
int followToCover(int side, double percent, int box)
{
    const int followed = follow(side, percent);
    return std::int64_t{box} - followed == 1 ? box : followed;
}

PixelSize byWidth(PixelSize photo, int width)
{
    return {width, follow(photo.height, percentOf(width, photo.width))};
}

PixelSize byHeight(PixelSize photo, int height)
{
    return {follow(photo.width, percentOf(height, photo.height)), height};
}

} // namespace

MaximumType maximumTypeAt(int index)
{
    switch (index) {
    case 0:
        return MaximumType::Width;
    case 1:
        return MaximumType::Height;
    case 2:
        return MaximumType::LongestSide;
    default:
        return MaximumType::Percentage;
    }
}

PixelSize maximumTarget(PixelSize photo, int value, MaximumType type)
{
    switch (type) {
    case MaximumType::Width:
        return byWidth(photo, value);
    case MaximumType::Height:
        return byHeight(photo, value);
    case MaximumType::LongestSide:
        return photo.width > photo.height ? byWidth(photo, value) : byHeight(photo, value);
    case MaximumType::Percentage:
        return {follow(photo.width, value), follow(photo.height, value)};
    }
    return {};
}

PixelSize coveringSize(PixelSize photo, PixelSize box)
{
    const double percentByWidth = percentOf(box.width, photo.width);
    const double percentByHeight = percentOf(box.height, photo.height);
    if (percentByHeight > percentByWidth)
        return {followToCover(photo.width, percentByHeight, box.width), box.height};
    return {box.width, followToCover(photo.height, percentByWidth, box.height)};
}

PixelRect centredCut(PixelSize scaled, PixelSize box)
{
    return {
        static_cast<int>((std::int64_t{scaled.width} - box.width) / 2),
        static_cast<int>((std::int64_t{scaled.height} - box.height) / 2),
        box.width,
        box.height,
    };
}

bool givesContext(PixelSize size)
{
    return size.isValid() && size.width <= longestDrawnSide && size.height <= longestDrawnSide
        && std::int64_t{size.width} * size.height <= mostDrawnPixels;
}

} // namespace brenvaldo::imaging
