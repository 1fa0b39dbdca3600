// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blend_mode.h"

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

#include <QPainterPath>
#include <QPointF>
#include <QTransform>

#include <variant>

namespace brenvaldo::platform::drawing {

/// Two colours, mixed straight (not premultiplied) on encoded values.
struct Fade
{
    graphics::Color from;
    graphics::Color to;
};

/// What fading out goes to: a colour darkens on its way there.
constexpr graphics::Color clearColor = {.red = 0, .green = 0, .blue = 0, .alpha = 0};

/// A fade along a line; nothing is painted before `start` and behind `end`.
struct LinearGradient
{
    Fade fade;
    QPointF start;
    QPointF end;
};

/// A fade between two circles around `centre`; nothing is painted inside the smaller one and
/// outside the larger one. Rims are smooth.
struct RadialGradient
{
    Fade fade;
    QPointF centre;
    double startRadius = 0;
    double endRadius = 0;
};

/// Points are measured from the photo's top left corner, y runs down.
using Paint = std::variant<graphics::Color, LinearGradient, RadialGradient>;

/// A rectangle of a photo and what is laid over it.
struct PaintedArea
{
    graphics::PixelRect area; ///< may lie outside in part or wholly
    Paint paint;
    BlendMode mode = BlendMode::Normal;
    double opacity = 1; ///< from 0 to 1; scales the paint's alpha
};

/// A shape with soft edges on a photo and what is laid over it.
struct PaintedShape
{
    QPainterPath shape; ///< in pixels of the photo; may lie outside in part or wholly
    Paint paint;
    BlendMode mode = BlendMode::Normal;
    double opacity = 1; ///< from 0 to 1; scales the paint's alpha
};

/// The painting in a picture that is drawn smaller.
[[nodiscard]] PaintedShape shrunk(const PaintedShape& painting, const QTransform& shrinking);

/// `photo` with paint on it; its size, depth, colour model, alpha and profile stay. Lazily
/// evaluated; the paint's colours are brought to those of the photo.
[[nodiscard]] graphics::Image painted(const graphics::Image& photo, const PaintedArea& painting);
[[nodiscard]] graphics::Image painted(const graphics::Image& photo, const PaintedShape& painting);

} // namespace brenvaldo::platform::drawing
