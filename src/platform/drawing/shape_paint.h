// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

#include <QPainterPath>
#include <QPointF>

#include <optional>

namespace brenvaldo::platform::drawing {

/// What a shape is filled with.
struct ShapePaint
{
    /// How the colour goes together with what it is laid on.
    enum class Blend { Normal, Darken, Lighten, Multiply, Overlay, Color };

    /// The colour turns into transparent black along a line; beyond its ends nothing is painted.
    struct Fade
    {
        QPointF start;
        QPointF end;
    };

    graphics::Color color;
    double opacity = 1; ///< from 0 to 1, beside the colour's own
    Blend blend = Blend::Normal;
    std::optional<Fade> fade = {};
};

/// `photo` with `shape` painted on it; lazily evaluated. Its size, depth, colour model, alpha and
/// profile stay, and the colour is brought to them.
///
/// Coordinates are pixels from the top left corner.
[[nodiscard]] graphics::Image
painted(const graphics::Image& photo, const QPainterPath& shape, const ShapePaint& paint);

} // namespace brenvaldo::platform::drawing
