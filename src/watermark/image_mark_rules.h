// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/drawing/blend_mode.h>
#include <platform/drawing/layer_fade.h>
#include <platform/graphics/geometry.h>

#include <QPoint>
#include <QSizeF>
#include <QString>

#include <optional>

/// \file
/// The numbers of an image watermark: place, scale, blending and fades. Pure functions. Points are
/// in drawing coordinates: the origin is the photo's bottom left corner, y runs up.

namespace brenvaldo::watermark {

/// Where an image is anchored: row by row from 0 (top left) to 8 (bottom right). Offsets point into
/// the photo from the anchor's edge.
struct Inset
{
    int anchor = 0;
    int xOffset = 0;
    int yOffset = 0;

    friend bool operator==(const Inset&, const Inset&) = default;
};

/// Place of the image's bottom left corner on the photo; nothing for an anchor that there is not.
///
/// Half an offset moves a centred image, but a whole one that in the middle of the photo.
[[nodiscard]] std::optional<QPoint> insetOrigin(
    const Inset& inset, platform::graphics::PixelSize photo, platform::graphics::PixelSize image
);

/// How large an image is to be.
struct ScaleRule
{
    int percent = 100;
    int row = 0; ///< 0 percent of the image, 1 and 2 of the photo's width and height, else as it is

    friend bool operator==(const ScaleRule&, const ScaleRule&) = default;
};

/// The factor with six decimals; "0.000000" for 0 percent, "1000000.000000" for an image that keeps
/// its own size.
[[nodiscard]] QString scaleFactorText(
    const ScaleRule& rule, platform::graphics::PixelSize photo, platform::graphics::PixelSize image
);

/// What the image is scaled by; nothing for the texts that leave it as it is, of which
/// "100.000000" is one.
[[nodiscard]] std::optional<float> scalingOf(const QString& factorText);

/// Nothing for an index that no operation has.
[[nodiscard]] std::optional<platform::drawing::BlendMode> blendModeOfIndex(int index);

/// Whether an image is laid once or repeated.
enum class Lane { Single, Pattern };

enum class FadeShape { Linear, Radial, InvertedRadial };

/// How an image fades out.
struct FadeRule
{
    FadeShape shape = FadeShape::Linear;
    double extent = 0.5; ///< above 0, up to 1
    int angle = 0; ///< degrees counter-clockwise, of a linear fade

    friend bool operator==(const FadeRule&, const FadeRule&) = default;
};

/// 0 would leave no room for a gradient.
[[nodiscard]] constexpr float fadeExtentOf(float value) { return value == 0 ? 0.01F : value; }

/// An angle outside of -360 to 360 is 0.
[[nodiscard]] constexpr int fadeAngleOf(int degrees)
{
    return degrees < -360 || degrees > 360 ? 0 : degrees;
}

/// The mask on an image of that size.
[[nodiscard]] platform::drawing::FadeMask
fadeMask(const FadeRule& rule, const QSizeF& size, Lane lane);

/// Sides of a block of tiles that covers the photo after a turn by any angle, if it covers
/// `across` by `along` before.
[[nodiscard]] int sideThatSurvivesTurning(int across, int along);

} // namespace brenvaldo::watermark
