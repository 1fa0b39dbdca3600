// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "stored_photo.h"
#include "tint_rules.h"

#include <platform/drawing/paint.h>
#include <platform/drawing/stamp.h>
#include <platform/filters/photo_effect.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/graphics/gray_as_rgb.h>
#include <platform/graphics/screen_scaling.h>

namespace brenvaldo::imaging {

using platform::drawing::LinearGradient;
using platform::drawing::Paint;
using platform::graphics::Image;

namespace {

/// The photo in black and white, but able to take any colour, though its file may be grey.
Image blackAndWhite(const Image& photo)
{
    return platform::graphics::drawnSmallerBy(
        platform::filters::photoEffectNoir(platform::graphics::grayAsRgb(photo)),
        [photo](platform::graphics::PixelSize size) {
            return blackAndWhite(platform::graphics::scaledForScreen(photo, size));
        }
    );
}

Paint paintOf(const TintSettings& settings, const TintArea& area, int photoHeight)
{
    if (settings.gradientState != 1)
        return settings.color;
    const auto fromTop
        = [photoHeight](QPointF point) { return QPointF(point.x(), photoHeight - point.y()); };
    const QLineF line = fadeLine(area, settings.angleIndex);
    return LinearGradient{
        .fade = {.from = settings.color, .to = platform::drawing::clearColor},
        .start = fromTop(line.p1()),
        .end = fromTop(line.p2())};
}

} // namespace

Image DVImageHandling::tinted(const Image& photo, const TintSettings& settings)
{
    const TintArea area = tintArea(settings, photo.pixelSize(), m_origin);
    m_origin = area.origin;
    m_frameOpacity = tintOpacity(settings.opacity);
    return platform::drawing::painted(
        settings.duoToneState == 1 ? blackAndWhite(photo) : photo,
        {.area = visiblePart(area, photo.pixelSize()),
         .paint = paintOf(settings, area, photo.height()),
         .mode = tintBlendMode(settings.blendIndex),
         .opacity = m_frameOpacity}
    );
}

Outcome DVImageHandling::addTintToImage2(
    const SourceAndBase& photo, const TintSettings& settings, const OutputTail& tail
)
{
    if (!isReadableFile(photo.source)) {
        platform::log(u"no imageRef"_s);
        return ResultWord::Failed;
    }
    const auto stored = hStringToCGImageRef(photo.source);
    if (!stored)
        return outputPicture(std::nullopt, photo, tail);
    return outputPicture(tinted(*stored, settings), photo, tail);
}

Image DVImageHandling::addTintToImage2Preview(const Image& photo, const TintSettings& settings)
{
    return imageFromCGImageRef(platform::drawing::markedOn(photo, tinted(photo, settings)));
}

} // namespace brenvaldo::imaging
