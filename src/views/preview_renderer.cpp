// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_renderer.h"

#include <platform/foundation/paths.h>
#include <platform/graphics/image_source.h>

#include <algorithm>

namespace brenvaldo::views {

namespace {

QString colourModelName(platform::ColorModel model)
{
    switch (model) {
    case platform::ColorModel::Gray:
        return PreviewRenderer::tr("grey");
    case platform::ColorModel::Rgb:
        return QStringLiteral("RGB");
    case platform::ColorModel::Cmyk:
        return QStringLiteral("CMYK");
    case platform::ColorModel::Lab:
        return QStringLiteral("Lab");
    }
    return {};
}

QImage renderedLayer(const std::optional<platform::Image>& layer, const PreviewRequest& request)
{
    if (!layer)
        return {};
    if (request.part) {
        const auto part = layer->croppedTo(*request.part);
        return part ? part->toQImage() : QImage();
    }
    const auto size = fittedInto(layer->pixelSize(), request.room);
    return (size == layer->pixelSize() ? *layer : layer->scaledTo(size)).toQImage();
}

PreviewPicture renderedPicture(const PreviewRequest& request)
{
    return {
        .photo = renderedLayer(request.photo, request),
        .overlay = renderedLayer(request.overlay, request),
        .part = request.part,
        .caption = photoCaption(request.path, request.fileSize)};
}

} // namespace

platform::PixelSize fittedInto(platform::PixelSize size, platform::PixelSize room)
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
    const auto source = platform::ImageSource::open(path);
    if (!source)
        return name;
    const auto& header = source->header();
    const QString text = QStringLiteral("%1  \u00b7  %2 \u00d7 %3  \u00b7  %4 bit %5")
                             .arg(name)
                             .arg(header.uprightSize.width)
                             .arg(header.uprightSize.height)
                             .arg(header.bitsPerComponent)
                             .arg(colourModelName(header.colorModel));
    return fileSize.isEmpty() ? text : text + QStringLiteral("  \u00b7  ") + fileSize;
}

PreviewRenderer::PreviewRenderer(QObject* parent)
    : QObject(parent)
{
    m_worker.setMaxThreadCount(1);
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
        QMetaObject::invokeMethod(this, [this, picture] { take(picture); });
    });
}

void PreviewRenderer::take(const PreviewPicture& picture)
{
    m_running = false;
    if (!m_waiting)
        Q_EMIT rendered(picture);
    startNext();
}

} // namespace brenvaldo::views
