// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_drawing.h"

#include <QPainter>

namespace brenvaldo::platform::drawing {

void TextDrawing::add(const TextDrawing& other, const QTransform& place)
{
    shape.addPath(place.map(other.shape));
    for (GlyphPicture picture : other.pictures) {
        picture.place *= place;
        pictures.append(picture);
    }
}

void TextDrawing::draw(QPainter& painter, const QBrush& fill) const
{
    painter.fillPath(shape, fill);
    painter.save();
    if (fill.style() != Qt::TexturePattern)
        painter.setOpacity(painter.opacity() * fill.color().alphaF());
    for (const GlyphPicture& picture : pictures) {
        painter.save();
        painter.setTransform(picture.place, true);
        painter.drawImage(0, 0, picture.image);
        painter.restore();
    }
    painter.restore();
}

} // namespace brenvaldo::platform::drawing
