// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "failure_log.h"
#include "resize_rules.h"
#include "resolution_rules.h"
#include "writer_rules.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <cmath>

namespace brenvaldo::imaging {

using platform::codecs::ImageSource;
using platform::graphics::Image;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

namespace {

PixelSize uprightSize(const std::optional<ImageSource>& source)
{
    return source ? source->header().uprightSize : PixelSize{};
}

/// The photo drawn at `target`; nothing when no context can be made of it.
std::optional<Image> scaledPhoto(const std::optional<ImageSource>& source, PixelSize target)
{
    if (!source || !givesContext(target))
        return std::nullopt;
    const auto photo = source->uprightImage({.atLeast = target});
    if (!photo)
        return std::nullopt;
    return photo->scaledTo(target);
}

/// True for a Photoshop or PDF file that would keep its type: it is out of reach, not unreadable.
/// It ends in a picture that is none, since the writer has the word for its type.
bool isOutOfReach(const std::optional<ImageSource>& source, const OutputTail& tail)
{
    return !source && isNotSupported(tail.myFileType);
}

} // namespace

Outcome DVImageHandling::hScalePhotosPercentage(
    const SourceAndBase& photo, int value, int maximumType, const OutputTail& tail
)
{
    const auto source = ImageSource::open(photo.source);
    if (isOutOfReach(source, tail))
        return outputPicture(std::nullopt, photo, tail);
    const PixelSize target = maximumTarget(uprightSize(source), value, maximumTypeAt(maximumType));
    const auto scaled = scaledPhoto(source, target);
    if (!scaled)
        return ResultWord::Ok;
    return outputPicture(scaled, photo, tail);
}

Outcome DVImageHandling::hScalePhotosWidthAndHeight(
    const SourceAndBase& photo, PixelSize box, int aspectState, const OutputTail& tail
)
{
    const auto source = ImageSource::open(photo.source);
    if (isOutOfReach(source, tail))
        return outputPicture(std::nullopt, photo, tail);
    const bool covers = aspectState == 1;
    const PixelSize target = covers ? coveringSize(uprightSize(source), box) : box;
    const auto scaled = scaledPhoto(source, target);
    if (!scaled) {
        const QString size = u"%1 x %2"_s.arg(target.width).arg(target.height);
        logFailedWrite(photo.destinationBase, u"there is no picture of %1 pixels"_s.arg(size));
        return WordOfPictureBefore{};
    }
    if (!covers)
        return outputPicture(scaled, photo, tail);
    const PixelRect cut = centredCut(target, box);
    m_origin = {cut.x, cut.y};
    return outputPicture(scaled->croppedTo(cut), photo, tail);
}

std::optional<Image> DVImageHandling::hScalePictureBase(const Image& image, float factor)
{
    const double scale = std::abs(static_cast<double>(factor));
    const QSizeF points = exactPoints(image.pixelSize(), image.dotsPerInch());
    const PixelSize canvas
        = {platform::truncated(std::round(points.width() * scale)),
           platform::truncated(std::round(points.height() * scale))};
    if (!givesContext(canvas))
        return std::nullopt;
    const Image scaled = image.scaledTo(canvas).withDotsPerInch(pointsPerInch);
    return factor < 0 ? scaled.turned(Image::QuarterTurn::Half) : scaled;
}

} // namespace brenvaldo::imaging
