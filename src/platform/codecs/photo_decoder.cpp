// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_decoder.h"

#include "orientation.h"

#include <platform/graphics/deferred_pixels.h>

namespace brenvaldo::platform::codecs {

using graphics::PixelSize;
using graphics::randomAccess;

graphics::ImageNode PhotoDecoder::uprightPixels(int shrink) const
{
    const graphics::ImageNode stored = storedPixels(shrink);
    return stored.withPixels(turnedUpright(stored.pixels, header().orientation));
}

vips::VImage turnedUpright(const vips::VImage& stored, int orientation)
{
    constexpr VipsAngle angles[]
        = {VIPS_ANGLE_D0, VIPS_ANGLE_D90, VIPS_ANGLE_D180, VIPS_ANGLE_D270};
    const UprightTurn turn = uprightTurn(orientation);
    const vips::VImage turned
        = turn.quarters == 0 ? stored : randomAccess(stored).rot(angles[turn.quarters]);
    return turn.isMirrored ? turned.flip(VIPS_DIRECTION_HORIZONTAL) : turned;
}

void checkDecodedWhole(PixelSize size)
{
    constexpr qint64 mostPixels = qint64{1} << 28;
    if (!size.isValid() || qint64{size.width} * size.height > mostPixels)
        throw vips::VError("the picture is empty or too large");
}

PixelSize uprightSize(PixelSize stored, int orientation)
{
    return orientation >= 5 ? PixelSize{stored.height, stored.width} : stored;
}

} // namespace brenvaldo::platform::codecs
