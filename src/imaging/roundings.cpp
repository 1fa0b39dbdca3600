// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "drawn_line.h"
#include "fade_line.h"
#include "frame_rules.h"
#include "rounding_rules.h"

#include <platform/drawing/clipped.h>

namespace brenvaldo::imaging {

using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

DrawnLine borderOf(const RoundingPlan& plan, const RoundingSettings& settings, double opacity)
{
    DrawnLine border
        = {.path = plan.border,
           .width = plan.borderWidth,
           .color = settings.borderColor,
           .opacity = opacity,
           .mode = frameBlendAt(settings.blendIndex)};
    if (settings.gradientState == 1) {
        const QSizeF canvas(plan.canvas.width, plan.canvas.height);
        const QPointF middle(canvas.width() * 0.5, canvas.height() * 0.5);
        border.fade = fadeLine(middle, canvas, settings.angleIndex);
    }
    return border;
}

QPoint topLeftOf(PixelSize photo, const RoundingPlan& plan)
{
    return {plan.photo.x(), plan.canvas.height - plan.photo.y() - photo.height};
}

std::optional<Image> rounded(const Image& photo, const RoundingSettings& settings, double opacity)
{
    const auto plan = roundingPlan(photo.pixelSize(), settings);
    if (!plan)
        return std::nullopt;
    platform::drawing::Clip clip
        = {.canvas = plan->canvas, .shape = toPixels(plan->canvas).map(plan->clip)};
    if (settings.borderState != 0)
        clip.border = shapeOf(borderOf(*plan, settings, opacity), plan->canvas);
    if (settings.backgroundState == 1) {
        if (grownBy(plan->canvas, settings.margin) == PixelSize{})
            return std::nullopt;
        clip.ground
            = {.color = settings.backgroundColor, .margin = static_cast<int>(settings.margin)};
    }
    return platform::drawing::clipped(photo, clip, topLeftOf(photo.pixelSize(), *plan));
}

} // namespace

Outcome DVImageHandling::hAddRoundings(
    const SourceAndBase& photo, const RoundingSettings& settings, const OutputTail& tail
)
{
    const auto image = hStringToCGImageRef(photo.source);
    return outputPicture(
        image ? hAddRoundingsPreview(*image, settings) : std::nullopt, photo, tail
    );
}

std::optional<Image>
DVImageHandling::hAddRoundingsPreview(const Image& photo, const RoundingSettings& settings)
{
    m_frameOpacity = shownOpacity(settings.opacity);
    return rounded(photo, settings, m_frameOpacity);
}

} // namespace brenvaldo::imaging
