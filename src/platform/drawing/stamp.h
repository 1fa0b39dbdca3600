// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QImage>
#include <QList>
#include <QPoint>
#include <QSize>
#include <QTransform>

#include <functional>
#include <optional>

namespace brenvaldo::platform::drawing {

/// A layer that is laid over a photo with source-over.
struct Stamp
{
    enum class Repeat {
        Once,
        Tiled ///< without end in all directions, with one copy at `topLeft`
    };

    QImage layer; ///< sRGB, with alpha; a null layer leaves no mark
    QPoint topLeft; ///< place on the photo, whose origin is its top left corner; may lie outside
    Repeat repeat = Repeat::Once;

    /// A picture that shows in parts of the layer, in its own colours and depth.
    struct Texture
    {
        graphics::Image picture; ///< in memory; repeated without end
        QImage share; ///< 8-bit grey, as large as the layer: opacity that is added to the layer's
        QTransform toPicture; ///< from what the layer shows, whose top left corner is `origin`
        QPoint origin = {};
        QSize period = {}; ///< what the layer shows begins anew after so many pixels; empty: never
    };
    std::optional<Texture> texture = {};

    /// A part of the photo where another layer stands instead of the repeated one.
    struct Patch
    {
        QImage layer; ///< as large as the part
        QPoint topLeft;
    };
    QList<Patch> patches = {}; ///< of a tiled stamp; they don't overlap
};

/// `photo` with the stamp on it; its size, depth, colour model, alpha and profile stay.
///
/// The layer's colours are brought to the photo's profile. Only rows and columns below the layer
/// are computed, the others are copied; tiles are found by arithmetic.
[[nodiscard]] graphics::Image stamped(const graphics::Image& photo, const Stamp& stamp);

/// The same with a stamp that `makeStamp` makes: once, and not before the first pixel or
/// `stampedPart` is asked for, on the thread that asks. `photo` may be read more than once.
[[nodiscard]] graphics::Image
stamped(const graphics::Image& photo, std::function<Stamp()> makeStamp);

/// `picture` as `photo` with a stamp that covers all of it: nothing of the photo is to show
/// through.
[[nodiscard]] graphics::Image
markedOn(const graphics::Image& photo, const graphics::Image& picture);

/// True when `marked` is `photo` with a stamp on it.
[[nodiscard]] bool isStamped(const graphics::Image& marked, const graphics::Image& photo);

/// The part outside of which `marked` is `photo`; nothing when it is not `photo` with a stamp, or
/// when its stamp can't be made.
[[nodiscard]] std::optional<graphics::PixelRect>
stampedPart(const graphics::Image& marked, const graphics::Image& photo);

} // namespace brenvaldo::platform::drawing
