// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_layer.h"

#include "transparent_image.h"

#include <imaging/rotate_rules.h>

#include <QPainter>

namespace brenvaldo::watermark {

namespace {

/// Layers are no longer than this, whatever the size of the font; no photo is.
constexpr double longestSide = 1 << 24;

platform::graphics::PixelSize uprightSizeOf(const platform::drawing::AttributedText& text)
{
    return imaging::canvasOfPoints(text.size().boundedTo(QSizeF(longestSide, longestSide)));
}

void prepare(QPainter& painter)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

} // namespace

TextLayer::TextLayer(const platform::drawing::AttributedText& text, int angle)
    : m_text(text.drawing())
    , m_uprightSize(uprightSizeOf(text))
    , m_angle(angle)
    , m_bounds(imaging::boundsOfTurned(QSizeF(m_uprightSize.width, m_uprightSize.height), angle))
    , m_size(imaging::canvasOfPoints(m_bounds))
{
}

QTransform TextLayer::toTurnedLayer() const
{
    QTransform transform;
    // What the canvas has beyond the bounds lies at the right and at the top.
    transform.translate(m_bounds.width() / 2, m_size.height - m_bounds.height() / 2);
    // The painter's y axis runs down: its positive angles turn clockwise.
    transform.rotate(-static_cast<double>(m_angle));
    transform.translate(-m_uprightSize.width / 2.0, -m_uprightSize.height / 2.0);
    return transform;
}

QRect TextLayer::uprightRect() const { return {0, 0, m_uprightSize.width, m_uprightSize.height}; }

QRect TextLayer::neededBefore(const QRect& region) const
{
    const QRect mapped = toUprightLayer().mapRect(QRectF(region)).toAlignedRect();
    return mapped.adjusted(-1, -1, 1, 1).intersected(uprightRect());
}

QImage TextLayer::rendered(const Ink& ink, const QRect& region) const
{
    QImage layer = transparentImage(region.size());
    if (layer.isNull() || !m_uprightSize.isValid())
        return layer;
    QBrush fill = ink.fill;
    if (fill.style() == Qt::TexturePattern) {
        const int textureTop = m_uprightSize.height - fill.textureImage().height();
        fill.setTransform(QTransform::fromTranslate(0, textureTop));
    }
    QPainter painter(&layer);
    prepare(painter);
    painter.setTransform(
        toTurnedLayer() * QTransform::fromTranslate(-region.left(), -region.top())
    );
    painter.setClipRect(uprightRect());
    if (ink.shadow)
        drawShadow(painter, *ink.shadow, fill, neededBefore(region));
    m_text.draw(painter, fill);
    return layer;
}

void TextLayer::drawShadow(
    QPainter& painter,
    const platform::drawing::Shadow& shadow,
    const QBrush& fill,
    const QRect& part
) const
{
    const QRect casting = platform::drawing::castingInto(part, shadow).intersected(uprightRect());
    QImage object = transparentImage(casting.size());
    if (object.isNull())
        return;
    QPainter objectPainter(&object);
    prepare(objectPainter);
    objectPainter.translate(-casting.topLeft());
    m_text.draw(objectPainter, fill);
    objectPainter.end();
    const platform::drawing::PlacedLayer cast
        = platform::drawing::shadowOf({.image = object, .topLeft = casting.topLeft()}, shadow);
    painter.drawImage(cast.topLeft, cast.image);
}

} // namespace brenvaldo::watermark
