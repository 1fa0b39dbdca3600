// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

#include <QImage>
#include <QPoint>

#include <functional>
#include <optional>

namespace brenvaldo::platform {

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
};

/// `photo` with the stamp on it; its size, depth, colour model, alpha and profile stay.
///
/// The layer's colours are brought to the photo's profile. Only rows and columns below the layer
/// are computed, the others are copied; tiles are found by arithmetic.
[[nodiscard]] Image stamped(const Image& photo, const Stamp& stamp);

/// The same with a stamp that `makeStamp` makes: once, and not before the first pixel or
/// `stampedPart` is asked for, on the thread that asks. `photo` must bear being evaluated more than
/// once.
[[nodiscard]] Image stamped(const Image& photo, std::function<Stamp()> makeStamp);

/// True when `marked` is `photo` with a stamp on it.
[[nodiscard]] bool isStamped(const Image& marked, const Image& photo);

/// The part outside of which `marked` is `photo`; nothing when it is not `photo` with a stamp, or
/// when its stamp can't be made.
[[nodiscard]] std::optional<PixelRect> stampedPart(const Image& marked, const Image& photo);

} // namespace brenvaldo::platform
