// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "resize_rules.h"
#include "rotate_settings.h"
#include "stored_photo.h"
#include "turning.h"

#include <platform/drawing/ground.h>
#include <platform/graphics/rgb_bytes.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace brenvaldo::imaging {

using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

/// Sides that no context can have stay such.
int enlarged(int side, int margin)
{
    constexpr std::int64_t largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp<std::int64_t>(side + 2 * std::int64_t{margin}, 0, largest));
}

std::optional<Image> onCanvas(const Image& turned, const RotateSettings& settings)
{
    const int margin = settings.canvasMargin;
    const PixelSize canvas = {enlarged(turned.width(), margin), enlarged(turned.height(), margin)};
    if (!givesContext(canvas))
        return std::nullopt;
    return platform::drawing::laidOn(
        {.size = canvas, .color = settings.canvasColor},
        platform::graphics::rgbaBytes(turned),
        {margin, margin}
    );
}

std::optional<Image> rotated(const Image& photo, const RotateSettings& settings)
{
    const auto turned
        = turnedPhoto(photo, settings.degrees, platform::graphics::FreeCorners::Transparent);
    return turned && settings.hasCanvas ? onCanvas(*turned, settings) : turned;
}

} // namespace

Outcome DVImageHandling::hRotatePicture(
    const SourceAndBase& photo, const RotateSettings& settings, const OutputTail& tail
)
{
    const auto image = storedPhoto(photo.source);
    return outputPicture(image ? rotated(*image, settings) : std::nullopt, photo, tail);
}

std::optional<Image>
DVImageHandling::hRotatePicturesPreview(const Image& photo, const RotateSettings& settings)
{
    return rotated(photo, settings);
}

} // namespace brenvaldo::imaging
