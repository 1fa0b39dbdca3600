// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QPoint>

/// \file
/// The numbers of a watermark: strength, outline, place and tiling. Pure functions, shared by text
/// and image watermarks. Points are in drawing coordinates: the origin is the photo's bottom left
/// corner, y runs up.

namespace brenvaldo::watermark {

/// Opacity of a transparency percentage: 0 gives 1.0, below 0 gives 0.1, 1 to 100 gives percent /
/// 100, 101 and up gives 1.0.
[[nodiscard]] constexpr double opacityOfPercent(int percent)
{
    if (percent < 0)
        return 0.1;
    return percent == 0 || percent > 100 ? 1.0 : percent / 100.0;
}

/// Stroke width in percent of the font size for the outline's pop-up index.
[[nodiscard]] constexpr double strokeWidthOfIndex(int index)
{
    switch (index) {
    case 0:
        return 0.5;
    case 1:
        return 1.0;
    case 2:
        return 3.0;
    case 3:
        return 5.0;
    default:
        return 7.0;
    }
}

/// Where a layer is anchored: row by row from 0 (top left) to 8 (bottom right).
struct Placement
{
    int anchor = 0;
    int xOffset = 0; ///< with an angle of 0 to the right, else along y
    int yOffset = 0; ///< with an angle of 0 upward, else along x
    int angle = 0; ///< degrees counter-clockwise; only its sign counts
};

/// Place of the layer's bottom left corner on the photo.
///
/// An angle makes the offsets change roles. Top left with a negative angle and bottom left with a
/// positive one break the rule of their row.
[[nodiscard]] QPoint anchoredOrigin(
    const Placement& placement,
    platform::graphics::PixelSize photo,
    platform::graphics::PixelSize layer
);

/// How one direction of the photo is covered with tiles.
struct TileSpan
{
    int length = 0; ///< pixels covered, from the photo's edge minus `overhang` on
    int overhang = 0; ///< pixels by which the covered span begins before the photo

    friend bool operator==(const TileSpan&, const TileSpan&) = default;
};

/// Span for a photo side of `photo` pixels and a layer side of `layer` pixels, at least 1.
[[nodiscard]] TileSpan tileSpan(int photo, int layer);

/// The cell that is repeated: the layer with half of the offsets on each side.
struct TileCell
{
    platform::graphics::PixelSize size; ///< invalid when the offsets eat the layer up
    QPoint layerOrigin; ///< bottom left corner of the layer in the cell
};

[[nodiscard]] TileCell tileCell(platform::graphics::PixelSize layer, int xOffset, int yOffset);

} // namespace brenvaldo::watermark
