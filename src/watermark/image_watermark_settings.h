// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_mark_rules.h"

#include <imaging/filter_settings.h>
#include <platform/graphics/color.h>

#include <QString>

#include <optional>

namespace brenvaldo::panels {
struct ImageWatermarkControls;
}

namespace brenvaldo::watermark {

/// A filter of the image, by the index of its pop-up.
enum class MarkFilter { None, Noir, Negative, Dots, Lines, Rings };

/// The shadow that everything casts that is drawn on the photo.
struct MarkShadow
{
    platform::graphics::Color color;
    int xOffset = 0; ///< pixels to the right
    int yOffset = 0; ///< pixels upward
    int blurRadius = 0;

    friend bool operator==(const MarkShadow&, const MarkShadow&) = default;
};

/// The image watermark as the panel's controls stand at one moment.
struct ImageWatermarkSettings
{
    QString path; ///< of the image
    ScaleRule scale;
    int angle = 0; ///< degrees counter-clockwise
    Inset inset; ///< of a pattern: the gaps between its tiles
    Lane lane = Lane::Single;
    std::optional<platform::drawing::BlendMode> blendMode; ///< not set: no image is drawn
    double opacity = 1;
    std::optional<MarkShadow> shadow;
    std::optional<FadeRule> fade;
    MarkFilter filter = MarkFilter::None;
    imaging::ScreenSettings screen; ///< its angle is counter-clockwise

    friend bool operator==(const ImageWatermarkSettings&, const ImageWatermarkSettings&) = default;
};

/// Reads the controls. A fade angle that is none becomes 0, in its field, too.
[[nodiscard]] ImageWatermarkSettings readSettings(panels::ImageWatermarkControls& controls);

} // namespace brenvaldo::watermark
