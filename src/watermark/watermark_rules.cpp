// SPDX-License-Identifier: GPL-3.0-or-later
#include "watermark_rules.h"

#include <platform/foundation/numbers.h>

#include <cmath>

namespace brenvaldo::watermark {

namespace {

constexpr int topLeft = 0;
constexpr int bottomLeft = 6;
constexpr int gridColumns = 3;

/// 0, half or all of the room that the layer leaves along a side.
double anchored(int step, int photo, int layer) { return (photo - layer) * 0.5 * step; }

} // namespace

QPoint anchoredOrigin(
    const Placement& placement,
    platform::graphics::PixelSize photo,
    platform::graphics::PixelSize layer
)
{
    using platform::truncated;
    const double baseX = anchored(placement.anchor % gridColumns, photo.width, layer.width);
    const double baseY = anchored(2 - placement.anchor / gridColumns, photo.height, layer.height);
    if (placement.angle == 0)
        return {truncated(baseX + placement.xOffset), truncated(baseY + placement.yOffset)};
    if (placement.angle > 0) {
        if (placement.anchor == bottomLeft)
            return {-placement.yOffset, placement.xOffset};
        return {truncated(baseX + placement.yOffset), truncated(baseY - placement.xOffset)};
    }
    if (placement.anchor == topLeft)
        return {-placement.yOffset, photo.height - layer.height - placement.xOffset};
    return {truncated(baseX - placement.yOffset), truncated(baseY + placement.xOffset)};
}

TileSpan tileSpan(int photo, int layer)
{
    const double exact = static_cast<double>(photo) / layer;
    const int tiles = platform::truncated(std::floor(static_cast<float>(exact)));
    // Compares with the number of tiles, not with the width that they cover.
    if (photo - tiles < 2)
        return {.length = photo, .overhang = 0};
    const int length = platform::wrapped32((tiles + std::int64_t{1}) * layer);
    return {.length = length, .overhang = (length - photo) / 2};
}

TileCell tileCell(platform::graphics::PixelSize layer, int xOffset, int yOffset)
{
    return {
        .size = {.width = layer.width + xOffset, .height = layer.height + yOffset},
        .layerOrigin = {xOffset / 2, yOffset / 2}};
}

} // namespace brenvaldo::watermark
