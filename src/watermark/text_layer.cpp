// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_layer.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brenvaldo::watermark {

namespace {

/// Sizes this close to a whole number are that number.
constexpr double noise = 1e-6;

/// Layers are no longer than this, whatever the size of the font; no photo is.
constexpr double longestSide = 1 << 24;

int wholePixels(double length)
{
    return static_cast<int>(std::ceil(std::min(length, longestSide) - noise));
}

QImage transparent(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void prepare(QPainter& painter)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

} // namespace

platform::PixelSize turnedSize(QSizeF size, double degrees)
{
    const double radians = degrees * std::numbers::pi / 180;
    const double sine = std::abs(std::sin(radians));
    const double cosine = std::abs(std::cos(radians));
    return {
        .width = wholePixels(size.width() * cosine + size.height() * sine),
        .height = wholePixels(size.width() * sine + size.height() * cosine)};
}

TextLayer::TextLayer(const platform::AttributedText& text, int angle)
    : m_text(text.drawing())
    , m_uprightSize(wholePixels(text.size().width()), wholePixels(text.size().height()))
    , m_angle(angle)
    , m_size(turnedSize(m_uprightSize, angle))
{
}

QTransform TextLayer::toTurnedLayer() const
{
    QTransform transform;
    transform.translate(m_size.width / 2.0, m_size.height / 2.0);
    // The painter's y axis runs down: its positive angles turn clockwise.
    transform.rotate(-m_angle);
    transform.translate(-m_uprightSize.width() / 2.0, -m_uprightSize.height() / 2.0);
    return transform;
}

QRect TextLayer::neededBefore(const QRect& region) const
{
    const QRect mapped = toTurnedLayer().inverted().mapRect(QRectF(region)).toAlignedRect();
    return mapped.adjusted(-1, -1, 1, 1).intersected(QRect(QPoint(0, 0), m_uprightSize));
}

QImage TextLayer::rendered(const Ink& ink, const QRect& region) const
{
    QImage layer = transparent(region.size());
    if (layer.isNull() || m_uprightSize.isEmpty())
        return layer;
    QBrush fill = ink.fill;
    if (fill.style() == Qt::TexturePattern) {
        const int textureTop = m_uprightSize.height() - fill.textureImage().height();
        fill.setTransform(QTransform::fromTranslate(0, textureTop));
    }
    QPainter painter(&layer);
    prepare(painter);
    painter.setTransform(
        toTurnedLayer() * QTransform::fromTranslate(-region.left(), -region.top())
    );
    painter.setClipRect(QRect(QPoint(0, 0), m_uprightSize));
    if (ink.shadow) {
        const int reach = platform::shadowReach(ink.shadow->blurRadius)
            + std::max(std::abs(ink.shadow->xOffset), std::abs(ink.shadow->yOffset));
        const QRect part = neededBefore(region.adjusted(-reach, -reach, reach, reach));
        QImage object = transparent(part.size());
        QPainter objectPainter(&object);
        prepare(objectPainter);
        objectPainter.translate(-part.topLeft());
        m_text.draw(objectPainter, fill);
        objectPainter.end();
        painter.drawImage(part.topLeft(), platform::shadowLayer(object, *ink.shadow, 0));
    }
    m_text.draw(painter, fill);
    return layer;
}

} // namespace brenvaldo::watermark
