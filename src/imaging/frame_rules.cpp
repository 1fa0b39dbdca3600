// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame_rules.h"

#include "resize_rules.h"

#include <cmath>

namespace brenvaldo::imaging {

using platform::drawing::BlendMode;
using platform::graphics::PixelSize;

namespace {

bool isPercentage(std::int64_t percent) { return percent >= 1 && percent <= 100; }

/// 0 for what no canvas can be as long as.
int grownSide(int side, std::int64_t thickness)
{
    constexpr float beyondMeasure = 1e9F;
    const float grown = static_cast<float>(side) + 2 * static_cast<float>(thickness);
    return std::abs(grown) < beyondMeasure ? static_cast<int>(grown) : 0;
}

} // namespace

std::optional<FrameType> frameTypeAt(int index)
{
    if (index == 0)
        return FrameType::Inside;
    if (index == 1)
        return FrameType::Outside;
    return std::nullopt;
}

BlendMode frameBlendAt(int index)
{
    switch (index) {
    case 1:
        return BlendMode::Darken;
    case 2:
        return BlendMode::Lighten;
    case 3:
        return BlendMode::Multiply;
    case 4:
        return BlendMode::Overlay;
    case 5:
        return BlendMode::Color;
    default:
        return BlendMode::Normal;
    }
}

double frameOpacity(const FrameSettings& settings, double opacityBefore)
{
    const auto percent = static_cast<double>(settings.opacity);
    if (isPercentage(settings.opacity))
        return percent / 100;
    if (frameTypeAt(settings.frameType) != FrameType::Inside)
        return opacityBefore;
    return percent < 0 ? 1 : 0.01;
}

double shownOpacity(std::int64_t percent)
{
    if (isPercentage(percent))
        return static_cast<double>(percent) / 100;
    return percent < 0 ? 0.1 : 1;
}

PixelSize grownBy(PixelSize photo, std::int64_t thickness)
{
    const PixelSize grown = {
        .width = grownSide(photo.width, thickness), .height = grownSide(photo.height, thickness)};
    return givesContext(grown) ? grown : PixelSize{};
}

QPainterPath frameLine(PixelSize canvas, double distance, double begin)
{
    const double right = canvas.width - distance;
    const double top = canvas.height - distance;
    QPainterPath line(QPointF(distance, begin));
    line.lineTo(distance, top);
    line.lineTo(right, top);
    line.lineTo(right, distance);
    line.lineTo(distance, distance);
    return line;
}

QTransform toPixels(PixelSize canvas) { return {1, 0, 0, -1, 0, double(canvas.height)}; }

} // namespace brenvaldo::imaging
