// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

#include <QString>

#include <optional>

namespace brenvaldo::platform::graphics {

/// What becomes of colours that a colour space lacks.
enum class RenderingIntent { Perceptual, Relative, Saturation, Absolute };

/// A colour space that pictures can be converted to.
struct ColorSpace
{
    QString name; ///< English description of the profile; empty when it has none
    ColorModel model = ColorModel::Rgb;
    QByteArray profile;
};

/// The space of an ICC profile; nothing for a broken one, and for one of a kind that tells how to
/// make no pixels (named colours, links, abstract ones).
[[nodiscard]] std::optional<ColorSpace> colorSpaceOf(const QByteArray& profile);

/// sRGB.
[[nodiscard]] ColorSpace standardColorSpace();

/// The picture with its colours in `space`, whose profile it then has; its depth and its alpha
/// stay. No picture is kept in Lab: the one that is asked for fails when it is evaluated.
[[nodiscard]] Image
convertedTo(const Image& image, const ColorSpace& space, RenderingIntent intent);

} // namespace brenvaldo::platform::graphics
