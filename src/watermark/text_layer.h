// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/drawing/attributed_text.h>
#include <platform/drawing/layer_shadow.h>
#include <platform/graphics/geometry.h>

#include <QBrush>
#include <QImage>
#include <QRect>
#include <QTransform>

#include <optional>

namespace brenvaldo::watermark {

/// A styled text as a layer of its own, turned by an angle. The layer ends at the text's measured
/// size: what a slant or a shadow sends beyond it is cut off.
class TextLayer
{
public:
    TextLayer(const platform::drawing::AttributedText& text, int angle);

    /// Size of the turned layer in whole pixels; not valid for an empty text.
    [[nodiscard]] platform::graphics::PixelSize size() const { return m_size; }

    /// Size of the layer before it is turned.
    [[nodiscard]] platform::graphics::PixelSize uprightSize() const { return m_uprightSize; }

    /// From the turned layer to the one before it was turned.
    [[nodiscard]] QTransform toUprightLayer() const { return toTurnedLayer().inverted(); }

    struct Ink
    {
        QBrush fill; ///< a texture starts at the layer's bottom left corner
        std::optional<platform::drawing::Shadow> shadow;
    };

    /// The part of the layer inside of `region` (origin at its top left corner), premultiplied
    /// ARGB.
    [[nodiscard]] QImage rendered(const Ink& ink, const QRect& region) const;

private:
    [[nodiscard]] QTransform toTurnedLayer() const;
    [[nodiscard]] QRect uprightRect() const;
    [[nodiscard]] QRect neededBefore(const QRect& region) const;
    /// Draws what of the shadow falls into `part` of the upright layer.
    void drawShadow(
        QPainter& painter,
        const platform::drawing::Shadow& shadow,
        const QBrush& fill,
        const QRect& part
    ) const;

    platform::drawing::TextDrawing m_text;
    platform::graphics::PixelSize m_uprightSize;
    int m_angle = 0;
    QSizeF m_bounds; ///< of the turned layer, not rounded
    platform::graphics::PixelSize m_size;
};

} // namespace brenvaldo::watermark
