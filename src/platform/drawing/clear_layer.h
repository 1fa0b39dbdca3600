// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

#include <QPoint>

/// \file
/// Layers to lay over a photo: pictures in 8-bit sRGB with straight alpha. All are lazily
/// evaluated, and keep the order of access of what they are made of.

namespace brenvaldo::platform::drawing {

/// Any picture as a layer; opaque where it has no alpha.
[[nodiscard]] graphics::Image clearLayer(const graphics::Image& picture);

/// `layer` on a transparent canvas, its top left corner at `place`; what stands out is cut off.
[[nodiscard]] graphics::Image
onClearCanvas(const graphics::Image& layer, graphics::PixelSize canvas, QPoint place);

/// A canvas full of copies of `cell`, which is in memory; one stands with its top left corner at
/// `corner`.
[[nodiscard]] graphics::Image
repeated(const graphics::Image& cell, graphics::PixelSize canvas, QPoint corner);

/// The shape of `layer` in one colour, whose alpha scales that of the layer.
[[nodiscard]] graphics::Image inked(const graphics::Image& layer, const graphics::Color& color);

/// The shape of a photo of any kind, in black; nothing for one without alpha.
[[nodiscard]] std::optional<graphics::Image> shapeOf(const graphics::Image& photo);

} // namespace brenvaldo::platform::drawing
