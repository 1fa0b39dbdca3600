// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "drawn_line.h"
#include "fade_line.h"
#include "frame_rules.h"
#include "stored_photo.h"

#include <platform/containers/type_identifier.h>
#include <platform/drawing/ground.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/metadata/metadata_reader.h>

namespace brenvaldo::imaging {

using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

DrawnLine
lineOf(const FrameSettings& settings, double opacity, const QPainterPath& path, const QLineF& fade)
{
    DrawnLine line
        = {.path = path,
           .width = static_cast<double>(settings.thickness),
           .color = settings.color,
           .opacity = opacity,
           .mode = frameBlendAt(settings.blendIndex)};
    if (settings.gradientState == 1)
        line.fade = fade;
    return line;
}

QSizeF exactSize(PixelSize size) { return QSizeF(size.width, size.height); }

/// A fade's rectangle begins at the inset, but only one of two insets is taken off its size.
Image framedInside(const Image& photo, const FrameSettings& settings, double opacity)
{
    const PixelSize size = photo.pixelSize();
    const auto thickness = static_cast<double>(settings.thickness);
    const auto inset = static_cast<double>(settings.inset);
    const QPointF middle(inset + (size.width - inset) * 0.5, inset + (size.height - inset) * 0.5);
    const QLineF fade = fadeLine(middle, exactSize(size), settings.angleIndex);
    const QPainterPath path = frameLine(size, thickness * 0.5 + inset, inset);
    return drawn(photo, lineOf(settings, opacity, path, fade));
}

/// A fade has the photo's size and begins in the corner of the canvas, not of the photo.
std::optional<Image>
framedOutside(const Image& photo, const FrameSettings& settings, double opacity)
{
    constexpr platform::graphics::Color white = {.red = 1, .green = 1, .blue = 1};
    const PixelSize size = photo.pixelSize();
    const PixelSize canvas = grownBy(size, settings.thickness);
    if (canvas == PixelSize{})
        return std::nullopt;
    const int margin = static_cast<int>(settings.thickness);
    const QPointF middle(size.width * 0.5, size.height * 0.5);
    const QLineF fade = fadeLine(middle, exactSize(size), settings.angleIndex);
    const QPainterPath path = frameLine(canvas, static_cast<double>(settings.thickness) * 0.5, 0);
    return drawn(
        platform::drawing::laidOn({.size = canvas, .color = white}, photo, {margin, margin}),
        lineOf(settings, opacity, path, fade)
    );
}

std::optional<Image>
framed(const Image& photo, FrameType type, const FrameSettings& settings, double opacity)
{
    if (type == FrameType::Outside)
        return framedOutside(photo, settings, opacity);
    return framedInside(photo, settings, opacity);
}

/// The line runs on the edge, so that half of it falls on the picture.
QPainterPath edgeLine(PixelSize size)
{
    QPainterPath line(QPointF(0, 0));
    line.lineTo(0, size.height);
    line.lineTo(size.width, size.height);
    line.lineTo(size.width, 0);
    line.lineTo(0, 0);
    return line;
}

} // namespace

Outcome DVImageHandling::hAddFrame(
    const SourceAndBase& photo, const FrameSettings& settings, const OutputTail& tail
)
{
    m_frameOpacity = frameOpacity(settings, m_frameOpacity);
    const auto type = frameTypeAt(settings.frameType);
    if (!type)
        return WordOfPictureBefore{};
    if (!isReadableFile(photo.source)) {
        if (type == FrameType::Inside)
            platform::log(u"no imageRef"_s);
        return ResultWord::Failed;
    }
    const auto image = hStringToCGImageRef(photo.source);
    return outputPicture(
        image ? framed(*image, *type, settings, m_frameOpacity) : std::nullopt, photo, tail
    );
}

std::optional<Image>
DVImageHandling::hAddFramePreview(const Image& photo, const FrameSettings& settings)
{
    const auto type = frameTypeAt(settings.frameType);
    if (!type)
        return std::nullopt;
    m_frameOpacity = shownOpacity(settings.opacity);
    return framed(photo, *type, settings, m_frameOpacity);
}

Image DVImageHandling::peeAddBorderToImageInside(const Image& image, const FrameSettings& settings)
{
    return imageFromCGImageRef(framedInside(image, settings, shownOpacity(settings.opacity)));
}

ResultWord DVImageHandling::addBorderToImage2(
    const QString& path, const platform::graphics::Color& color, double width
)
{
    m_storeResult = ResultWord::Failed;
    const auto image = hStringToCGImageRef(path);
    if (!image)
        return m_storeResult;
    m_storeResult = hSaveToNewImageFile({
        .destination = path,
        .typeIdentifier
        = platform::containers::preferredTypeIdentifier(platform::pathExtension(path)),
        .image = withEdgeLine(*image, color, width),
        .properties = platform::metadata::readMetadataBlocks(path),
    });
    return m_storeResult;
}

Image DVImageHandling::withEdgeLine(
    const Image& picture, const platform::graphics::Color& color, double width
)
{
    return drawn(picture, {.path = edgeLine(picture.pixelSize()), .width = width, .color = color});
}

} // namespace brenvaldo::imaging
