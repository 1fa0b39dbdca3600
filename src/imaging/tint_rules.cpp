// SPDX-License-Identifier: GPL-3.0-or-later
#include "tint_rules.h"

#include "fade_line.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <algorithm>
#include <array>

namespace brenvaldo::imaging {

using platform::wrapped32;
using platform::drawing::BlendMode;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

namespace {

struct AreaSize
{
    std::int32_t width = 0;
    std::int32_t height = 0;
};

std::int32_t shareOf(std::int32_t side, std::int64_t percentage)
{
    return wrapped32(std::int64_t{side} * wrapped32(percentage)) / 100;
}

/// `changed` has one side changed by some pixels: the other side changed by as many.
std::int32_t changedAlike(std::int32_t side, std::int32_t original, std::int32_t changed)
{
    return wrapped32(std::int64_t{side} - original + changed);
}

AreaSize percentageSize(const TintSettings& settings, PixelSize photo, const AreaSize& size)
{
    const std::int32_t width = shareOf(photo.width, settings.percentage);
    const std::int32_t height = shareOf(photo.height, settings.percentage);
    switch (settings.percentageMode) {
    case 0:
        return {.width = width, .height = photo.height};
    case 1:
        return {.width = photo.width, .height = height};
    case 2:
        return {.width = width, .height = changedAlike(photo.height, photo.width, width)};
    case 3:
        return {.width = changedAlike(photo.width, photo.height, height), .height = height};
    case 4:
        return {.width = width, .height = height};
    default:
        return size;
    }
}

AreaSize statedSize(const TintSettings& settings, PixelSize photo)
{
    if (settings.originalSizeState == 1)
        return {.width = photo.width, .height = photo.height};
    return {.width = wrapped32(settings.width), .height = wrapped32(settings.height)};
}

AreaSize areaSize(const TintSettings& settings, PixelSize photo)
{
    const AreaSize size = statedSize(settings, photo);
    if (settings.sizeMode == u"W x H"_s)
        return {
            .width = std::min(size.width, photo.width),
            .height = std::min(size.height, photo.height)};
    if (settings.sizeMode == u"%"_s)
        return percentageSize(settings, photo, size);
    const std::int64_t pixels = wrapped32(settings.pixels);
    return {.width = wrapped32(photo.width - pixels), .height = wrapped32(photo.height - pixels)};
}

/// Place of a side at the near end (0), in the middle (1) or at the far end (2).
std::int32_t place(int position, std::int32_t room, std::int64_t offset)
{
    const int halves[] = {0, room / 2, room};
    return wrapped32(std::int64_t{halves[position]} + wrapped32(offset));
}

QPoint
origin(const TintSettings& settings, PixelSize photo, const AreaSize& size, QPoint previousOrigin)
{
    if (settings.anchor < 0 || settings.anchor > 8)
        return previousOrigin;
    const std::int32_t roomAcross = wrapped32(std::int64_t{photo.width} - size.width);
    const std::int32_t roomAlong = wrapped32(std::int64_t{photo.height} - size.height);
    return {
        place(settings.anchor % 3, roomAcross, settings.xOffset),
        place(2 - settings.anchor / 3, roomAlong, settings.yOffset)};
}

/// Pixels from `begin` to before `end`.
struct Span
{
    std::int64_t begin = 0;
    std::int64_t end = 0;

    [[nodiscard]] int length() const { return static_cast<int>(end - begin); }
};

/// The part of a side of the area that lies on the photo.
Span visibleSpan(std::int64_t origin, std::int64_t length, std::int64_t photo)
{
    const std::int64_t begin
        = std::clamp<std::int64_t>(std::min(origin, origin + length), 0, photo);
    const std::int64_t end = std::clamp<std::int64_t>(std::max(origin, origin + length), 0, photo);
    return {.begin = begin, .end = end};
}

} // namespace

double tintOpacity(std::int64_t percent)
{
    if (percent < 0)
        return 0.1;
    return percent == 0 || percent > 100 ? 1.0 : static_cast<double>(percent) / 100;
}

BlendMode tintBlendMode(int index)
{
    constexpr std::array modes
        = {BlendMode::Normal,
           BlendMode::PlusDarker,
           BlendMode::PlusLighter,
           BlendMode::Multiply,
           BlendMode::Overlay,
           BlendMode::Color};
    const bool isKnown = index >= 0 && index < static_cast<int>(modes.size());
    return isKnown ? modes[static_cast<std::size_t>(index)] : BlendMode::Normal;
}

TintArea tintArea(const TintSettings& settings, PixelSize photo, QPoint previousOrigin)
{
    const AreaSize size = areaSize(settings, photo);
    return {
        .origin = origin(settings, photo, size, previousOrigin),
        .width = size.width,
        .height = size.height};
}

PixelRect visiblePart(const TintArea& area, PixelSize photo)
{
    const Span across = visibleSpan(area.origin.x(), area.width, photo.width);
    const Span along = visibleSpan(area.origin.y(), area.height, photo.height);
    return {
        .x = static_cast<int>(across.begin),
        .y = photo.height - static_cast<int>(along.end),
        .width = across.length(),
        .height = along.length()};
}

QLineF fadeLine(const TintArea& area, int angleIndex)
{
    const QSizeF size(area.width, area.height);
    return fadeLine(
        QPointF(area.origin) + QPointF(size.width(), size.height()) / 2, size, angleIndex
    );
}

} // namespace brenvaldo::imaging
