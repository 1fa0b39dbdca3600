// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blend_block.h"
#include "paint.h"

#include <platform/graphics/image_node.h>

#include <optional>

namespace brenvaldo::platform::drawing {

/// Components of a colour as a block of a photo has them.
struct BlendColor
{
    std::array<float, BlendBlock::mostColors> components = {};
    float alpha = 1;
};

/// A colour in those of `photo`; throws `vips::VError` when it can't be brought there.
[[nodiscard]] BlendColor
blendColorFor(const graphics::ImageNode& photo, const graphics::Color& color);

/// Pixels of one row of a block.
struct BlockPlace
{
    int x = 0; ///< of the first
    int y = 0;
    int count = 0;
};

/// A paint in the colours of a photo.
class PaintRows
{
public:
    PaintRows(const graphics::ImageNode& photo, const Paint& paint, double opacity);

    void fill(const BlockPlace& place, BlendBlock& block) const;

private:
    /// How far each pixel of a row is on the way from the first colour to the second, and how much
    /// of the pixel is painted.
    struct Way
    {
        BlendBlock::Plane share;
        BlendBlock::Plane coverage;
    };

    static void findWay(const LinearGradient& gradient, const BlockPlace& place, Way& way);
    static void findWay(const RadialGradient& gradient, const BlockPlace& place, Way& way);
    void fillPlain(int count, BlendBlock& block) const;
    void fillFade(const Way& way, int count, BlendBlock& block) const;

    Paint m_paint;
    std::size_t m_colors;
    BlendColor m_from;
    BlendColor m_to;
};

} // namespace brenvaldo::platform::drawing
