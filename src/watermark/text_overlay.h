// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text_layer.h"
#include "text_watermark_settings.h"

#include <platform/graphics/image.h>

#include <QFont>
#include <QTransform>

namespace brenvaldo::watermark {

/// The layer that is laid over a photo: the text in its fill, turned and, for some effects,
/// embossed.
class TextOverlay
{
public:
    /// `photo` fills the glyphs of some effects; it is then read more than once.
    TextOverlay(
        const TextWatermarkSettings& settings,
        const QString& text,
        const QFont& font,
        const platform::graphics::Image& photo
    );

    /// Size in whole pixels, after turning; not valid for an empty text.
    [[nodiscard]] platform::graphics::PixelSize size() const { return m_layer.size(); }

    /// The part of the layer inside of `region` (origin at its top left corner), premultiplied
    /// ARGB. Glyphs that the photo fills are black.
    [[nodiscard]] QImage rendered(const QRect& region) const;

    /// What fills the glyphs, repeated without end, in the photo's colours and depth; nothing where
    /// a colour does, or when the photo turns out to be damaged.
    [[nodiscard]] const std::optional<platform::graphics::Image>& picture() const
    {
        return m_picture;
    }

    /// From the layer to the pixels of the picture.
    [[nodiscard]] QTransform toPicture() const;

    /// The same overlay with glyphs of another colour, as opaque as the picture.
    [[nodiscard]] TextOverlay inkedWith(const QColor& color) const;

private:
    [[nodiscard]] QImage embossed(const QImage& layer) const;

    TextEffectTraits m_effect;
    platform::graphics::Color m_embossColor;
    TextLayer m_layer;
    std::optional<platform::graphics::Image> m_picture;
    TextLayer::Ink m_ink;
};

} // namespace brenvaldo::watermark
