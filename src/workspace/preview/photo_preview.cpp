// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_preview.h"

#include <platform/codecs/image_source.h>
#include <platform/drawing/canvas.h>
#include <platform/drawing/stamp.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace brenvaldo::workspace {

namespace {

/// As many as are worth their memory: the one in view and the one before.
constexpr qsizetype keptPhotos = 2;

std::optional<platform::graphics::Image> openedForDrawing(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        return std::nullopt;
    return source->uprightImage(
        {.access = platform::codecs::ImageSource::Access::Random, .atLeast = std::nullopt}
    );
}

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

/// `photo` in a form that takes a layer: floating-point samples are brought to 8 bits.
std::optional<platform::graphics::Image> baseOf(const platform::graphics::Image& photo)
{
    return photo.bitsPerComponent() <= 16 ? photo : screenPicture(photo);
}

} // namespace

std::optional<platform::graphics::Image> PreviewPhotos::photo(const QString& path)
{
    const QFileInfo file(path);
    const auto found = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& kept) {
        return kept.path == path && kept.modified == file.lastModified()
            && kept.bytes == file.size();
    });
    if (found != m_kept.end()) {
        m_kept.move(std::distance(m_kept.begin(), found), 0);
        return m_kept.first().image;
    }
    const auto image = openedForDrawing(path);
    if (!image)
        return std::nullopt;
    m_kept.removeIf([&](const Kept& kept) { return kept.path == path; });
    m_kept.prepend(
        {.path = path, .modified = file.lastModified(), .bytes = file.size(), .image = *image}
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
