// SPDX-License-Identifier: GPL-3.0-or-later
#include "rounding_rules.h"

#include "frame_rules.h"

#include <algorithm>

namespace brenvaldo::imaging {

using platform::graphics::PixelSize;

namespace {

enum class Shape { Rectangle, Circle, Ellipse };

Shape shapeAt(int index)
{
    return index == 0 ? Shape::Rectangle : index == 1 ? Shape::Circle : Shape::Ellipse;
}

/// A quarter of a circle, clockwise from an angle in degrees.
void addQuarter(QPainterPath& path, QPointF centre, double radius, double from)
{
    // The painter's angles run the other way round in a drawing that is measured upward.
    path.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), -from, 90);
}

/// A rectangle with round corners, `inset` away from the edges of the canvas.
QPainterPath roundedRectangle(PixelSize canvas, double inset, double radius)
{
    const double near = inset + radius;
    const double top = canvas.height - inset;
    const double right = canvas.width - inset;
    QPainterPath path(QPointF(inset, near));
    path.setFillRule(Qt::WindingFill);
    path.lineTo(inset, top - radius);
    addQuarter(path, {near, top - radius}, radius, 180);
    path.lineTo(right - radius, top);
    addQuarter(path, {right - radius, top - radius}, radius, 90);
    path.lineTo(right, near);
    addQuarter(path, {right - radius, near}, radius, 0);
    path.lineTo(near, inset);
    addQuarter(path, {near, near}, radius, -90);
    return path;
}

QPainterPath ellipse(PixelSize canvas, double inset)
{
    QPainterPath path;
    path.addEllipse(QRectF(inset, inset, canvas.width - 2 * inset, canvas.height - 2 * inset));
    return path;
}

PixelSize shownPart(PixelSize photo, Shape shape)
{
    const int side = std::min(photo.width, photo.height);
    return shape == Shape::Circle ? PixelSize{side, side} : photo;
}

} // namespace

std::optional<RoundingPlan> roundingPlan(PixelSize photo, const RoundingSettings& settings)
{
    const Shape shape = shapeAt(settings.type);
    const std::int64_t border = settings.borderState != 0 ? settings.borderWidth : 0;
    const std::int64_t growth = settings.borderPosition == 1 ? border : 0;
    const PixelSize part = shownPart(photo, shape);
    const PixelSize canvas = grownBy(part, growth);
    if (canvas == PixelSize{})
        return std::nullopt;

    const auto width = static_cast<double>(border);
    const auto radius = static_cast<double>(std::max<std::int64_t>(0, settings.radius));
    const auto margin = static_cast<int>(growth);
    RoundingPlan plan{
        .canvas = canvas,
        .photo
        = {margin + (part.width - photo.width) / 2, margin + (part.height - photo.height) / 2},
        .clip = ellipse(canvas, margin),
        .border = ellipse(canvas, width * 0.5),
        .borderWidth = width};
    if (shape == Shape::Rectangle) {
        plan.clip = roundedRectangle(canvas, width, std::max(0.0, radius - width * 0.5));
        plan.border = roundedRectangle(canvas, width * 0.5, radius);
    }
    return plan;
}

} // namespace brenvaldo::imaging
