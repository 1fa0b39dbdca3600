// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_preview.h"

#include <platform/graphics/image_source.h>

#include <QPainter>

namespace brenvaldo::workspace {

std::optional<platform::Image> previewOfPhoto(const QString& path)
{
    const auto source = platform::ImageSource::open(path);
    if (!source)
        return std::nullopt;
    return source->uprightImage(
        {.access = platform::ImageSource::Access::Random, .atLeast = std::nullopt}
    );
}

std::optional<platform::Image>
composed(const std::optional<platform::Image>& photo, const std::optional<platform::Image>& overlay)
{
    if (!photo || !overlay)
        return photo ? photo : overlay;
    const QImage layer = overlay->toQImage();
    QImage picture = photo->toQImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull() || layer.isNull())
        return photo;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(picture.rect(), layer);
    painter.end();
    return platform::Image::fromQImage(picture);
}

} // namespace brenvaldo::workspace
