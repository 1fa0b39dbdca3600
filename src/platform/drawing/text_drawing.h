// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QImage>
#include <QList>
#include <QPainterPath>
#include <QTransform>

class QPainter;

namespace brenvaldo::platform::drawing {

/// A glyph that is a picture in its own colours, such as an emoji of a colour font.
struct GlyphPicture
{
    QImage image; ///< premultiplied ARGB
    QTransform place; ///< from the picture's pixels to the text
};

/// A text turned into what is drawn; the origin is the text's top left corner, y runs down.
struct TextDrawing
{
    QPainterPath shape; ///< the glyphs that have outlines, and the underlines
    QList<GlyphPicture> pictures;

    void add(const TextDrawing& other, const QTransform& place);

    /// Fills the shape and lays the pictures over it, as translucent as the colour of `fill`.
    void draw(QPainter& painter, const QBrush& fill) const;
};

} // namespace brenvaldo::platform::drawing
