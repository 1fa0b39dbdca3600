// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_decoder.h"

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
    switch (orientation) {
    case 2:
        return stored.flip(VIPS_DIRECTION_HORIZONTAL);
    case 3:
        return randomAccess(stored).rot(VIPS_ANGLE_D180);
    case 4:
        return randomAccess(stored).flip(VIPS_DIRECTION_VERTICAL);
    case 5:
        return randomAccess(stored).rot(VIPS_ANGLE_D90).flip(VIPS_DIRECTION_HORIZONTAL);
    case 6:
        return randomAccess(stored).rot(VIPS_ANGLE_D90);
    case 7:
        return randomAccess(stored).rot(VIPS_ANGLE_D270).flip(VIPS_DIRECTION_HORIZONTAL);
    case 8:
        return randomAccess(stored).rot(VIPS_ANGLE_D270);
    default:
        return stored;
    }
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
