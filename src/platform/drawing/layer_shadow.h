// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <QImage>
#include <QPoint>
#include <QRect>

#include <functional>

namespace brenvaldo::platform::drawing {

/// A soft copy of a drawn object in one colour, below and beside it.
struct Shadow
{
    graphics::Color color{.red = 0, .green = 0, .blue = 0, .alpha = 1.0 / 3.0};
    int xOffset = 0; ///< pixels to the right
    int yOffset = 0; ///< pixels upward
    double blurRadius = 0; ///< pixels; the Gaussian's sigma is half of it
};

/// Pixels by which a shadow of that blur reaches beyond the shifted object: 3 sigma.
[[nodiscard]] int shadowReach(double blurRadius);

/// A picture (premultiplied ARGB) and its place in a drawing whose y axis runs down.
struct PlacedLayer
{
    QImage image;
    QPoint topLeft;

    [[nodiscard]] QRect area() const { return {topLeft, image.size()}; }
};

/// The shadow that `caster` throws.
[[nodiscard]] PlacedLayer shadowOf(const PlacedLayer& caster, const Shadow& shadow);

/// Where something that throws a shadow into `area` can stand.
[[nodiscard]] QRect castingInto(const QRect& area, const Shadow& shadow);

/// Where an object that fills all of `area` throws a shadow as if it had no edges; empty when the
/// shadow is too soft for that.
[[nodiscard]] QRect inEvenShadowOf(const QRect& area, const Shadow& shadow);

/// An object above its shadow, as far as `area` shows them. `render` draws the part of the object
/// inside of a rectangle; it is asked for what can be seen and for what casts the shadow.
[[nodiscard]] PlacedLayer withShadow(
    const std::function<PlacedLayer(const QRect&)>& render, const Shadow& shadow, const QRect& area
);

/// `cell` above the shadow of all the cells that it is repeated to without end.
[[nodiscard]] QImage cellWithShadow(const QImage& cell, const Shadow& shadow);

/// The shadow that `object` (premultiplied ARGB) casts, as a premultiplied layer of `object`'s size
/// grown by `margin` on every side. What falls outside is cut off.
[[nodiscard]] QImage shadowLayer(const QImage& object, const Shadow& shadow, int margin);

/// The shadow of `cell` repeated without end: what leaves the cell at one side enters at the other.
[[nodiscard]] QImage tiledShadowLayer(const QImage& cell, const Shadow& shadow);

} // namespace brenvaldo::platform::drawing
