// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_preview.h"

#include <platform/codecs/image_source.h>
#include <platform/drawing/canvas.h>
#include <platform/drawing/stamp.h>
#include <platform/graphics/gray_as_rgb.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace brenvaldo::workspace {

namespace {

/// As many as are worth their memory: the one in view and the one before.
constexpr qsizetype keptPhotos = 2;

/// `picture` in 8-bit sRGB; nothing when it is damaged.
std::optional<platform::graphics::Image> screenPicture(const platform::graphics::Image& picture)
{
    const QImage drawn = picture.toQImage();
    return drawn.isNull() ? std::nullopt
                          : std::optional(platform::graphics::Image::fromQImage(drawn));
}

/// `picture`, which has alpha, as a layer that can be laid over a photo; nothing when it is
/// damaged.
std::optional<platform::graphics::Image> layerOf(const platform::graphics::Image& picture)
{
    const bool isLayer = picture.colorModel() == platform::graphics::ColorModel::Rgb
        && picture.bitsPerComponent() == 8 && picture.iccProfile().isEmpty();
    return isLayer ? picture : screenPicture(picture);
}

/// `photo` in a form that takes a layer in colour: floating-point samples are brought to 8 bits.
std::optional<platform::graphics::Image> baseOf(const platform::graphics::Image& photo)
{
    const auto base = photo.bitsPerComponent() <= 16 ? std::optional(photo) : screenPicture(photo);
    return base ? std::optional(platform::graphics::grayAsRgb(*base)) : std::nullopt;
}

} // namespace

std::optional<platform::graphics::Image> PreviewPhotos::photo(const QString& path)
{
    return keptPhoto(path, Pixels::Upright);
}

std::optional<platform::graphics::Image> PreviewPhotos::storedPhoto(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    const bool isUpright = source && source->header().orientation == 1;
    return keptPhoto(path, isUpright ? Pixels::Upright : Pixels::Stored);
}

std::optional<platform::graphics::Image> PreviewPhotos::opened(const QString& path, Pixels pixels)
{
    const auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        return std::nullopt;
    const platform::codecs::SourceRequest request
        = {.access = platform::codecs::SourceAccess::Random, .atLeast = std::nullopt};
    return pixels == Pixels::Stored ? source->image(request) : source->uprightImage(request);
}

std::optional<platform::graphics::Image>
PreviewPhotos::keptPhoto(const QString& path, Pixels pixels)
{
    const QFileInfo file(path);
    const auto isSame
        = [&](const Kept& kept) { return kept.path == path && kept.pixels == pixels; };
    const auto found = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& kept) {
        return isSame(kept) && kept.modified == file.lastModified() && kept.bytes == file.size();
    });
    if (found != m_kept.end()) {
        m_kept.move(std::distance(m_kept.begin(), found), 0);
        return m_kept.first().image;
    }
    const auto image = opened(path, pixels);
    if (!image)
        return std::nullopt;
    m_kept.removeIf(isSame);
    m_kept.prepend(
        {.path = path,
         .pixels = pixels,
         .modified = file.lastModified(),
         .bytes = file.size(),
         .image = *image}
    );
    if (m_kept.size() > keptPhotos)
        m_kept.removeLast();
    return image;
}

std::optional<platform::graphics::Image> composed(
    const std::optional<platform::graphics::Image>& photo,
    const std::optional<platform::graphics::Image>& overlay
)
{
    if (!photo || !overlay)
        return photo ? photo : overlay;
    if (platform::drawing::stampedPart(*overlay, *photo)) // draws the mark, in this thread
        return overlay;
    const platform::graphics::Image fitted = overlay->pixelSize() == photo->pixelSize()
        ? *overlay
        : overlay->scaledTo(photo->pixelSize());
    if (!fitted.hasAlpha())
        return fitted;
    const auto base = baseOf(*photo);
    const auto layer = layerOf(fitted);
    return base && layer ? platform::drawing::over(*base, *layer) : photo;
}

} // namespace brenvaldo::workspace
