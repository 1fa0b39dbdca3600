// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>
#include <watermark/text_mark.h>
#include <watermark/text_overlay.h>

#include <platform/graphics/image.h>

#include <QFont>
#include <QPainter>

/// \file
/// A small plain photo and marks on it, for the tests of what a text watermark draws.

namespace brenvaldo::test {

constexpr QRgb photoColor = qRgb(10, 20, 30);

inline QFont blockFont() { return QFont(u"DejaVu Sans Mono"_s); }

/// A glyph that is one rectangle.
inline QString block() { return u"\u2588"_s; }

inline watermark::TextWatermarkSettings whiteBlock()
{
    watermark::TextWatermarkSettings settings;
    settings.text = block();
    settings.fontSize = 20;
    settings.fontColor = {.red = 1, .green = 1, .blue = 1};
    return settings;
}

inline platform::graphics::Image plainPhoto(int width = 161, int height = 121)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(photoColor);
    return platform::graphics::Image::fromQImage(image);
}

inline QImage markedPhoto(
    const watermark::TextWatermarkSettings& settings,
    const platform::graphics::Image& photo = plainPhoto()
)
{
    return platform::drawing::stamped(photo, textMark(settings, settings.text, blockFont(), photo))
        .toQImage();
}

inline watermark::TextOverlay overlayOf(
    const watermark::TextWatermarkSettings& settings,
    const platform::graphics::Image& photo = plainPhoto()
)
{
    return {settings, settings.text, blockFont(), photo};
}

inline QImage wholeLayer(const watermark::TextOverlay& overlay)
{
    return overlay.rendered({0, 0, overlay.size().width, overlay.size().height});
}

inline bool isChanged(QRgb pixel) { return (pixel & 0xFFFFFF) != (photoColor & 0xFFFFFF); }

/// Box around all pixels that differ from the photo.
inline QRect changedBox(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isChanged(image.pixel(x, y)))
                box = box.united(QRect(x, y, 1, 1));
        }
    }
    return box;
}

inline int changedPixels(const QImage& image)
{
    int changed = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            changed += isChanged(image.pixel(x, y)) ? 1 : 0;
    }
    return changed;
}

/// Where the block's pixels stand on its own layer.
inline QRect blockOnItsLayer(const watermark::TextWatermarkSettings& settings)
{
    const QImage layer = wholeLayer(overlayOf(settings));
    QRect box;
    for (int y = 0; y < layer.height(); ++y) {
        for (int x = 0; x < layer.width(); ++x) {
            if (qAlpha(layer.pixel(x, y)) > 0)
                box = box.united(QRect(x, y, 1, 1));
        }
    }
    return box;
}

} // namespace brenvaldo::test
