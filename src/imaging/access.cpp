// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "resolution_rules.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::imaging {

using platform::codecs::ImageSource;
using platform::graphics::Image;
using platform::graphics::PixelSize;

std::optional<Image> DVImageHandling::hNSURLtoCIImage(const QUrl& url)
{
    const auto source = ImageSource::open(url.toLocalFile());
    return source ? source->uprightImage() : std::nullopt;
}

std::optional<Image> DVImageHandling::hStringToCGImageRef(const QString& path)
{
    const auto source = ImageSource::open(path);
    return source ? source->image() : std::nullopt;
}

Image DVImageHandling::imageFromCGImageRef(const Image& image)
{
    return image.withDotsPerInch(pointsPerInch);
}

Image DVImageHandling::nsImageToCGImageRef(const Image& image) { return image; }

std::optional<Image> DVImageHandling::ciimageFromNSImage(const Image& image)
{
    return image.copiedToMemory();
}

PixelSize DVImageHandling::hGetImgPixelSize(const QString& path)
{
    const auto source = ImageSource::open(path);
    return source ? source->header().uprightSize : PixelSize{};
}

PixelSize DVImageHandling::hGetCIImgPixelSize(const std::optional<Image>& image)
{
    return image ? image->pixelSize() : PixelSize{};
}

QString DVImageHandling::hGetPixelSize(const QString& path)
{
    const PixelSize size = hGetImgPixelSize(path);
    return u"%1px x %2px (w x h)"_s.arg(size.width).arg(size.height);
}

} // namespace brenvaldo::imaging
