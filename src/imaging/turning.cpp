// SPDX-License-Identifier: GPL-3.0-or-later
#include "turning.h"

#include "resize_rules.h"
#include "resolution_rules.h"
#include "rotate_rules.h"

namespace brenvaldo::imaging {

using platform::graphics::FreeTurn;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

Image quarterTurned(const Image& image, QuarterTurns turns)
{
    switch (turns) {
    case QuarterTurns::None:
        return image;
    case QuarterTurns::One:
        return image.turned(Image::QuarterTurn::CounterClockwise);
    case QuarterTurns::Two:
        return image.turned(Image::QuarterTurn::Half);
    case QuarterTurns::Three:
        return image.turned(Image::QuarterTurn::Clockwise);
    }
    return image;
}

/// Drawings are measured from the bottom left corner, canvases from the top left one: what a canvas
/// lacks of the bounds is cut off at the right and at the top.
FreeTurn::Place middleOfDrawing(const QSizeF& bounds, PixelSize canvas)
{
    return {.x = bounds.width() / 2, .y = canvas.height - bounds.height() / 2};
}

} // namespace

std::optional<Image>
turnedPhoto(const Image& photo, double degrees, platform::graphics::FreeCorners corners)
{
    if (const auto turns = quarterTurns(degrees))
        return quarterTurned(photo, *turns);
    const PixelSize size = photo.pixelSize();
    const PixelSize canvas = turnedCanvas(size, degrees);
    if (!givesContext(canvas))
        return std::nullopt;
    const QSizeF bounds = boundsOfTurned(QSizeF(size.width, size.height), degrees);
    return platform::graphics::freelyTurned(
        photo,
        {.degrees = degrees,
         .canvas = canvas,
         .centre = middleOfDrawing(bounds, canvas),
         .corners = corners}
    );
}

std::optional<Image> turnedLayer(const Image& picture, double degrees)
{
    const QSizeF points = exactPoints(picture.pixelSize(), picture.dotsPerInch());
    const QSizeF bounds = boundsOfTurned(points, degrees);
    const PixelSize drawn = canvasOfPoints(points);
    const PixelSize canvas = canvasOfPoints(bounds);
    if (!givesContext(drawn) || !givesContext(canvas))
        return std::nullopt;
    const Image layer = picture.scaledTo(drawn).withDotsPerInch(pointsPerInch);
    if (const auto turns = quarterTurns(degrees))
        return quarterTurned(layer, *turns);
    return platform::graphics::freelyTurned(
        layer,
        {.degrees = degrees,
         .canvas = canvas,
         .centre = middleOfDrawing(bounds, canvas),
         .corners = platform::graphics::FreeCorners::Transparent}
    );
}

} // namespace brenvaldo::imaging
