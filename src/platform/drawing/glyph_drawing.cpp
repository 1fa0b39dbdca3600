// SPDX-License-Identifier: GPL-3.0-or-later
#include "glyph_drawing.h"

#include <QPainter>
#include <QRawFont>

#include <algorithm>

namespace brenvaldo::platform::drawing {

namespace {

/// Colour fonts hold their pictures at about this size; larger ones would be the same, magnified.
constexpr double largestPicture = 160;

/// True for a font of colour bitmaps: the index of such bitmaps is a table of its own.
bool hasPictures(const QRawFont& font) { return !font.fontTable("CBLC").isEmpty(); }

/// The glyph's picture at `font`'s size; null for a glyph without ink.
QImage pictureOf(quint32 glyph, const QRawFont& font, const QRect& box)
{
    if (box.isEmpty())
        return {};
    QImage image(box.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QGlyphRun single;
    single.setRawFont(font);
    single.setGlyphIndexes({glyph});
    single.setPositions({QPointF(0, 0)});
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawGlyphRun(-box.topLeft(), single);
    return image;
}

void addPicture(TextDrawing& drawing, quint32 glyph, const QRawFont& font, QPointF position)
{
    const double scale = std::max(1.0, font.pixelSize() / largestPicture);
    QRawFont drawn = font;
    drawn.setPixelSize(font.pixelSize() / scale);
    const QRect box = drawn.boundingRect(glyph).toAlignedRect();
    const QImage image = pictureOf(glyph, drawn, box);
    if (image.isNull())
        return;
    QTransform place = QTransform::fromTranslate(position.x(), position.y());
    place.scale(scale, scale);
    place.translate(box.left(), box.top());
    drawing.pictures.append({.image = image, .place = place});
}

} // namespace

TextDrawing drawingOfGlyphs(const QGlyphRun& run)
{
    TextDrawing drawing;
    drawing.shape.setFillRule(Qt::WindingFill);
    const QRawFont font = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    const bool arePictures = hasPictures(font);
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        if (arePictures)
            addPicture(drawing, glyphs[i], font, positions[i]);
        else
            drawing.shape.addPath(font.pathForGlyph(glyphs[i]).translated(positions[i]));
    }
    return drawing;
}

} // namespace brenvaldo::platform::drawing
