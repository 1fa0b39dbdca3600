// SPDX-License-Identifier: GPL-3.0-or-later
#include "crop_rules.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <algorithm>
#include <iterator>

namespace brenvaldo::imaging {

using platform::wrapped32;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

namespace {

constexpr int lastAnchor = 8;

bool isPercentage(const CropSettings& settings) { return settings.cropType == u"%"_s; }

int remaining(int side, std::int64_t percent)
{
    return wrapped32(wrapped32(100 - percent) * std::int64_t{side}) / 100;
}

/// Where a rectangle begins along one side: at 0 of 2 steps, in the middle, or flush with the end.
int beginning(int photo, int size, int step)
{
    const int free = wrapped32(std::int64_t{photo} - size);
    return step == 0 ? 0 : step == 1 ? free / 2 : free;
}

/// A line width and the side that it takes to have it.
struct WidthStep
{
    int above;
    float width;
};

constexpr WidthStep landscapeWidths[]
    = {{6000, 20}, {5000, 15}, {4000, 10}, {3000, 7}, {2000, 5}, {1000, 3}};
constexpr WidthStep portraitWidths[]
    = {{6000, 9}, {5000, 8}, {4000, 5}, {3000, 4}, {2000, 3}, {1000, 3}};

template <std::size_t Count>
float widthAt(int side, const WidthStep (&steps)[Count])
{
    constexpr float widthOfSmallPhotos = 2;
    const auto* step = std::find_if(std::begin(steps), std::end(steps), [side](const auto& row) {
        return side > row.above;
    });
    return step != std::end(steps) ? step->width : widthOfSmallPhotos;
}

} // namespace

bool cutsOffTooMuch(const CropSettings& settings)
{
    return isPercentage(settings) && settings.cutOff >= 101;
}

PixelSize cropSize(const CropSettings& settings, PixelSize photo)
{
    if (settings.cropType == u"W x H"_s)
        return settings.size;
    if (isPercentage(settings)) {
        const std::int64_t percent = cutsOffTooMuch(settings) ? 0 : settings.cutOff;
        return {remaining(photo.width, percent), remaining(photo.height, percent)};
    }
    return {wrapped32(photo.width - settings.cutOff), wrapped32(photo.height - settings.cutOff)};
}

std::optional<QPoint>
cropOrigin(PixelSize photo, PixelSize size, int anchor, const CropOffset& offset)
{
    if (anchor < 0 || anchor > lastAnchor)
        return std::nullopt;
    return QPoint(
        wrapped32(beginning(photo.width, size.width, anchor % 3) + offset.x),
        wrapped32(beginning(photo.height, size.height, anchor / 3) + offset.y)
    );
}

std::optional<QPoint>
drawnCropOrigin(PixelSize photo, PixelSize size, int anchor, const CropOffset& offset)
{
    const auto origin = cropOrigin(photo, size, anchor, offset);
    if (!origin)
        return std::nullopt;
    const int rowFromBelow = 2 - anchor / 3;
    return QPoint(
        origin->x(), wrapped32(beginning(photo.height, size.height, rowFromBelow) - offset.y)
    );
}

PixelRect coveredPixels(const QPoint& origin, PixelSize size)
{
    return {
        .x = wrapped32(origin.x() + std::int64_t{std::min(size.width, 0)}),
        .y = wrapped32(origin.y() + std::int64_t{std::min(size.height, 0)}),
        .width = std::abs(size.width),
        .height = std::abs(size.height),
    };
}

float cropOutlineWidth(PixelSize photo)
{
    return photo.width > photo.height ? widthAt(photo.width, landscapeWidths)
                                      : widthAt(photo.height, portraitWidths);
}

double cropDashLength(float outlineWidth)
{
    if (outlineWidth > 30)
        return 120;
    if (outlineWidth > 20)
        return 90;
    if (outlineWidth > 10)
        return 40;
    return 15;
}

} // namespace brenvaldo::imaging
