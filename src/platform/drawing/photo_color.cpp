// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_color.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/image.h>
#include <platform/graphics/qt_color.h>

#include <QImage>

namespace brenvaldo::platform::drawing {

std::vector<double> samplesOf(const graphics::Color& color, const graphics::ImageNode& photo)
{
    QImage pixel(1, 1, QImage::Format_RGBA8888);
    pixel.setPixelColor(0, 0, graphics::qtColor(color.withAlpha(1)));
    const graphics::Image layer = graphics::Image::fromQImage(pixel);
    std::vector<double> samples
        = graphics::srgbLayerInColorsOf(layer.node()->pixels, photo).getpoint(0, 0);
    samples.pop_back(); // the alpha
    return samples;
}

} // namespace brenvaldo::platform::drawing
