// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "drawn_line.h"
#include "dv_color_conversions.h"
#include "frame_rules.h"
#include "rounding_rules.h"
#include "source_photo.h"

#include <platform/drawing/clipped.h>
#include <platform/drawing/ground.h>

namespace brenvaldo::imaging {

using platform::codecs::SourceAccess;
using platform::drawing::ShapePaint;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

Image cut(const Image& photo, const RoundingPlan& plan)
{
    const QPoint topLeft(
        plan.photo.x(), plan.canvas.height - plan.photo.y() - photo.pixelSize().height
    );
    const QPainterPath clip = toPixels(plan.canvas).map(plan.clip);
    return platform::drawing::clipped(photo, {.canvas = plan.canvas, .shape = clip}, topLeft);
}

ShapePaint borderPaint(PixelSize canvas, const RoundingSettings& settings)
{
    ShapePaint paint
        = {.color = DVColorConversions::NSColorToCGColor(settings.borderColour),
           .opacity = shownOpacity(settings.opacity),
           .blend = frameBlendAt(settings.blendIndex)};
    if (settings.gradientState == 1)
        paint.fade
            = fadeThrough({canvas.width * 0.5, canvas.height * 0.5}, canvas, settings.angleIndex);
    return paint;
}

Image bordered(const Image& cutPhoto, const RoundingPlan& plan, const RoundingSettings& settings)
{
    if (settings.borderState == 0)
        return cutPhoto;
    return drawn(
        cutPhoto,
        {.path = plan.border,
         .width = plan.borderWidth,
         .paint = borderPaint(plan.canvas, settings)}
    );
}

std::optional<Image> onBackground(const Image& shape, const RoundingSettings& settings)
{
    if (settings.backgroundState != 1)
        return shape;
    const PixelSize canvas = grownBy(shape.pixelSize(), settings.margin);
    if (canvas == PixelSize{})
        return std::nullopt;
    const int margin = static_cast<int>(settings.margin);
    return platform::drawing::laidOn(
        {.size = canvas, .color = settings.backgroundColour}, shape, {margin, margin}
    );
}

std::optional<Image> rounded(const Image& photo, const RoundingSettings& settings)
{
    const auto plan = roundingPlan(photo.pixelSize(), settings);
    if (!plan)
        return std::nullopt;
    return onBackground(bordered(cut(photo, *plan), *plan, settings), settings);
}

} // namespace

Outcome DVImageHandling::hAddRoundings(
    const SourceAndBase& photo, const RoundingSettings& settings, const OutputTail& tail
)
{
    const auto image = storedPhoto(photo.source, SourceAccess::OnePass);
    if (!image)
        return unreadablePhoto(tail);
    return outputPicture(rounded(*image, settings), photo, tail);
}

std::optional<Image>
DVImageHandling::hAddRoundingsPreview(const QString& path, const RoundingSettings& settings)
{
    const auto image = storedPhoto(path, SourceAccess::Random);
    return image ? rounded(*image, settings) : std::nullopt;
}

} // namespace brenvaldo::imaging
