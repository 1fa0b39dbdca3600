// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <QImage>

#include <vector>

namespace brenvaldo::platform::drawing {

/// Heights from 0 to 1 of each pixel of a layer, rows from the top down.
struct HeightField
{
    int width = 0;
    int height = 0;
    std::vector<float> heights;

    [[nodiscard]] float at(int x, int y) const
    {
        return heights
            [static_cast<std::size_t>(y) * static_cast<std::size_t>(width)
             + static_cast<std::size_t>(x)];
    }
};

/// Raises the bright, opaque part of `layer` to a plateau of height 1.
///
/// The slope inside its edge is a quarter circle of `radius` pixels; what lies outside the layer
/// counts as outside of the part.
[[nodiscard]] HeightField heightFieldFromMask(const QImage& layer, double radius);

/// Lights a height field: each pixel's normal looks up `shading`, the picture of a lit hemisphere.
///
/// Heights are multiplied by `scale` (pixels). The result is as opaque as `layer`, which the field
/// was made from; premultiplied ARGB.
[[nodiscard]] QImage
shadedMaterial(const HeightField& field, const QImage& layer, const QImage& shading, double scale);

/// A ball of 134 by 134 pixels, lit from above: black at its rim, `color` towards its highlight.
[[nodiscard]] QImage colorBall(const graphics::Color& color);

} // namespace brenvaldo::platform::drawing
