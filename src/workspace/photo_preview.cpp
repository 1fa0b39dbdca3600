// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_preview.h"

#include <platform/graphics/image_source.h>

#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace brenvaldo::workspace {

namespace {

/// As many as are worth their memory: the one in view and the one before.
constexpr qsizetype keptPhotos = 2;

std::optional<platform::Image> openedForDrawing(const QString& path)
{
    const auto source = platform::ImageSource::open(path);
    if (!source)
        return std::nullopt;
    return source->uprightImage(
        {.access = platform::ImageSource::Access::Random, .atLeast = std::nullopt}
    );
}

} // namespace

std::optional<platform::Image> PreviewPhotos::photo(const QString& path)
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
