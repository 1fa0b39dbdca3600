// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QPointF>
#include <QSizeF>

#include <variant>

namespace brenvaldo::platform::drawing {

/// Whole at `whole`, gone at `gone` and behind it.
struct FadeAlong
{
    QPointF whole;
    QPointF gone;
};

/// Whole in the middle, gone from `radius` on.
struct FadeOutward
{
    QPointF centre;
    double radius = 0;
};

/// Whole from `outer` on, gone up to `inner`.
struct FadeInward
{
    QPointF centre;
    double outer = 0;
    double inner = 0;
};

/// A mask of 256 levels of grey: white keeps what is below, black takes it away.
struct FadeMask
{
    QSizeF size; ///< stretched over the layer; points in it have the origin at the bottom left
    std::variant<FadeAlong, FadeOutward, FadeInward> shape;
};

/// `layer` (8-bit sRGB with straight alpha) as opaque as the mask leaves it; lazily evaluated.
[[nodiscard]] graphics::Image faded(const graphics::Image& layer, const FadeMask& mask);

} // namespace brenvaldo::platform::drawing
