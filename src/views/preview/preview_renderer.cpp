// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_renderer.h"

#include <platform/codecs/image_source.h>
#include <platform/drawing/stamp.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/graphics/screen_scaling.h>

#include <QPainter>

#include <algorithm>

namespace brenvaldo::views {

namespace {

QString colorModelName(platform::graphics::ColorModel model)
{
    switch (model) {
    case platform::graphics::ColorModel::Gray:
        return PreviewRenderer::tr("grey");
    case platform::graphics::ColorModel::Rgb:
        return u"RGB"_s;
    case platform::graphics::ColorModel::Cmyk:
        return u"CMYK"_s;
    case platform::graphics::ColorModel::Lab:
        return u"Lab"_s;
    }
    return {};
}

platform::graphics::Image
fitted(const platform::graphics::Image& layer, platform::graphics::PixelSize room)
{
    return platform::graphics::scaledForScreen(layer, fittedInto(layer.pixelSize(), room));
}

QImage renderedLayer(const platform::graphics::Image& layer, const PreviewRequest& request)
{
    if (!request.part)
        return fitted(layer, request.room).toQImage();
    const auto part = layer.croppedTo(*request.part);
    return part ? part->toQImage() : QImage();
}

/// Where `part` of a picture stands once it is scaled, with the pixels around that its own reach.
platform::graphics::PixelRect scaledPart(
    const platform::graphics::PixelRect& part,
    platform::graphics::PixelSize from,
    platform::graphics::PixelSize to
)
{
    constexpr int kernelReach = 6;
    const double horizontal = double(to.width) / from.width;
    const double vertical = double(to.height) / from.height;
    const int left = int(part.x * horizontal) - kernelReach;
    const int top = int(part.y * vertical) - kernelReach;
    const int right = int((part.x + part.width) * horizontal) + kernelReach + 1;
    const int bottom = int((part.y + part.height) * vertical) + kernelReach + 1;
    return {.x = left, .y = top, .width = right - left, .height = bottom - top};
}

/// A layer that differs from a photo in `part` alone: the rendered photo with that part anew.
QImage renderedAnew(
    const QImage& photo,
    const platform::graphics::Image& layer,
    const platform::graphics::PixelRect& part,
    platform::graphics::PixelSize room
)
{
    if (part.width <= 0 || part.height <= 0)
        return photo;
    const platform::graphics::Image scaled = fitted(layer, room);
    const platform::graphics::PixelRect place
        = scaledPart(part, layer.pixelSize(), scaled.pixelSize());
    const auto changed = scaled.croppedTo(place);
    const QImage patch = changed ? changed->toQImage() : QImage();
    if (patch.isNull())
        return {};
    QImage picture = photo;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(std::max(0, place.x), std::max(0, place.y), patch);
    return picture;
}

/// True when the overlay is the photo with its mark, so that nothing is to show through it.
bool holdsThePhoto(const PreviewRequest& request)
{
    return request.photo && request.overlay
        && platform::drawing::isStamped(*request.overlay, *request.photo);
}

QImage renderedOverlay(const PreviewRequest& request, const QImage& photo)
{
    if (!request.overlay)
        return {};
    // A mark that is still to be drawn is drawn here, and not in the threads of the evaluation.
    const auto differing = request.photo
        ? platform::drawing::stampedPart(*request.overlay, *request.photo)
        : std::nullopt;
    if (!differing || request.part || photo.isNull())
        return renderedLayer(*request.overlay, request);
    return renderedAnew(photo, *request.overlay, *differing, request.room);
}

} // namespace

platform::graphics::PixelSize
fittedInto(platform::graphics::PixelSize size, platform::graphics::PixelSize room)
{
    const double scale
        = std::min({1.0, double(room.width) / size.width, double(room.height) / size.height});
    return {
        .width = std::max(1, qRound(size.width * scale)),
        .height = std::max(1, qRound(size.height * scale))};
}

QString photoCaption(const QString& path, const QString& fileSize)
{
    if (path.isEmpty())
        return {};
    const QString name = platform::lastPathComponent(path);
    const auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        return name;
    const auto& header = source->header();
    const QString text = u"%1  \u00b7  %2 \u00d7 %3  \u00b7  %4 bit %5"_s.arg(name)
                             .arg(header.uprightSize.width)
                             .arg(header.uprightSize.height)
                             .arg(header.bitsPerComponent)
                             .arg(colorModelName(header.colorModel));
    return fileSize.isEmpty() ? text : text + u"  \u00b7  "_s + fileSize;
}

QImage PreviewRenderer::renderedPhoto(const PreviewRequest& request)
{
    if (!request.photo)
        return {};
    const bool isSame = m_lastPhoto.node == request.photo->node()
        && m_lastPhoto.room == request.room && m_lastPhoto.part == request.part;
    if (!isSame) {
        m_lastPhoto
            = {.node = request.photo->node(),
               .room = request.room,
               .part = request.part,
               .picture = renderedLayer(*request.photo, request)};
    }
    return m_lastPhoto.picture;
}

PreviewPicture PreviewRenderer::renderedPicture(const PreviewRequest& request)
{
    const QImage photo = renderedPhoto(request);
    const QImage overlay = renderedOverlay(request, photo);
    return {
        .photo = !overlay.isNull() && holdsThePhoto(request) ? QImage() : photo,
        .overlay = overlay,
        .part = request.part,
        .caption = photoCaption(request.path, request.fileSize)};
}

PreviewRenderer::PreviewRenderer(QObject* parent)
    : QObject(parent)
{
    m_worker.setMaxThreadCount(1);
    m_worker.setExpiryTimeout(-1); // fonts are loaded anew for each thread
}

PreviewRenderer::~PreviewRenderer() { m_worker.waitForDone(); }

void PreviewRenderer::render(const PreviewRequest& request)
{
    m_waiting = request;
    startNext();
}

void PreviewRenderer::startNext()
{
    if (m_running || !m_waiting)
        return;
    m_running = true;
    m_worker.start([this, request = *std::exchange(m_waiting, std::nullopt)] {
        const PreviewPicture picture = renderedPicture(request);
        QMetaObject::invokeMethod(this, [this, picture, path = request.path] {
            take(picture, path);
        });
    });
}

void PreviewRenderer::take(const PreviewPicture& picture, const QString& path)
{
    m_running = false;
    if (!m_waiting || m_waiting->path == path)
        Q_EMIT rendered(picture);
    startNext();
}

} // namespace brenvaldo::views
