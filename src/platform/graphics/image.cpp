// SPDX-License-Identifier: GPL-3.0-or-later
#include "image.h"

#include "deferred_pixels.h"
#include "evaluation.h"
#include "image_node.h"
#include "screen_scaling.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <algorithm>

namespace brenvaldo::platform::graphics {

Image::Image(std::shared_ptr<const ImageNode> node)
    : m_node(std::move(node))
{
}

int Image::width() const { return m_node->pixels.width(); }

int Image::height() const { return m_node->pixels.height(); }

int Image::bitsPerComponent() const
{
    return static_cast<int>(vips_format_sizeof(m_node->pixels.format())) * 8;
}

ColorModel Image::colorModel() const { return m_node->colorModel; }

bool Image::hasAlpha() const { return m_node->hasAlpha; }

const QByteArray& Image::iccProfile() const { return m_node->iccProfile; }

double Image::dotsPerInch() const { return m_node->dotsPerInch; }

Image Image::withDotsPerInch(double dotsPerInch) const
{
    ImageNode node = *m_node;
    node.dotsPerInch = dotsPerInch;
    return makeImage(std::move(node));
}

std::optional<Image> Image::croppedTo(const PixelRect& rect) const
{
    const qint64 left = std::max(rect.x, 0);
    const qint64 top = std::max(rect.y, 0);
    const qint64 right = std::min<qint64>(qint64{rect.x} + rect.width, width());
    const qint64 bottom = std::min<qint64>(qint64{rect.y} + rect.height, height());
    if (left >= right || top >= bottom)
        return std::nullopt;
    const PixelRect part
        = {.x = static_cast<int>(left),
           .y = static_cast<int>(top),
           .width = static_cast<int>(right - left),
           .height = static_cast<int>(bottom - top)};
    return builtImage(*m_node, {part.width, part.height}, [&] {
        return m_node->withPixels(
            m_node->pixels.extract_area(part.x, part.y, part.width, part.height)
        );
    });
}

Image Image::turned(QuarterTurn turn) const
{
    const VipsAngle angle = turn == QuarterTurn::Clockwise ? VIPS_ANGLE_D90
        : turn == QuarterTurn::Half                        ? VIPS_ANGLE_D180
                                                           : VIPS_ANGLE_D270;
    const auto turnedSize = [turn](PixelSize size) {
        return turn == QuarterTurn::Half ? size : PixelSize{size.height, size.width};
    };
    const Image turned = builtImage(*m_node, turnedSize(pixelSize()), [&] {
        return m_node->withPixels(randomAccess(m_node->pixels).rot(angle));
    });
    if (isSequential(m_node->pixels))
        return turned; // it can be drawn again, what it was made of can't
    return drawnSmallerBy(turned, [original = *this, turn, turnedSize](PixelSize size) {
        return scaledForScreen(original, turnedSize(size)).turned(turn);
    });
}

Image Image::flipped(Axis axis) const
{
    const vips::VImage& pixels = m_node->pixels;
    return builtImage(*m_node, pixelSize(), [&] {
        return m_node->withPixels(
            axis == Axis::Horizontal ? pixels.flip(VIPS_DIRECTION_HORIZONTAL)
                                     : randomAccess(pixels).flip(VIPS_DIRECTION_VERTICAL)
        );
    });
}

std::optional<Image> Image::copiedToMemory() const
{
    try {
        return makeImage(m_node->withPixels(graphics::copiedToMemory(m_node->pixels)));
    } catch (const std::exception& error) {
        log(u"Failed to compute the pixels of an image: "_s + faultText(error));
        return std::nullopt;
    }
}

} // namespace brenvaldo::platform::graphics
