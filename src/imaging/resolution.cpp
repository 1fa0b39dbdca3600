// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "resolution_rules.h"

#include <platform/codecs/image_source.h>

namespace brenvaldo::imaging {

using platform::codecs::ImageSource;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

double resolutionOf(PixelSize pixels, double statedDotsPerInch)
{
    const double pointsWide = exactPoints(pixels, statedDotsPerInch).width();
    return dotsPerInchRoundedUp(pixels.width, pointsWide);
}

} // namespace

double DVImageHandling::hGetImgResolution(const QString& path)
{
    const auto source = ImageSource::open(path);
    m_currentDPI = source ? resolutionOf(source->header().storedSize, source->header().dotsPerInch)
                          : dotsPerInchRoundedUp(0, 0);
    return m_currentDPI;
}

double DVImageHandling::hGetNSImgResolution(const Image& image)
{
    m_currentDPI = resolutionOf(image.pixelSize(), image.dotsPerInch());
    return m_currentDPI;
}

Image DVImageHandling::convertImageResolution(const Image& image, double dotsPerInch)
{
    if (!(dotsPerInch > 0))
        return image;
    const double pointsWide = pointsAtResolution(image.pixelSize(), dotsPerInch).width();
    return image.withDotsPerInch(image.width() / pointsWide * pointsPerInch);
}

} // namespace brenvaldo::imaging
